// Tests of an extra seat or cabin baggage, whose fare arrives in pieces.
#include <gtest/gtest.h>

#include "farecalc/ExtraSeat.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::ObjectOf;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class ExtraSeatTest : public testing::RecordTest<ExtraSeat> {};

TEST_F(ExtraSeatTest, HasNoFareUntilFilled) { EXPECT_EQ(ObjectOf(*record_, u"Fare"), nullptr); }

TEST_F(ExtraSeatTest, WithItsCodeAloneHasAnEmptyFare) {
  EXPECT_EQ(FilledFrom(Tree{2878, u"EXST", {{2772, u"EXST"}}}.WithError(u"e")),
            (Texts{"Text=EXST", "ErrorText=e", "ExtraSeatId=EXST"}));
  EXPECT_NE(ObjectOf(*record_, u"Fare"), nullptr);
}

TEST_F(ExtraSeatTest, WithoutChildrenHasAnEmptyFare) {
  EXPECT_EQ(FilledFrom({2878, u"EXST"}), Texts{"Text=EXST"});
  EXPECT_NE(ObjectOf(*record_, u"Fare"), nullptr);
}

TEST_F(ExtraSeatTest, TakesTheseTypesAndNoOthers) {
  EXPECT_EQ(StoredBelow(2878, {}), (Texts{"2717 Fare.Amount=text", "2772 ExtraSeatId=text", "2773 ExtraSeatId=text",
                                          "2828 CityCode=text", "2899 Fare.LessId=True"}));
}

TEST_F(ExtraSeatTest, TakesTheCurrencyFromTheChildrenOfItsGroup) {
  EXPECT_EQ(StoredBelow(2878, {2879}), Texts{"147 Fare.CurrencyCode=text"});
}

TEST_F(ExtraSeatTest, TakesTheAmountToSubtractFromTheChildrenOfTheLessGroup) {
  EXPECT_EQ(StoredBelow(2878, {2899}), Texts{"2771 Fare.AmountToSub=text"});
}

TEST_F(ExtraSeatTest, IgnoresAWholeFareNodeAndStopOvers) {
  EXPECT_EQ(FilledFrom({2878, u"", {{2898, u"", {{2717, u"1"}}}, {2903, u"", {{2764, u"2"}}}, {147, u"EUR"}}}),
            Texts());
}

TEST_F(ExtraSeatTest, HasOneFareOfAllItsPieces) {
  EXPECT_EQ(FilledFrom({2878, u"", {{2717, u"80.00"}, {2879, u"", {{147, u"EUR"}}}, {2899, u"", {{2771, u"10.00"}}}}}),
            (Texts{"Fare.LessId=True", "Fare.CurrencyCode=EUR", "Fare.AmountToSub=10.00", "Fare.Amount=80.00"}));
}

TEST_F(ExtraSeatTest, KeepsTheLastOfEachField) {
  EXPECT_EQ(FilledFrom({2878, u"", {{2772, u"EXST"}, {2773, u"CBBG"}, {2717, u"1"}, {2717, u"2"}}}),
            (Texts{"ExtraSeatId=CBBG", "Fare.Amount=2"}));
}

TEST_F(ExtraSeatTest, FilledTwiceHasANewFare) {
  Fill({2878, u"", {{2717, u"80.00"}, {2828, u"PAR"}}});
  EXPECT_EQ(FilledFrom({2878, u"second"}), (Texts{"Text=second", "CityCode=PAR"}));
}

const Tree kSeat = Tree{
    2878,
    u"EXST PAR EUR80.00",
    {{2772, u"EXST"},
     {2828, u"PAR"},
     {2879, u"EUR", {{147, u"EUR"}}},
     {2717, u"80.00", {{1, u"?"}}},
     {2899, u"LESS", {{2771, u"10.00"}}},
     {5, u"?"}}}.WithError(u"e");

const Story kSeatStory = Tell(
    {Writes(u"Beginning of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData"),
     Asks(1, "Text 2878 => Text=EXST PAR EUR80.00, ErrorText 2878 => ErrorText=e, Children 2878"),
     Asks(1,
          "Next 2878, TypeId 2772, Text 2772 => ExtraSeatId=EXST, Next 2878, TypeId 2828, Text 2828 => CityCode=PAR"),
     Asks(1, "Next 2878, TypeId 2879"), Writes(u"Beginning of BuildCurrency (in fare) function", u"Fare.BuildCurrency"),
     Asks(2, "Children 2879, Next 2879, TypeId 147, Text 147, Next 2879"),
     Writes(u"End of BuildCurrency (in Fare) Function", u"Fare.BuildCurrency"), Asks(1, "Next 2878, TypeId 2717"),
     Writes(u"Beginning of BuildFare (in fare) function", u"Fare.BuildFare"), Asks(2, "Text 2717"),
     Writes(u"End of BuildFare (in Fare) Function", u"Fare.BuildFare"), Asks(1, "Next 2878, TypeId 2899"),
     Writes(u"Beginning of BuildLessFare (in fare) function", u"Fare.BuildLessFare"),
     Asks(2, "Children 2899, Next 2899, TypeId 2771, Text 2771, Next 2899"),
     Writes(u"End of BuildLessFare (in Fare) function", u"Fare.BuildLessFare"),
     Asks(1, "Next 2878, TypeId 5, Next 2878"),
     Sets({"Fare.LessId=True", "Fare.CurrencyCode=EUR", "Fare.AmountToSub=10.00", "Fare.Amount=80.00"}),
     Writes(u"End of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData")});

TEST_F(ExtraSeatTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kSeat, kSeatStory); }

TEST_F(ExtraSeatTest, StopsWhereACallFailsAndDoesNotShowTheFareBuiltSoFar) {
  ExpectStoryToStopAtEveryFailure(kSeat, kSeatStory);
}

TEST_F(ExtraSeatTest, HasNoFareWhenItsFillFails) {
  toolkit_->FailAt(4, RuntimeError(5));
  EXPECT_EQ(FailureOf({2878, u""}), "0x80040005 QorlTST");
  EXPECT_EQ(ObjectOf(*record_, u"Fare"), nullptr);
}

TEST_F(ExtraSeatTest, KeepsItsEarlierFareWhenASecondFillFails) {
  Fill({2878, u"", {{2717, u"80.00"}}});
  toolkit_->FailAt(7, RuntimeError(5));
  EXPECT_EQ(FailureOf({2878, u"second", {{2717, u"90.00"}}}), "0x80040005 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), (Texts{"Text=second", "Fare.Amount=80.00"}));
}

}  // namespace
}  // namespace qorltst
