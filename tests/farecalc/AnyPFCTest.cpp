// Tests of a facility charge or tax at the end of a fare calculation; its kind is the type of its own node.
#include <gtest/gtest.h>

#include "farecalc/AnyPFC.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class AnyPFCTest : public testing::RecordTest<AnyPFC> {
 protected:
  void PutDomesticUSFlight(bool value) {
    const Member* const row = record_->Description().FindByName(u"DomesticUSFlight");
    ASSERT_EQ(row->put.type, ValueType::Boolean);
    row->put.call(*record_, value);
  }
};

TEST_F(AnyPFCTest, HasOneFlagForEachKindAndNoneForAnyOtherType) {
  Texts kinds;
  for (std::int32_t type = -2; type <= 3000; ++type) {
    record_ = Make<AnyPFC>(*toolkit_);
    for (const std::string& set : FilledFrom({type, u""})) {
      kinds.push_back(std::to_string(type) + " " + set);
    }
  }
  EXPECT_EQ(kinds, (Texts{"2882 PreviousPaid=True", "2883 CombinedTax=True", "2888 PaxFacilityCharge=True",
                          "2890 PreviousPaid=True", "2891 DomesticUSFlight=True", "2893 PreviousPaid=True"}));
}

TEST_F(AnyPFCTest, ThatIsNoKindHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2889, u"JFK4.5", {{2833, u"", {{2889, u"JFK"}}}}}.WithError(u"e")),
            (Texts{"Text=JFK4.5", "ErrorText=e"}));
}

TEST_F(AnyPFCTest, ReadsNoChildrenExceptOfTheTwoFacilityChargeKinds) {
  for (const std::int32_t type : {2882, 2883, 2890, 2893, 2889, 1}) {
    toolkit_->calls.clear();
    Fill({type, u"", {{2833, u"", {{2889, u"JFK"}}}, {2834, u"", {{2892, u"JFK"}}}}});
    const std::string number = " " + std::to_string(type);
    EXPECT_EQ(toolkit_->calls, (Texts{"Text" + number, "ErrorText" + number, "TypeId" + number}));
  }
}

TEST_F(AnyPFCTest, OfTheFacilityChargeKindReadsItsOwnCitiesOnly) {
  const Texts expected{"2889 CityDigits(1)", "2889 CityDigits(1).Text=text", "2892 CityDigits(1)",
                       "2892 CityDigits(1).Text=text"};
  EXPECT_EQ(StoredBelow(2888, {}), Texts());
  EXPECT_EQ(StoredBelow(2888, {2833}), expected);
  EXPECT_EQ(StoredBelow(2888, {2834}), Texts());
}

TEST_F(AnyPFCTest, OfTheSegmentTaxKindReadsItsOwnCitiesOnly) {
  const Texts expected{"2889 CityDigits(1)", "2889 CityDigits(1).Text=text", "2892 CityDigits(1)",
                       "2892 CityDigits(1).Text=text"};
  EXPECT_EQ(StoredBelow(2891, {}), Texts());
  EXPECT_EQ(StoredBelow(2891, {2834}), expected);
  EXPECT_EQ(StoredBelow(2891, {2833}), Texts());
}

TEST_F(AnyPFCTest, IgnoresCitiesOneLevelTooHighOrTooLow) {
  EXPECT_EQ(FilledFrom({2888, u"", {{2889, u"JFK"}, {2833, u"", {{2833, u"", {{2889, u"JFK"}}}}}}}),
            Texts{"PaxFacilityCharge=True"});
}

TEST_F(AnyPFCTest, GathersTheDigitsOfAllItsCityGroupsInOrder) {
  EXPECT_EQ(FilledFrom({2888,
                        u"XF",
                        {{2833, u"", {{2889, u"JFK4.5", {{2777, u"4.5"}}}, {5, u"?"}, {2892, u"LGA3"}}},
                         {2834, u"", {{2889, u"BOS1"}}},
                         {2833, u"", {{2889, u"EWR2"}}}}}),
            (Texts{"CityDigits(1)", "CityDigits(1).CityDigit=4.5", "CityDigits(1).Text=JFK4.5", "CityDigits(2)",
                   "CityDigits(2).Text=LGA3", "CityDigits(3)", "CityDigits(3).Text=EWR2", "PaxFacilityCharge=True",
                   "Text=XF"}));
}

TEST_F(AnyPFCTest, FilledTwiceReplacesItsDigitsOnlyByOthersAndResetsNoFlag) {
  Fill({2888, u"first", {{2833, u"", {{2889, u"JFK4.5"}, {2889, u"LGA3"}}}}});
  EXPECT_EQ(FilledFrom({2891, u"second", {{2834, u""}}}),
            (Texts{"DomesticUSFlight=True", "CityDigits(1)", "CityDigits(1).Text=JFK4.5", "CityDigits(2)",
                   "CityDigits(2).Text=LGA3", "PaxFacilityCharge=True", "Text=second"}));
  EXPECT_EQ(FilledFrom({2891, u"third", {{2834, u"", {{2892, u"BOS1"}}}}}),
            (Texts{"DomesticUSFlight=True", "CityDigits(1)", "CityDigits(1).Text=BOS1", "PaxFacilityCharge=True",
                   "Text=third"}));
}

TEST_F(AnyPFCTest, KeepsTheDomesticFlagThatACallerPuts) {
  Fill({2891, u"ZP"});
  PutDomesticUSFlight(false);
  EXPECT_EQ(testing::Contents(*record_), Texts{"Text=ZP"});
  PutDomesticUSFlight(true);
  EXPECT_EQ(testing::Contents(*record_), (Texts{"DomesticUSFlight=True", "Text=ZP"}));
}

TEST_F(AnyPFCTest, KeepsTheDomesticFlagThatACallerPutsOnAnyKind) {
  Fill({2883, u"XT"});
  PutDomesticUSFlight(true);
  EXPECT_EQ(testing::Contents(*record_), (Texts{"DomesticUSFlight=True", "CombinedTax=True", "Text=XT"}));
}

const Tree kCharge =
    Tree{2888, u"XFJFK4.5", {{2834, u"?"}, {2833, u"JFK4.5", {{5, u"?"}, {2889, u"JFK4.5", {{2789, u"JFK"}}}}}}}
        .WithError(u"col 2");

const Story kChargeStory = Tell(
    {Writes(u"Beginning of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData"),
     Asks(1, "Text 2888 => Text=XFJFK4.5, ErrorText 2888 => ErrorText=col 2, TypeId 2888 => PaxFacilityCharge=True"),
     Asks(1, "Children 2888, Next 2888, TypeId 2834, Next 2888, TypeId 2833"),
     Asks(2, "Children 2833, Next 2833, TypeId 5, Next 2833, TypeId 2889"),
     Writes(u"Beginning of FillWithData (in CityDigit) Function", u"CityDigit.FillWithData"),
     Asks(3, "Text 2889, ErrorText 2889, Children 2889, Next 2889, TypeId 2789, Text 2789, Next 2889"),
     Writes(u"End of FillWithData (in CityDicgit) Function", u"CityDigit.FillWithData"), Asks(2, "Next 2833"),
     Writes(u"End of BuildCityDigits (in AnyPFC) Function", u"AnyPFC.BuildCityDigits"), Asks(1, "Next 2888"),
     Sets({"CityDigits(1)", "CityDigits(1).CityCode=JFK", "CityDigits(1).Text=JFK4.5"}),
     Writes(u"End of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData")});

TEST_F(AnyPFCTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kCharge, kChargeStory); }

TEST_F(AnyPFCTest, StopsWhereACallFailsAndDoesNotShowTheDigitsReadSoFar) {
  ExpectStoryToStopAtEveryFailure(kCharge, kChargeStory);
}

}  // namespace
}  // namespace qorltst
