// Tests of the end of a fare calculation line.
#include <gtest/gtest.h>

#include <algorithm>

#include "farecalc/EndLine.h"
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

class EndLineTest : public testing::RecordTest<EndLine> {};

TEST_F(EndLineTest, IsEmptyUntilFilledAndItsChargesAreNotAbsent) {
  EXPECT_EQ(testing::Contents(*record_), Texts());
  EXPECT_EQ(testing::CountOf(*record_, u"AnyPFCs"), 0);
}

TEST_F(EndLineTest, WithoutChargesHasAnEmptyCollection) {
  EXPECT_EQ(FilledFrom(Tree{2880, u"NUC100.00END"}.WithError(u"e")), (Texts{"Text=NUC100.00END", "ErrorText=e"}));
  EXPECT_EQ(testing::CountOf(*record_, u"AnyPFCs"), 0);
}

TEST_F(EndLineTest, TakesTheEndMarkerAndItsCharges) {
  EXPECT_EQ(StoredBelow(2880, {}), (Texts{"2774 EndId=True", "2829 AnyPFCs(1)", "2829 AnyPFCs(1).Text=below"}));
}

TEST_F(EndLineTest, TakesTheRateOfExchangeFromItsGroup) {
  EXPECT_EQ(StoredBelow(2880, {2895}), Texts{"2775 RateOfExchange=text"});
}

TEST_F(EndLineTest, TakesTheTotalFromItsGroup) {
  EXPECT_EQ(StoredBelow(2880, {2897}), (Texts{"2716 TotalFareCurrencyCode=text", "2717 TotalFareAmount=text"}));
}

TEST_F(EndLineTest, TakesTheFareAfterNucFromItsGroupInsideTheTotal) {
  EXPECT_EQ(StoredBelow(2880, {2897, 2894}),
            (Texts{"92 FareAfterNucLowCombCityCode=text", "147 FareAfterNucCurrencyCode=text",
                   "2706 FareAfterNucFareBasis=text", "2717 FareAfterNucAmount=text", "2786 FareAfterNucCityPair1=text",
                   "2787 FareAfterNucCityPair2=text"}));
}

TEST_F(EndLineTest, IgnoresTheFareAfterNucOutsideTheTotal) {
  EXPECT_EQ(StoredBelow(2880, {2894}), Texts());
  EXPECT_EQ(StoredBelow(2880, {2894, 2897}), Texts());
}

TEST_F(EndLineTest, ShowsItsFreeFlowNowhere) {
  EXPECT_EQ(FilledFrom({2880, u"", {{2881, u"", {{868, u"", {{2779, u"PSGR MAY PAY"}, {2779, u"MORE"}}}}}}}), Texts());
}

TEST_F(EndLineTest, ReadsItsFreeFlowTwoLevelsBelowTheGroupAndNowhereElse) {
  Fill(
      {2880,
       u"",
       {{2881, u"", {{868, u"", {{2779, u"PSGR MAY PAY"}}}, {2779, u"?"}}}, {868, u"", {{2779, u"?"}}}, {2779, u"?"}}});
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "Text 2779"), 1);
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "TypeId 2779"), 3);
}

TEST_F(EndLineTest, WithTwoEndMarkersHasTheEnd) {
  EXPECT_EQ(FilledFrom({2880, u"", {{2774, u"END"}, {2774, u"END"}}}), Texts{"EndId=True"});
}

TEST_F(EndLineTest, FilledAgainWithoutTheMarkerHasNoEndAndKeepsTheRest) {
  Fill({2880, u"first", {{2774, u"END"}, {2895, u"", {{2775, u"0.92"}}}, {2829, u"", {{2883, u"XT"}}}}});
  EXPECT_EQ(FilledFrom({2880, u"second"}), (Texts{"AnyPFCs(1)", "AnyPFCs(1).CombinedTax=True", "AnyPFCs(1).Text=XT",
                                                  "RateOfExchange=0.92", "Text=second"}));
}

TEST_F(EndLineTest, FilledAgainWithChargesReplacesTheEarlierOnes) {
  Fill({2880, u"", {{2829, u"", {{2883, u"XT"}, {2882, u"PD"}}}}});
  EXPECT_EQ(FilledFrom({2880, u"", {{2829, u"", {{2891, u"ZP"}}}}}),
            (Texts{"AnyPFCs(1)", "AnyPFCs(1).DomesticUSFlight=True", "AnyPFCs(1).Text=ZP"}));
}

TEST_F(EndLineTest, MakesOneChargeOfEachChildOfAnyTypeInOrder) {
  EXPECT_EQ(FilledFrom({2880, u"", {{2829, u"", {{2883, u"XT"}, {7777, u"?"}, {2888, u"XF"}}}}}),
            (Texts{"AnyPFCs(1)", "AnyPFCs(1).CombinedTax=True", "AnyPFCs(1).Text=XT", "AnyPFCs(2)", "AnyPFCs(2).Text=?",
                   "AnyPFCs(3)", "AnyPFCs(3).PaxFacilityCharge=True", "AnyPFCs(3).Text=XF"}));
}

TEST_F(EndLineTest, GathersTheChargesOfAllItsGroups) {
  EXPECT_EQ(FilledFrom({2880, u"", {{2829, u"", {{1, u"a"}}}, {2829, u""}, {2829, u"", {{1, u"b"}}}}}),
            (Texts{"AnyPFCs(1)", "AnyPFCs(1).Text=a", "AnyPFCs(2)", "AnyPFCs(2).Text=b"}));
}

TEST_F(EndLineTest, WithATotalAloneHasNoFareAfterNuc) {
  EXPECT_EQ(FilledFrom({2880, u"", {{2897, u"", {{2716, u"NUC"}, {2717, u"100.00"}}}}}),
            (Texts{"TotalFareCurrencyCode=NUC", "TotalFareAmount=100.00"}));
}

TEST_F(EndLineTest, KeepsTheLastOfEachField) {
  EXPECT_EQ(FilledFrom({2880,
                        u"",
                        {{2897, u"", {{2717, u"1"}, {2717, u"2"}, {2894, u"", {{92, u"PAR"}, {92, u"LON"}}}}},
                         {2897, u"", {{2717, u"3"}, {2894, u"", {{92, u"ROM"}}}}},
                         {2895, u"", {{2775, u"4"}, {2775, u"5"}}}}}),
            (Texts{"FareAfterNucLowCombCityCode=ROM", "RateOfExchange=5", "TotalFareAmount=3"}));
}

const Tree kEnd = Tree{
    2880,
    u"NUC100.00END ROE0.92XT",
    {{2897, u"", {{2716, u"NUC"}, {2717, u"100.00"}, {2894, u"", {{2786, u"PAR"}, {1, u"?"}}}}},
     {2774, u"END"},
     {2895, u"", {{2775, u"0.92"}}},
     {2829, u"", {{2883, u"XT"}}},
     {2881, u"", {{868, u"", {{2779, u"FREE"}, {2778, u"?"}}}}},
     {9, u"?"}}}.WithError(u"col 4");

const Story kEndStory = Tell(
    {Writes(u"Beginning of FillWithData (in EndLine) Function", u"FareCalculation.EndLine"),
     Asks(0, "Text 2880 => Text=NUC100.00END ROE0.92XT, ErrorText 2880 => ErrorText=col 4"),
     Asks(1, "Children 2880, Next 2880, TypeId 2897, Children 2897, Next 2897, TypeId 2716"),
     Asks(1, "Text 2716 => TotalFareCurrencyCode=NUC, Next 2897, TypeId 2717, Text 2717 => TotalFareAmount=100.00"),
     Asks(1, "Next 2897, TypeId 2894, Children 2894, Next 2894, TypeId 2786"),
     Asks(1, "Text 2786 => FareAfterNucCityPair1=PAR, Next 2894, TypeId 1, Next 2894, Next 2897"),
     Asks(1, "Next 2880, TypeId 2774 => EndId=True"),
     Asks(1, "Next 2880, TypeId 2895, Children 2895, Next 2895, TypeId 2775, Text 2775 => RateOfExchange=0.92"),
     Asks(1, "Next 2895, Next 2880, TypeId 2829"),
     Asks(2, "Children 2829, Next 2829"),
     Writes(u"Beginning of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData"),
     Asks(3, "Text 2883, ErrorText 2883, TypeId 2883"),
     Writes(u"End of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData"),
     Asks(2, "Next 2829"),
     Writes(u"End of BuildAnyPFC (in EndLine) Function", u"FareCalculation.EndLine"),
     Asks(1, "Next 2880, TypeId 2881"),
     Asks(2, "Children 2881, Next 2881, TypeId 868, Children 868, Next 868, TypeId 2779, Text 2779"),
     Asks(2, "Next 868, TypeId 2778, Next 868, Next 2881"),
     Writes(u"End of BuildFreeFlow (in EndLine) Function", u"FareCalculation.EndLine"),
     Asks(1, "Next 2880, TypeId 9, Next 2880"),
     Sets({"AnyPFCs(1)", "AnyPFCs(1).CombinedTax=True", "AnyPFCs(1).Text=XT"}),
     Writes(u"End of FillWithData (in EndLine) Function", u"FareCalculation.EndLine")});

TEST_F(EndLineTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kEnd, kEndStory); }

TEST_F(EndLineTest, StopsWhereACallFailsAndItsOwnTextsAreUnderNoTrap) {
  ExpectStoryToStopAtEveryFailure(kEnd, kEndStory);
}

TEST_F(EndLineTest, KeepsItsEndMarkerWhenItsTextsFail) {
  Fill({2880, u"first", {{2774, u"END"}}});
  toolkit_->FailAt(2, RuntimeError(5));
  EXPECT_EQ(FailureOf({2880, u"second"}), "0x00000005 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), (Texts{"EndId=True", "Text=second"}));
}

TEST_F(EndLineTest, HasNoEndMarkerWhenItsChildrenFail) {
  Fill({2880, u"first", {{2774, u"END"}}});
  toolkit_->FailAt(3, RuntimeError(5));
  EXPECT_EQ(FailureOf({2880, u"second"}), "0x80040005 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), Texts{"Text=second"});
}

}  // namespace
}  // namespace qorltst
