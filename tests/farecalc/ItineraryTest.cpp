// Tests of what a fare component takes from its node. Its calls and lines are in ItineraryStoryTest.cpp.
#include <gtest/gtest.h>

#include "farecalc/Itinerary.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::CountOf;
using testing::Tree;
using Texts = std::vector<std::string>;

class ItineraryTest : public testing::RecordTest<Itinerary> {};

TEST_F(ItineraryTest, IsEmptyUntilFilledAndItsCollectionsAreNotAbsent) {
  EXPECT_EQ(testing::Contents(*record_), Texts());
  for (const char16_t* const name :
       {u"AnySymbols", u"ItineraryCompositeElements", u"OtherSurcharges", u"MileageEqualizationRules"}) {
    EXPECT_EQ(CountOf(*record_, name), 0);
  }
}

TEST_F(ItineraryTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{889, u"QX ROM"}.WithError(u"e")), (Texts{"Text=QX ROM", "ErrorText=e"}));
}

TEST_F(ItineraryTest, WithCarrierAndCityHasNothingElse) {
  EXPECT_EQ(FilledFrom({889, u"", {{2754, u"QX"}, {2763, u"ROM"}}}),
            (Texts{"ItineraryCarrierCode=QX", "CityCode=ROM"}));
}

TEST_F(ItineraryTest, TakesTheseTypesAndNoOthers) {
  EXPECT_EQ(StoredBelow(889, {}),
            (Texts{"2754 ItineraryCarrierCode=text", "2763 CityCode=text", "2770 ExtraMileageAllowanceId=text",
                   "2822 AnySymbols(1)", "2823 OtherSurcharges(1)", "2823 OtherSurcharges(1).Text=below",
                   "2907 0x8004005B QorlTST"}));
}

TEST_F(ItineraryTest, TakesItsFareFromTheFareGroup) {
  EXPECT_EQ(StoredBelow(889, {2898}), (Texts{"2717 FareAmount=text", "2899 FareLessId=True"}));
  EXPECT_EQ(StoredBelow(889, {2898, 2899}), Texts{"2771 FareAmountToSub=text"});
}

TEST_F(ItineraryTest, TellsTheStopOversOfItsFareFromItsOwn) {
  EXPECT_EQ(StoredBelow(889, {2898, 2903}),
            (Texts{"2764 FareStopOverChargeValue=text", "2767 FareNumberStopAllowed=text"}));
  EXPECT_EQ(StoredBelow(889, {2903}), (Texts{"2764 StopOverChargeValue=text", "2767 StopOverNumberStopAllowed=text"}));
}

TEST_F(ItineraryTest, TakesTheMileageItem) {
  EXPECT_EQ(StoredBelow(889, {2902}), (Texts{"2765 InclusiveTourFare=True", "2766 BulkTourFare=True",
                                             "2768 MileagePercentage=text", "2769 MileageItemId=True"}));
}

TEST_F(ItineraryTest, TakesItsPointsFromTheirGroups) {
  EXPECT_EQ(StoredBelow(889, {2900}), Texts{"92 FictitiousCode=text"});
  EXPECT_EQ(StoredBelow(889, {2906}), Texts{"92 LowestCombinationCityCode=text"});
  EXPECT_EQ(StoredBelow(889, {2904}), (Texts{"93 FareHigherClass=text", "1130 FareHigherCityPair=text"}));
}

TEST_F(ItineraryTest, MakesItsRulesOfTheItemsOfTheirGroup) {
  EXPECT_EQ(StoredBelow(889, {2824}),
            (Texts{"2901 MileageEqualizationRules(1)", "2901 MileageEqualizationRules(1).Text=text"}));
}

TEST_F(ItineraryTest, MakesItsCompositeElementsThreeLevelsBelow) {
  EXPECT_EQ(StoredBelow(889, {2820}), Texts());
  EXPECT_EQ(StoredBelow(889, {2820, 2873}),
            (Texts{"2825 ItineraryCompositeElements(1)", "2825 ItineraryCompositeElements(1).Text=below"}));
}

TEST_F(ItineraryTest, HandsEachSymbolNodeToOneSymbol) {
  EXPECT_EQ(
      StoredBelow(889, {2822}),
      (Texts{"2756 AnySymbols(1).OtherSymbol=text", "2757 AnySymbols(1).ExtraMileageRoutingPoint=text",
             "2758 AnySymbols(1).StopOverNotAllowed=text", "2759 AnySymbols(1).ReducedMileageRoutingPoint=text",
             "2760 AnySymbols(1).TicketedPointNotInMileage=text", "2761 AnySymbols(1).GapInRoutinNotInMileage=text",
             "2762 AnySymbols(1).GapInRoutingIncludedInMileage=text"}));
}

TEST_F(ItineraryTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({889,
                        u"",
                        {{92, u"PAR"},
                         {93, u"C"},
                         {2717, u"1"},
                         {2899, u"", {{2771, u"2"}}},
                         {2873, u"", {{2825, u"", {{1, u"?"}}}}},
                         {2825, u"", {{1, u"?"}}},
                         {2901, u"", {{92, u"PAR"}}},
                         {2902, u"", {{2903, u"", {{2764, u"3"}}}}},
                         {2820, u"", {{2825, u"", {{1, u"?"}}}, {2873, u"", {{2873, u"", {{2825, u""}}}}}}}}}),
            Texts());
}

TEST_F(ItineraryTest, MakesNoSymbolOfANodeWithoutChildrenAndOneOfANodeWithMany) {
  EXPECT_EQ(FilledFrom({889, u"", {{2822, u"X"}, {2822, u"Y", {{2758, u"X"}, {2756, u"Y"}, {5, u"?"}}}}}),
            (Texts{"AnySymbols(1)", "AnySymbols(1).OtherSymbol=Y", "AnySymbols(1).StopOverNotAllowed=X"}));
}

TEST_F(ItineraryTest, MakesOneSurchargeOfEachChildOfAnyType) {
  EXPECT_EQ(FilledFrom({889,
                        u"",
                        {{2823, u"Q", {{2764, u"25.00"}, {7777, u"Q30.00", {{2764, u"30.00"}}}}},
                         {2823, u"none"},
                         {2823, u"Q", {{2823, u"Q5"}}}}}),
            (Texts{"OtherSurcharges(1)", "OtherSurcharges(1).Text=25.00", "OtherSurcharges(2)",
                   "OtherSurcharges(2).OtherSurchargeValue=30.00", "OtherSurcharges(2).Text=Q30.00",
                   "OtherSurcharges(3)", "OtherSurcharges(3).Text=Q5"}));
}

TEST_F(ItineraryTest, GathersItsRulesAndCompositeElementsOverAllGroups) {
  EXPECT_EQ(
      FilledFrom({889,
                  u"",
                  {{2824, u"", {{2901, u"a"}, {5, u"?"}, {2901, u"b"}}},
                   {2820, u"", {{2873, u"", {{2825, u"", {{1, u"c"}}}, {2825, u"", {{2, u"d"}}}}}}},
                   {2824, u"", {{2901, u"e"}}},
                   {2820, u"", {{2873, u""}, {2873, u"", {{2825, u"", {{3, u"f"}}}}}}}}}),
      (Texts{"ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=c", "ItineraryCompositeElements(2)",
             "ItineraryCompositeElements(2).Text=d", "ItineraryCompositeElements(3)",
             "ItineraryCompositeElements(3).Text=f", "MileageEqualizationRules(1)",
             "MileageEqualizationRules(1).Text=a", "MileageEqualizationRules(2)", "MileageEqualizationRules(2).Text=b",
             "MileageEqualizationRules(3)", "MileageEqualizationRules(3).Text=e"}));
}

TEST_F(ItineraryTest, IsNoLongerMarkedAfterALaterMileageItemWithoutTheMarkerAndKeepsTheTourFlag) {
  const Tree first{2902, u"", {{2765, u"IT"}, {2769, u"M"}}};
  EXPECT_EQ(FilledFrom({889, u"", {first}}), (Texts{"InclusiveTourFare=True", "MileageItemId=True"}));
  EXPECT_EQ(FilledFrom({889, u"", {first, {2902, u"", {{2768, u"15"}}}}}),
            (Texts{"InclusiveTourFare=True", "MileagePercentage=15"}));
}

TEST_F(ItineraryTest, StaysMarkedWithoutAnotherMileageItem) {
  Fill({889, u"", {{2902, u"", {{2769, u"M"}, {2766, u"BT"}}}}});
  EXPECT_EQ(FilledFrom({889, u""}), (Texts{"BulkTourFare=True", "MileageItemId=True"}));
}

TEST_F(ItineraryTest, KeepsTheSecondOfTwoTexts) {
  EXPECT_EQ(FilledFrom({889,
                        u"",
                        {{2906, u"", {{92, u"PAR"}, {92, u"LON"}}},
                         {2900, u"", {{92, u"PAR"}, {92, u"ROM"}}},
                         {2754, u"QX"},
                         {2754, u"ZZ"},
                         {2903, u"", {{2764, u"1"}}},
                         {2903, u"", {{2764, u"2"}}}}}),
            (Texts{"FictitiousCode=ROM", "ItineraryCarrierCode=ZZ", "StopOverChargeValue=2",
                   "LowestCombinationCityCode=LON"}));
}

TEST_F(ItineraryTest, HasNoCurrencyWhateverItsNodeHolds) {
  const Tree currency{147, u"EUR"};
  EXPECT_EQ(FilledFrom({889, u"", {currency, {2898, u"", {currency, {2899, u"", {currency}}}}}}),
            Texts{"FareLessId=True"});
}

TEST_F(ItineraryTest, FilledTwiceReplacesACollectionOnlyByOneThatIsNotEmpty) {
  Fill({889,
        u"",
        {{2822, u"", {{2756, u"a"}}},
         {2823, u"", {{1, u"b"}, {1, u"c"}}},
         {2824, u"", {{2901, u"d"}}},
         {2820, u"", {{2873, u"", {{2825, u"", {{1, u"e"}}}}}}}}});
  EXPECT_EQ(FilledFrom({889, u"", {{2822, u""}, {2823, u"", {{1, u"f"}}}, {2824, u""}, {2820, u""}}}),
            (Texts{"AnySymbols(1)", "AnySymbols(1).OtherSymbol=a", "ItineraryCompositeElements(1)",
                   "ItineraryCompositeElements(1).Text=e", "OtherSurcharges(1)", "OtherSurcharges(1).Text=f",
                   "MileageEqualizationRules(1)", "MileageEqualizationRules(1).Text=d"}));
}

TEST_F(ItineraryTest, TakesItsGlobalRoutingFromTheBufferOfTheFirstIndicatorFound) {
  EXPECT_EQ(
      FilledFrom(
          {889,
           u"",
           {{2907, u"EH", {{1, u"", {Tree{2755, u"text"}.WithBuffer(u"EH")}}, Tree{2755, u""}.WithBuffer(u"AT")}}}}),
      Texts{"GlobalRoutingId=EH"});
  EXPECT_EQ(toolkit_->calls, (Texts{"Text 889", "ErrorText 889", "Children 889", "Next 889", "TypeId 2907",
                                    "FindNode 2755", "Buffer 2755", "Next 889"}));
}

TEST_F(ItineraryTest, WithoutAnIndicatorInItsGlobalRoutingFailsAndKeepsWhatWasSetButNoCollection) {
  EXPECT_EQ(FailureOf({889, u"QX ROM", {{2754, u"QX"}, {2822, u"", {{2758, u"X"}}}, {2907, u"EH"}, {2763, u"ROM"}}}),
            "0x8004005B QorlTST");
  EXPECT_EQ(testing::Contents(*record_), (Texts{"Text=QX ROM", "ItineraryCarrierCode=QX"}));
  EXPECT_EQ(toolkit_->log.back().message, u"End of BuildAnySymbolList (in Itinerary) Function");
}

TEST_F(ItineraryTest, WithAnIndicatorThatHasNoBufferFails) {
  EXPECT_EQ(FailureOf({889, u"", {{2907, u"", {{2755, u"EH"}}}}}), "0x800401B6 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), Texts());
}

TEST_F(ItineraryTest, SeeksTheIndicatorBelowItsGlobalRoutingOnly) {
  EXPECT_EQ(FailureOf({889, u"", {Tree{2755, u""}.WithBuffer(u"EH"), {2907, u""}}}), "0x8004005B QorlTST");
}

}  // namespace
}  // namespace qorltst
