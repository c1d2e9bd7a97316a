// Tests of a fare, filled from a whole fare node or piece by piece. See ExtraSeatTest.cpp for an owner of the pieces.
#include <gtest/gtest.h>

#include "farecalc/Fare.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Entry;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::TraceEntry;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class FareTest : public testing::RecordTest<Fare> {
 protected:
  /// Has the fare built by one of its build operations.
  template <void (Fare::*Build)(toolkit::ParseNode&)>
  Texts BuiltFrom(Tree node) {
    (static_cast<Fare&>(*record_).*Build)(*toolkit_->Node(std::move(node)));
    return testing::Contents(*record_);
  }
};

TEST_F(FareTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2898, u"M120.00"}.WithError(u"col 3")), (Texts{"Text=M120.00", "ErrorText=col 3"}));
}

TEST_F(FareTest, IsEmptyUntilFilled) { EXPECT_EQ(testing::Contents(*record_), Texts()); }

TEST_F(FareTest, TakesTheseTypesAndNoOthers) {
  EXPECT_EQ(StoredBelow(2898, {}), (Texts{"2717 Amount=text", "2899 LessId=True"}));
}

TEST_F(FareTest, TakesTheAmountToSubtractFromTheLessGroupOnly) {
  EXPECT_EQ(StoredBelow(2898, {2899}), Texts{"2771 AmountToSub=text"});
}

TEST_F(FareTest, TakesTheStopOversFromTheirGroupOnly) {
  EXPECT_EQ(StoredBelow(2898, {2903}), (Texts{"2764 StopOverChargeValue=text", "2767 NumberStopAllowed=text"}));
}

TEST_F(FareTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({2898,
                        u"",
                        {{2899, u"", {{2903, u"", {{2764, u"1"}, {2767, u"2"}}}, {2717, u"3"}}},
                         {2903, u"", {{2899, u"", {{2771, u"4"}}}, {2771, u"5"}}},
                         {7777, u"", {{2717, u"6"}}}}}),
            Texts{"LessId=True"});
}

TEST_F(FareTest, IsLessAlsoWithoutAnAmountToSubtract) {
  EXPECT_EQ(FilledFrom({2898, u"", {{2899, u"LESS"}}}), Texts{"LessId=True"});
}

TEST_F(FareTest, WithTheNumberOfStopsAloneHasNoStopOverCharge) {
  EXPECT_EQ(FilledFrom({2898, u"", {{2903, u"2S", {{2767, u"2"}}}}}), Texts{"NumberStopAllowed=2"});
}

TEST_F(FareTest, KeepsTheLastAmount) {
  EXPECT_EQ(FilledFrom({2898, u"", {{2717, u"100.00"}, {2717, u"120.00"}}}), Texts{"Amount=120.00"});
}

TEST_F(FareTest, KeepsTheLastOfEachFieldOverRepeatedGroups) {
  EXPECT_EQ(FilledFrom({2898,
                        u"",
                        {{2899, u"", {{2771, u"1"}, {2771, u"2"}}},
                         {2903, u"", {{2764, u"3"}, {2767, u"4"}}},
                         {2899, u"", {{2771, u"5"}}},
                         {2903, u"", {{2764, u"6"}}}}}),
            (Texts{"NumberStopAllowed=4", "StopOverChargeValue=6", "LessId=True", "AmountToSub=5"}));
}

TEST_F(FareTest, FilledTwiceKeepsWhatTheSecondFillDoesNotSet) {
  Fill({2898, u"first", {{2717, u"100.00"}, {2899, u"", {{2771, u"5.00"}}}}});
  EXPECT_EQ(FilledFrom({2898, u"second", {{2717, u"120.00"}}}),
            (Texts{"Text=second", "LessId=True", "AmountToSub=5.00", "Amount=120.00"}));
}

const Tree kFare = Tree{
    2898,
    u"M120.00LESS20.00 2S50.00",
    {{2717, u"120.00"},
     {2899, u"LESS20.00", {{2771, u"20.00"}, {147, u"EUR"}}},
     {2903, u"2S50.00", {{2764, u"50.00"}, {2767, u"2"}}},
     {147, u"EUR"}}}.WithError(u"col 3");

const Story kFareStory = Tell(
    {Asks(1, "Text 2898 => Text=M120.00LESS20.00 2S50.00, ErrorText 2898 => ErrorText=col 3"),
     Writes(u"Beginning of FillWithData (in Fare) Function", u"Fare.FillWithData"),
     Asks(1, "Children 2898, Next 2898, TypeId 2717, Text 2717 => Amount=120.00"),
     Asks(1, "Next 2898, TypeId 2899 => LessId=True, Children 2899, Next 2899, TypeId 2771"),
     Asks(1, "Text 2771 => AmountToSub=20.00, Next 2899, TypeId 147, Next 2899"),
     Asks(1, "Next 2898, TypeId 2903, Children 2903, Next 2903, TypeId 2764, Text 2764 => StopOverChargeValue=50.00"),
     Asks(1, "Next 2903, TypeId 2767, Text 2767 => NumberStopAllowed=2, Next 2903"),
     Asks(1, "Next 2898, TypeId 147, Next 2898"),
     Writes(u"End of FillWithData (in Fare) Function", u"Fare.FillWithData")});

TEST_F(FareTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kFare, kFareStory); }

TEST_F(FareTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kFare, kFareStory); }

TEST_F(FareTest, TakesItsCurrencyFromTheChildrenOfTheNodeThatItsOwnerPasses) {
  EXPECT_EQ(BuiltFrom<&Fare::BuildCurrency>({2879, u"x", {{147, u"EUR"}, {2717, u"1"}, {147, u"USD"}}}),
            Texts{"CurrencyCode=USD"});
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{TraceEntry(u"Beginning of BuildCurrency (in fare) function", u"Fare.BuildCurrency"),
                                TraceEntry(u"End of BuildCurrency (in Fare) Function", u"Fare.BuildCurrency")}));
  EXPECT_EQ(toolkit_->calls, (Texts{"Children 2879", "Next 2879", "TypeId 147", "Text 147", "Next 2879", "TypeId 2717",
                                    "Next 2879", "TypeId 147", "Text 147", "Next 2879"}));
}

TEST_F(FareTest, TakesItsAmountFromTheNodeItselfAndReadsNoChildren) {
  EXPECT_EQ(BuiltFrom<&Fare::BuildFare>({2717, u"75.00", {{2717, u"1"}}}), Texts{"Amount=75.00"});
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{TraceEntry(u"Beginning of BuildFare (in fare) function", u"Fare.BuildFare"),
                                TraceEntry(u"End of BuildFare (in Fare) Function", u"Fare.BuildFare")}));
  EXPECT_EQ(toolkit_->calls, Texts{"Text 2717"});
}

TEST_F(FareTest, BuiltFromALessGroupIsLessAndKeepsTheLastAmountToSubtract) {
  EXPECT_EQ(BuiltFrom<&Fare::BuildLessFare>({2899, u"x", {{2771, u"5.00"}, {2717, u"1"}, {2771, u"7.00"}}}),
            (Texts{"LessId=True", "AmountToSub=7.00"}));
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{TraceEntry(u"Beginning of BuildLessFare (in fare) function", u"Fare.BuildLessFare"),
                                TraceEntry(u"End of BuildLessFare (in Fare) function", u"Fare.BuildLessFare")}));
}

TEST_F(FareTest, BuiltFromALessGroupIsLessBeforeTheChildrenAreRead) {
  EXPECT_EQ(BuiltFrom<&Fare::BuildLessFare>({2899, u"LESS"}), Texts{"LessId=True"});
  toolkit_->FailAt(1, RuntimeError(5));
  record_ = Make<Fare>(*toolkit_);
  EXPECT_THROW(BuiltFrom<&Fare::BuildLessFare>({2899, u"LESS"}), RuntimeError);
  EXPECT_EQ(testing::Contents(*record_), Texts{"LessId=True"});
}

}  // namespace
}  // namespace qorltst
