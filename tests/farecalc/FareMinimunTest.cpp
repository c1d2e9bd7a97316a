// Tests of a fare minimum check.
#include <gtest/gtest.h>

#include "farecalc/FareMinimun.h"
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

class FareMinimunTest : public testing::RecordTest<FareMinimun> {};

TEST_F(FareMinimunTest, HasNoFareUntilAFareIsMet) {
  EXPECT_EQ(ObjectOf(*record_, u"Fare"), nullptr);
  EXPECT_EQ(FilledFrom(Tree{2875, u"P PARROM", {{2784, u"PAR"}}}.WithError(u"e")),
            (Texts{"Text=P PARROM", "ErrorText=e", "CityPair1=PAR"}));
  EXPECT_EQ(ObjectOf(*record_, u"Fare"), nullptr);
}

TEST_F(FareMinimunTest, HasAFareAlsoOfAnEmptyFareNode) {
  EXPECT_EQ(FilledFrom({2875, u"", {{2898, u""}}}), Texts());
  EXPECT_NE(ObjectOf(*record_, u"Fare"), nullptr);
}

TEST_F(FareMinimunTest, TakesTheseTypesAndNoOthers) {
  EXPECT_EQ(StoredBelow(2875, {}), (Texts{"2706 FareBasis=text", "2781 FareId=text", "2782 FareId=text",
                                          "2784 CityPair1=text", "2785 CityPair2=text", "2898 Fare.Text=text"}));
}

TEST_F(FareMinimunTest, TakesTheLowestCombinationCityFromItsGroup) {
  EXPECT_EQ(StoredBelow(2875, {2906}), Texts{"92 LowestCombinationCityCode=text"});
}

TEST_F(FareMinimunTest, PassesTheWholeFareNodeToTheFare) {
  EXPECT_EQ(StoredBelow(2875, {2898}), (Texts{"2717 Fare.Amount=text", "2899 Fare.LessId=True"}));
}

TEST_F(FareMinimunTest, KeepsTheSecondLowestCombinationCity) {
  EXPECT_EQ(FilledFrom({2875, u"", {{2906, u"", {{92, u"PAR"}, {2763, u"?"}, {92, u"LON"}, {93, u"?"}}}}}),
            Texts{"LowestCombinationCityCode=LON"});
}

TEST_F(FareMinimunTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({2875, u"", {{92, u"PAR"}, {2717, u"1"}, {2906, u"", {{2906, u"", {{92, u"LON"}}}}}}}), Texts());
}

TEST_F(FareMinimunTest, KeepsTheLastOfEachField) {
  EXPECT_EQ(FilledFrom({2875, u"", {{2781, u"P"}, {2782, u"C"}, {2706, u"Y1"}, {2706, u"Y2"}}}),
            (Texts{"FareId=C", "FareBasis=Y2"}));
}

TEST_F(FareMinimunTest, ReplacesItsFareByANewOne) {
  EXPECT_EQ(FilledFrom({2875, u"", {{2898, u"", {{2717, u"1"}, {2899, u""}}}, {2898, u"", {{2717, u"2"}}}}}),
            Texts{"Fare.Amount=2"});
}

const Tree kCheck = Tree{
    2875,
    u"P Y1 PARROM 500.00",
    {{2781, u"P"},
     {2706, u"Y1"},
     {2784, u"PAR"},
     {2785, u"ROM"},
     {2898, u"500.00", {{2717, u"500.00"}}},
     {2906, u"", {{92, u"LON"}, {93, u"?"}}},
     {5, u"?"}}}.WithError(u"e");

const Story kCheckStory =
    Tell({Writes(u"Beginning of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData"),
          Asks(1, "Text 2875 => Text=P Y1 PARROM 500.00, ErrorText 2875 => ErrorText=e, Children 2875"),
          Asks(1, "Next 2875, TypeId 2781, Text 2781 => FareId=P, Next 2875, TypeId 2706, Text 2706 => FareBasis=Y1"),
          Asks(1, "Next 2875, TypeId 2784, Text 2784 => CityPair1=PAR"),
          Asks(1, "Next 2875, TypeId 2785, Text 2785 => CityPair2=ROM, Next 2875, TypeId 2898"),
          Asks(2, "Text 2898, ErrorText 2898"),
          Writes(u"Beginning of FillWithData (in Fare) Function", u"Fare.FillWithData"),
          Asks(2, "Children 2898, Next 2898, TypeId 2717, Text 2717, Next 2898"),
          Writes(u"End of FillWithData (in Fare) Function", u"Fare.FillWithData"),
          Sets({"Fare.Text=500.00", "Fare.Amount=500.00"}),
          Asks(1, "Next 2875, TypeId 2906, Children 2906, Next 2906, TypeId 92"),
          Asks(1, "Text 92 => LowestCombinationCityCode=LON, Next 2906, TypeId 93, Next 2906"),
          Asks(1, "Next 2875, TypeId 5, Next 2875"),
          Writes(u"End of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData")});

TEST_F(FareMinimunTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kCheck, kCheckStory); }

TEST_F(FareMinimunTest, StopsWhereACallFailsAndDoesNotShowHalfAFare) {
  ExpectStoryToStopAtEveryFailure(kCheck, kCheckStory);
}

TEST_F(FareMinimunTest, HasNoFareWhenItsFareNodeFails) {
  toolkit_->FailAt(7, RuntimeError(5));  // texts, children, next, type, and then the error text of the fare node
  EXPECT_EQ(FailureOf({2875, u"", {{2898, u"500.00"}}}), "0x00000006 QorlTST");
  EXPECT_EQ(ObjectOf(*record_, u"Fare"), nullptr);
}

}  // namespace
}  // namespace qorltst
