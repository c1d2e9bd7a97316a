// What only the component itself may do is unreachable for callers: no class answers to such a name or id.
#include <gtest/gtest.h>

#include <array>

#include "frame/PublicClasses.h"
#include "support/Client.h"
#include "support/TestServer.h"
#include "toolkit/RuntimeError.h"
#include "toolkit/Toolkit.h"

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

/// No toolkit is installed as far as these objects know.
class NoToolkit final : public toolkit::Toolkit {
 public:
  Ref<toolkit::ParseNode> CreateParser() override { throw toolkit::RuntimeError(toolkit::kObjectNotSet); }
  Ref<toolkit::HostLogger> CreateLogger() override { throw toolkit::RuntimeError(toolkit::kObjectNotSet); }
};

template <class Visit>
void ForEachCreatable(Visit&& visit) {
  const Ref<NoToolkit> toolkit = Make<NoToolkit>();
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create != nullptr) {
      SCOPED_TRACE(std::string(description->name.begin(), description->name.end()));
      const Ref<Object> object = description->create(*toolkit);
      visit(*description, Client(*object));
    }
  }
}

TEST(HiddenMembers, NoClassAnswersToAnInternalName) {
  ForEachCreatable([](const ClassDescription& /*description*/, const Client& client) {
    for (const std::u16string_view name : kInternalNames) {
      EXPECT_EQ(client.IdOf(name), DISPID_UNKNOWN) << std::string(name.begin(), name.end());
    }
  });
}

TEST(HiddenMembers, NoIdOutsideTheTableIsServed) {
  ForEachCreatable([](const ClassDescription& description, const Client& client) {
    const auto last = static_cast<DISPID>(description.members.size());
    for (const DISPID id : {DISPID{-5}, DISPID{-1}, DISPID{0}, last + 1, last + 100, DISPID{0x60020000}}) {
      EXPECT_EQ(client.Call(id, {}).code, DISP_E_MEMBERNOTFOUND) << id;
    }
  });
}

TEST(HiddenMembers, PropertiesWithoutAPublicSetterRefuseToBeSet) {
  ForEachCreatable([](const ClassDescription& description, const Client& client) {
    for (const Member& member : description.members) {
      if (member.put.call != nullptr) {
        continue;
      }
      EXPECT_EQ(client.Put(member.name, String(u"x")).code, DISP_E_MEMBERNOTFOUND);
      EXPECT_EQ(client.Put(member.name, Dispatch(client.Get()), DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
    }
  });
}

TEST(HiddenMembers, RefusedSettersChangeNothing) {
  ForEachCreatable([](const ClassDescription& description, const Client& client) {
    if (description.FindByName(u"Text") != nullptr) {
      static_cast<void>(client.Put(u"Text", String(u"x")));
      EXPECT_EQ(client.Call(u"Text").Text(), u"");
    }
  });
}

TEST(HiddenMembers, EveryPublicPropertyOfANewObjectCanBeRead) {
  ForEachCreatable([](const ClassDescription& description, const Client& client) {
    for (const Member& member : description.members) {
      if (!std::holds_alternative<Method>(member.access)) {
        EXPECT_EQ(client.Call(member.name).code, S_OK) << std::string(member.name.begin(), member.name.end());
      }
    }
  });
}

}  // namespace
}  // namespace qorltst::automation::test
