// Identifiers of the component's classes and interfaces. Callers are compiled against them: never change one.
#include "automation/Identities.h"

#include <array>

#include "frame/PublicClasses.h"

namespace qorltst::automation {
namespace {

consteval ClassIdentity Identity(std::u16string_view name, std::string_view classId, std::string_view interfaceId) {
  return {name, ParseGuid(classId), ParseGuid(interfaceId)};
}

constexpr std::array kIdentities{
    Identity(u"TST", "ea356902-44a1-43f3-9a64-dda9ba011c93", "1458ba90-b1ff-4ba3-b39a-bf48e4326787"),
    Identity(u"EtLog", "06ab4229-3d3a-4341-828c-4a914a6b2574", "b10407c1-bf77-4d66-847a-20f7c38e2ce4"),
    Identity(u"Collection", "9968bb15-4879-4abc-9f16-de8836ab0328", "dc68692e-b7bd-4913-945c-b4cf842899d0"),
    Identity(u"TSTHeader", "2b77e3fc-89f6-4e49-9ea5-8655c6e5a633", "37201524-f1d9-468a-a833-53751811067e"),
    Identity(u"NameElement", "49683300-f4d1-4cfb-ae04-8c37d620491b", "e992fe92-07aa-4a2e-b5f8-2bdf1ef979a1"),
    Identity(u"AirSegment", "b02a99b6-e705-4c70-9390-a6648c3acc63", "2cb18410-86e7-4118-a2a2-b42f168d0ae3"),
    Identity(u"AirOpenSegment", "4840ded6-ee15-4871-bebe-b3fc162ea843", "4c9c52e2-619c-40af-8c33-06b76ceea6fc"),
    Identity(u"ARNKSegment", "c59e3618-d68e-41d2-b01b-82390b07df7f", "270ab93c-9bce-4e0f-9a41-de3f04817744"),
    Identity(u"ItineraryLastLine", "760c8bfd-6516-41e5-9ad2-7c941534855d", "576e4930-9711-44c8-8a37-bd679b8261b7"),
    Identity(u"TaxElement", "98aafab1-22c3-46b6-8ccd-97b4e1c866aa", "25dd5269-debf-4843-bb45-35436df9e64f"),
    Identity(u"FMElement", "3ea0c689-d3ef-496f-93aa-797d0fe630a0", "5d0089c3-56cd-4b22-ba08-44a07d5d2360"),
    Identity(u"FPElement", "d5cce600-ae0a-4ccd-9f7a-e68954d46236", "eaa07276-5692-4f0e-bb50-bc4a770133e6"),
    Identity(u"FVElement", "551b3ecf-d196-4310-b3fd-204cea2303be", "0a83e521-0ef3-4003-aca8-46dbf04ea841"),
    Identity(u"FEElement", "b681aeaf-1ce6-4b6c-8e58-bb41dbb8f7f3", "1781a85a-2f12-4421-8941-b32bd1b7e203"),
    Identity(u"FTElement", "d5158c2c-2e6b-47d7-81b7-f2bffad414c0", "0e70e9ab-4efb-4059-b193-7240d4757c62"),
    Identity(u"PublishedAndNetFares", "8699a0f8-755d-4938-bd31-051378a4ff29", "f2c125be-91a3-4785-95da-0536b6cefc34"),
    Identity(u"FOElement", "9a41b64d-7667-4e44-bd6f-e45787829ea5", "ea003344-a6a4-4df6-86fe-326b6612f61a"),
    Identity(u"FareCalculation", "089e5aea-527e-4a87-8f43-20b20b16b3c4", "7df6aa0b-78c9-4a38-81ef-70a7c86d70f0"),
    Identity(u"Itinerary", "77720386-cc67-4e81-94fd-511c337949c4", "8d50c2b1-5df0-4c56-bb60-7d4deb462e9e"),
    Identity(u"ItineraryCompositeElement", "30cdb4e9-3f99-4c17-9ba5-99f9340a6cd0",
             "b93c029c-ac58-4701-b917-b5babad94d52"),
    Identity(u"Fare", "d6f85f45-e7eb-4c85-a296-bdda538ae013", "0e618b07-2d1d-4de1-9062-16344e7b6423"),
    Identity(u"DepartureRoutingPoint", "97dab8cc-e82d-41e3-82f3-77fedee9674b", "43d160d6-6735-4f0b-a67e-faa787799620"),
    Identity(u"EndLine", "6c0c969f-d299-44f4-8705-f3326a9e1d2e", "4536afce-1e4a-4c7e-a57d-b4be7c48fe18"),
    Identity(u"AnyPFC", "e673c3b2-8749-4dfc-a76f-602da7885e95", "775afd1b-ef58-4370-b75e-1e08cae1d25e"),
    Identity(u"CityDigit", "039d5bbf-4610-4f60-9c67-783078fce22e", "3b484532-62c3-4e82-979b-3ef05b190906"),
    Identity(u"HigherClassDifferential", "c086fea5-5674-41a7-abfa-d661ca28f31a",
             "6f73f42b-c014-4360-a5c0-d387007e3b3c"),
    Identity(u"FareHigherIntermediate", "199ad9ac-9874-483b-97ac-1265f89b3aa5", "7009794d-09f2-485a-abd8-54d1454515a9"),
    Identity(u"FareMinimun", "2520208f-de7c-4ab1-8371-c08ac9990c06", "856caf4c-3074-444b-8c91-75186f89a996"),
    Identity(u"ExtraSeat", "96ccaef8-10e7-4e54-9d68-92b4e59acce3", "1b56c965-affd-4dbb-8bd1-94ea8b3dfce5"),
    Identity(u"StopOverCharge", "980b441c-353e-472d-8d1c-088dfcf7087e", "4cadb5b2-cf8d-4ff5-aa07-52cd27d01a2b"),
    Identity(u"MileageEqualizationRule", "83bb3b5f-a7ac-414b-acf3-e2e55d3f1a02",
             "1a6797e3-10c0-4915-9fe8-bcd4a815d613"),
    Identity(u"AnySymbol", "fe50ff5e-aee5-4456-ac40-420c554306e7", "5ae7dd7a-6b4c-4786-9054-ebea4a2474f8"),
    Identity(u"OtherSurcharge", "1609a2c4-bfd8-4ae6-851f-8c2ef201ef0d", "87a60767-82d4-4f32-a548-736cf954f991"),
};

constexpr Library kLibrary{.name = u"QorlTST",
                           .help = u"QorlTST transitional stored ticket component",
                           .id = ParseGuid("6a260773-dd7a-41fd-8ab0-d439ab04e997"),
                           .classes = &PublicClasses,
                           .identities = kIdentities};

}  // namespace

const Library& ComponentLibrary() noexcept { return kLibrary; }

}  // namespace qorltst::automation
