// What only the component itself may do is unreachable for callers: no class answers to such a name or id.
#include <gtest/gtest.h>

#include <array>

#include "support/Client.h"
#include "support/NoToolkit.h"

namespace qorltst::automation::test {
namespace {

/// Fills, builders, what the communication and the parser do, and the modules: every operation callers must not reach.
constexpr std::array<std::u16string_view, 72> kInternalNames{u"FillWithData",
                                                             u"FillTextWithData",
                                                             u"FillUpLevelData",
                                                             u"FillTotalWithData",
                                                             u"FillFareWithData",
                                                             u"FillNetFareLineWithData",
                                                             u"FillEquivWithData",
                                                             u"FillPaymentRestrictionLine",
                                                             u"FillZapOffValue",
                                                             u"SetTextToParse",
                                                             u"ParseTst",
                                                             u"TSTDisplay",
                                                             u"GetEntireTstToParse",
                                                             u"CleanEntireResponse",
                                                             u"BuildNameCollection",
                                                             u"BuildHeaderLine",
                                                             u"BuildItineraryLastLine",
                                                             u"BuildAirLine",
                                                             u"BuildARNKLine",
                                                             u"BuildTaxCollection",
                                                             u"BuildFEElement",
                                                             u"BuildFVLine",
                                                             u"BuildFTLine",
                                                             u"BuildFormOfPaymentLine",
                                                             u"BuildFarePubCollection",
                                                             u"BuildCommissionLine",
                                                             u"BuildOriginalIssue",
                                                             u"BuildFareCalculation",
                                                             u"FillTheRest",
                                                             u"FillOriginIssue",
                                                             u"FillConjunctedTicket",
                                                             u"FillIssued",
                                                             u"FillIssuedConjunctedTicket",
                                                             u"FillAmout",
                                                             u"FillTaxPenalty",
                                                             u"BuildDeparturePoint",
                                                             u"BuildEndLine",
                                                             u"BuildItineraryAndTheRest",
                                                             u"BuildItineraries",
                                                             u"BuildCompositeElement",
                                                             u"BuildFareMinimum",
                                                             u"BuildHigherClassDiff",
                                                             u"BuildFareCommon",
                                                             u"BuildFareWithStopOver",
                                                             u"BuildExtraSeat",
                                                             u"BuildAnySymbolList",
                                                             u"BuildOtherSurcharges",
                                                             u"BuildOtherSurcharge",
                                                             u"BuildMileageItem",
                                                             u"BuildFareIntermediatePoint",
                                                             u"BuildMileageEqRule",
                                                             u"BuildLowestCombination",
                                                             u"BuildStopOverCharge",
                                                             u"BuildFictitiousPoint",
                                                             u"BuildCurrency",
                                                             u"BuildFare",
                                                             u"BuildLessFare",
                                                             u"BuildFareHigherIntPoint",
                                                             u"BuildAnyPFC",
                                                             u"BuildFreeFlow",
                                                             u"BuildCityDigits",
                                                             u"RaiseError",
                                                             u"GetErrorMessage",
                                                             u"NextID",
                                                             u"TstCommunication",
                                                             u"TstParser",
                                                             u"EtLog",
                                                             u"Logger",
                                                             u"Toolkit",
                                                             u"Add",
                                                             u"Remove",
                                                             u"Clear"};

TEST(HiddenMembers, NoClassAnswersToAnInternalName) {
  ForEachNewObject([](Object& object) {
    const Client client(object);
    for (const std::u16string_view name : kInternalNames) {
      EXPECT_EQ(client.IdOf(name), DISPID_UNKNOWN) << std::string(name.begin(), name.end());
    }
  });
}

TEST(HiddenMembers, NoIdOutsideTheTableIsServed) {
  ForEachNewObject([](Object& object) {
    const Client client(object);
    const auto last = static_cast<DISPID>(object.Description().members.size());
    for (const DISPID id : {DISPID{-5}, DISPID{-1}, DISPID{0}, last + 1, last + 100, DISPID{0x60020000}}) {
      EXPECT_EQ(client.Call(id, {}).code, DISP_E_MEMBERNOTFOUND) << id;
    }
  });
}

}  // namespace
}  // namespace qorltst::automation::test
