// Tests of an item of a composite element. Its calls and lines are in ItineraryCompositeElementStoryTest.cpp.
#include <gtest/gtest.h>

#include <algorithm>

#include "farecalc/ItineraryCompositeElement.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::CountOf;
using testing::Tree;
using Texts = std::vector<std::string>;

/// The type of an item: any.
constexpr std::int32_t kItem = 5000;

class ItineraryCompositeElementTest : public testing::RecordTest<ItineraryCompositeElement> {};

TEST_F(ItineraryCompositeElementTest, IsEmptyUntilFilledAndItsCollectionsAreNotAbsent) {
  EXPECT_EQ(testing::Contents(*record_), Texts());
  EXPECT_EQ(CountOf(*record_, u"OtherSurcharges"), 0);
  EXPECT_EQ(CountOf(*record_, u"MileageEqualizationRules"), 0);
}

TEST_F(ItineraryCompositeElementTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{kItem, u"QX LYS"}.WithError(u"e")), (Texts{"Text=QX LYS", "ErrorText=e"}));
}

TEST_F(ItineraryCompositeElementTest, TakesTheseTypesAndNoOthersAndItsSymbolsAreAText) {
  EXPECT_EQ(StoredBelow(kItem, {}),
            (Texts{"2754 CarrierCode=text", "2763 CityCode=text", "2770 ExtraMileageAllowanceId=text",
                   "2822 ItinerarySymbol=text", "2823 OtherSurcharges(1)", "2823 OtherSurcharges(1).Text=text",
                   "2907 0x8004005B QorlTST"}));
}

TEST_F(ItineraryCompositeElementTest, TakesItsFareFromTheFareGroup) {
  EXPECT_EQ(StoredBelow(kItem, {2898}), (Texts{"2717 FareAmount=text", "2899 FareLessId=True"}));
  EXPECT_EQ(StoredBelow(kItem, {2898, 2899}), Texts{"2771 FareAmountToSub=text"});
}

TEST_F(ItineraryCompositeElementTest, TellsTheStopOversOfItsFareFromItsOwn) {
  EXPECT_EQ(StoredBelow(kItem, {2898, 2903}),
            (Texts{"2764 FareStopOverChargeValue=text", "2767 FareNumberStopAllowed=text"}));
  EXPECT_EQ(StoredBelow(kItem, {2903}), (Texts{"2764 StopOverChargeValue=text", "2767 NumberStopAllowed=text"}));
}

TEST_F(ItineraryCompositeElementTest, TakesTheMileageItem) {
  EXPECT_EQ(StoredBelow(kItem, {2902}), (Texts{"2765 InclusiveTourFare=True", "2766 BulkTourFare=True",
                                               "2768 MileageItemPercent=text", "2769 MileageId=True"}));
}

TEST_F(ItineraryCompositeElementTest, TakesItsPointsFromTheirGroups) {
  EXPECT_EQ(StoredBelow(kItem, {2900}), Texts{"92 FictitiousCode=text"});
  EXPECT_EQ(StoredBelow(kItem, {2906}), Texts{"92 LowestCombinationCityCode=text"});
  EXPECT_EQ(StoredBelow(kItem, {2904}), (Texts{"93 FareHigherClass=text", "1130 FareHigherCityPair=text"}));
}

TEST_F(ItineraryCompositeElementTest, MakesItsRulesOfTheItemsOfTheirGroup) {
  EXPECT_EQ(StoredBelow(kItem, {2824}),
            (Texts{"2901 MileageEqualizationRules(1)", "2901 MileageEqualizationRules(1).Text=text"}));
}

TEST_F(ItineraryCompositeElementTest, TakesTheValueOfASurchargeFromTheSurchargeNode) {
  EXPECT_EQ(StoredBelow(kItem, {2823}), Texts{"2764 OtherSurcharges(1).OtherSurchargeValue=text"});
}

TEST_F(ItineraryCompositeElementTest, HoldsNoCompositeElements) {
  EXPECT_EQ(FilledFrom({kItem, u"", {{2820, u"", {{2873, u"", {{2825, u"", {{1, u"?"}}}}}}}}}), Texts());
}

TEST_F(ItineraryCompositeElementTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({kItem,
                        u"",
                        {{92, u"PAR"},
                         {93, u"C"},
                         {2717, u"1"},
                         {2899, u"", {{2771, u"2"}}},
                         {2901, u"", {{92, u"PAR"}}},
                         {2902, u"", {{2903, u"", {{2764, u"3"}}}}},
                         {2904, u"", {{2908, u"", {{2780, u"C"}}}}}}}),
            Texts());
}

TEST_F(ItineraryCompositeElementTest, KeepsTheTextOfItsSymbolNodeAndReadsNoChildrenOfIt) {
  EXPECT_EQ(FilledFrom({kItem, u"", {{2822, u"X"}, {2822, u"X//", {{2758, u"?"}}}}}), Texts{"ItinerarySymbol=X//"});
  EXPECT_EQ(toolkit_->calls, (Texts{"Text 5000", "ErrorText 5000", "Children 5000", "Next 5000", "TypeId 2822",
                                    "Text 2822", "Next 5000", "TypeId 2822", "Text 2822", "Next 5000"}));
}

TEST_F(ItineraryCompositeElementTest, MakesNoSurchargeOfANodeWithoutChildrenAndOneOfANodeWithMany) {
  EXPECT_EQ(
      FilledFrom({kItem, u"", {{2823, u"?"}, {2823, u"Q25.00", {{2764, u"25.00"}, {7, u"?"}, {8, u"?"}}}}}),
      (Texts{"OtherSurcharges(1)", "OtherSurcharges(1).OtherSurchargeValue=25.00", "OtherSurcharges(1).Text=Q25.00"}));
}

TEST_F(ItineraryCompositeElementTest, FillsASurchargeFromItsNodeAsOftenAsTheNodeHasChildren) {
  Fill({kItem, u"", {{2823, u"Q25.00", {{2764, u"25.00"}, {7, u"?"}, {8, u"?"}}}}});
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "Text 2823"), 3);
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "Text 2764"), 3);
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "HasChildren 2823"), 1);
}

TEST_F(ItineraryCompositeElementTest, IsLessAsATextAfterALessGroupAndEmptyOtherwise) {
  EXPECT_EQ(FilledFrom({kItem, u"", {{2898, u"", {{2717, u"1"}}}}}), Texts{"FareAmount=1"});
  Fill({kItem, u"", {{2898, u"", {{2899, u""}}}}});
  EXPECT_EQ(testing::TextOf(*record_, u"FareLessId"), u"True");
}

TEST_F(ItineraryCompositeElementTest, IsNoLongerMarkedAfterALaterMileageItemWithoutTheMarkerAndKeepsTheTourFlags) {
  EXPECT_EQ(
      FilledFrom(
          {kItem, u"", {{2902, u"", {{2765, u"IT"}, {2766, u"BT"}, {2769, u"M"}}}, {2902, u"", {{2768, u"15"}}}}}),
      (Texts{"MileageItemPercent=15", "InclusiveTourFare=True", "BulkTourFare=True"}));
}

TEST_F(ItineraryCompositeElementTest, KeepsTheSecondOfTwoTexts) {
  EXPECT_EQ(FilledFrom({kItem,
                        u"",
                        {{2906, u"", {{92, u"PAR"}, {92, u"LON"}}},
                         {2900, u"", {{92, u"PAR"}, {92, u"ROM"}}},
                         {2754, u"QX"},
                         {2754, u"ZZ"}}}),
            (Texts{"LowestCombinationCityCode=LON", "CarrierCode=ZZ", "FictitiousCode=ROM"}));
}

TEST_F(ItineraryCompositeElementTest, HasNoCurrencyWhateverItsNodeHolds) {
  const Tree currency{147, u"EUR"};
  EXPECT_EQ(FilledFrom({kItem, u"", {currency, {2898, u"", {currency, {2899, u"", {currency}}}}}}),
            Texts{"FareLessId=True"});
}

TEST_F(ItineraryCompositeElementTest, FilledTwiceReplacesACollectionOnlyByOneThatIsNotEmpty) {
  Fill({kItem, u"", {{2823, u"a", {{1, u""}}}, {2823, u"b", {{1, u""}}}, {2824, u"", {{2901, u"c"}}}}});
  EXPECT_EQ(FilledFrom({kItem, u"", {{2823, u"d", {{1, u""}}}, {2824, u""}}}),
            (Texts{"OtherSurcharges(1)", "OtherSurcharges(1).Text=d", "MileageEqualizationRules(1)",
                   "MileageEqualizationRules(1).Text=c"}));
  EXPECT_EQ(FilledFrom({kItem, u"", {{2823, u"?"}, {2824, u"", {{2901, u"e"}}}}}),
            (Texts{"OtherSurcharges(1)", "OtherSurcharges(1).Text=d", "MileageEqualizationRules(1)",
                   "MileageEqualizationRules(1).Text=e"}));
}

TEST_F(ItineraryCompositeElementTest, TakesItsGlobalRoutingFromTheBufferOfTheFirstIndicatorFound) {
  EXPECT_EQ(
      FilledFrom({kItem, u"", {{2907, u"", {Tree{2755, u"?"}.WithBuffer(u"EH"), Tree{2755, u""}.WithBuffer(u"AT")}}}}),
      Texts{"GlobalRoutingId=EH"});
}

TEST_F(ItineraryCompositeElementTest, WithoutAnIndicatorInItsGlobalRoutingFailsAndKeepsWhatWasSetButNoCollection) {
  EXPECT_EQ(FailureOf({kItem, u"LYS", {{2763, u"LYS"}, {2824, u"", {{2901, u"E"}}}, {2907, u""}, {2754, u"QX"}}}),
            "0x8004005B QorlTST");
  EXPECT_EQ(testing::Contents(*record_), (Texts{"Text=LYS", "CityCode=LYS"}));
}

TEST_F(ItineraryCompositeElementTest, WithAnIndicatorThatHasNoBufferFails) {
  EXPECT_EQ(FailureOf({kItem, u"", {{2907, u"", {{2755, u"EH"}}}}}), "0x800401B6 QorlTST");
}

}  // namespace
}  // namespace qorltst
