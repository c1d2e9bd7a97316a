// Tests of a higher class differential.
#include <gtest/gtest.h>

#include "farecalc/HigherClassDifferential.h"
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

class HigherClassDifferentialTest : public testing::RecordTest<HigherClassDifferential> {};

TEST_F(HigherClassDifferentialTest, HasAnEmptyFareAndNoPointsUntilFilled) {
  EXPECT_EQ(testing::Contents(*record_), Texts());
  EXPECT_NE(ObjectOf(*record_, u"Fare"), nullptr);
  EXPECT_EQ(testing::CountOf(*record_, u"FareHigherIntermediates"), 0);
}

TEST_F(HigherClassDifferentialTest, WithACityPairAloneKeepsTheFareOfItsCreation) {
  const Object* const fare = ObjectOf(*record_, u"Fare");
  EXPECT_EQ(FilledFrom(Tree{2877, u"D PARROM", {{2788, u"PARROM"}}}.WithError(u"e")),
            (Texts{"Text=D PARROM", "ErrorText=e", "CityPair=PARROM"}));
  EXPECT_EQ(ObjectOf(*record_, u"Fare"), fare);
}

TEST_F(HigherClassDifferentialTest, TakesTheCityPairAndTheFareAndNothingElse) {
  EXPECT_EQ(StoredBelow(2877, {}), (Texts{"2788 CityPair=text", "2898 Fare.Text=text"}));
}

TEST_F(HigherClassDifferentialTest, MakesPointsOfTheItemsOfTheirGroup) {
  EXPECT_EQ(StoredBelow(2877, {2827}),
            (Texts{"2904 FareHigherIntermediates(1)", "2904 FareHigherIntermediates(1).Text=text"}));
}

TEST_F(HigherClassDifferentialTest, TakesTheMileageItem) {
  EXPECT_EQ(StoredBelow(2877, {2902}), (Texts{"2765 InclusiveTourFare=True", "2766 BulkTourFare=True",
                                              "2768 MileagePercentage=text", "2769 MileageId=True"}));
}

TEST_F(HigherClassDifferentialTest, PassesTheWholeFareNodeToTheFare) {
  EXPECT_EQ(StoredBelow(2877, {2898}), (Texts{"2717 Fare.Amount=text", "2899 Fare.LessId=True"}));
  EXPECT_EQ(StoredBelow(2877, {2898, 2899}), Texts{"2771 Fare.AmountToSub=text"});
  EXPECT_EQ(StoredBelow(2877, {2898, 2903}),
            (Texts{"2764 Fare.StopOverChargeValue=text", "2767 Fare.NumberStopAllowed=text"}));
}

TEST_F(HigherClassDifferentialTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({2877,
                        u"",
                        {{2904, u"PARROM", {{1130, u"PARROM"}}},
                         {2827, u"", {{2827, u"", {{2904, u"?"}}}, {2788, u"?"}}},
                         {2902, u"", {{2902, u"", {{2769, u"?"}}}, {2767, u"?"}}},
                         {2717, u"?"}}}),
            Texts());
}

TEST_F(HigherClassDifferentialTest, IsNoLongerMarkedAfterASecondMileageItemWithoutTheMarker) {
  const Tree first{2902, u"", {{2769, u"M"}, {2768, u"15"}, {2765, u"IT"}, {2766, u"BT"}}};
  EXPECT_EQ(FilledFrom({2877, u"", {first}}),
            (Texts{"InclusiveTourFare=True", "BulkTourFare=True", "MileageId=True", "MileagePercentage=15"}));
  EXPECT_EQ(FilledFrom({2877, u"", {first, {2902, u"", {{2767, u"2"}}}}}),
            (Texts{"InclusiveTourFare=True", "BulkTourFare=True", "MileagePercentage=15"}));
}

TEST_F(HigherClassDifferentialTest, KeepsItsPointsInOrderAndSkipsOtherTypesBetween) {
  EXPECT_EQ(FilledFrom({2877, u"", {{2827, u"", {{2904, u"a"}, {1130, u"?"}, {2904, u"b"}}}}}),
            (Texts{"FareHigherIntermediates(1)", "FareHigherIntermediates(1).Text=a", "FareHigherIntermediates(2)",
                   "FareHigherIntermediates(2).Text=b"}));
}

TEST_F(HigherClassDifferentialTest, ReplacesItsPointsByThoseOfALaterGroupThatHasSome) {
  const Tree two{2827, u"", {{2904, u"a"}, {2904, u"b"}}};
  const Tree none{2827, u"", {{1130, u"?"}}};
  const Tree one{2827, u"", {{2904, u"c"}}};
  EXPECT_EQ(FilledFrom({2877, u"", {two, none, one, none}}),
            (Texts{"FareHigherIntermediates(1)", "FareHigherIntermediates(1).Text=c"}));
}

TEST_F(HigherClassDifferentialTest, ReplacesItsFareByThatOfASecondFareNode) {
  EXPECT_EQ(FilledFrom({2877, u"", {{2898, u"", {{2717, u"1"}, {2899, u""}}}, {2898, u"", {{2717, u"2"}}}}}),
            Texts{"Fare.Amount=2"});
}

const Tree kDifferential = Tree{
    2877,
    u"D PARROM M15.00",
    {{2788, u"PARROM"},
     {2827, u"", {{2904, u"PARLON", {{1130, u"PARLON"}}}, {1, u"?"}}},
     {2898, u"M15.00", {{2717, u"15.00"}}},
     {2902, u"", {{2765, u"?"}, {2768, u"15"}, {2769, u"?"}, {2767, u"?"}}},
     {2, u"?"}}}.WithError(u"e");

const Story kDifferentialStory = Tell(
    {Writes(u"Beginning of FillWithData (in HigherClassDifferential) Function",
            u"HigherClassDifferential.FillWithData"),
     Asks(1, "Text 2877 => Text=D PARROM M15.00, ErrorText 2877 => ErrorText=e, Children 2877"),
     Asks(1, "Next 2877, TypeId 2788, Text 2788 => CityPair=PARROM, Next 2877, TypeId 2827"),
     Writes(u"Beginning of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
            u"HigherClassDifferential.BuildFareHigherIntPoint"),
     Asks(2, "Children 2827, Next 2827, TypeId 2904"),
     Writes(u"Beginning of FillWithData (in FareHigherIntermediate) Function", u"FareHigherIntermediate.FillWithData"),
     Asks(3, "Text 2904, ErrorText 2904, Children 2904, Next 2904, TypeId 1130, Text 1130, Next 2904"),
     Writes(u"End of FillWithData (in FareHigherIntermediate) Function", u"FareHigherIntermediate.FillWithData"),
     Asks(2, "Next 2827, TypeId 1, Next 2827"),
     Sets({"FareHigherIntermediates(1)", "FareHigherIntermediates(1).CityPair=PARLON",
           "FareHigherIntermediates(1).Text=PARLON"}),
     Writes(u"End of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
            u"HigherClassDifferential.BuildFareHigherIntPoint"),
     Asks(1, "Next 2877, TypeId 2898"),
     Writes(u"Beginning of BuildFare (in HigherClassDifferential) Function", u"HigherClassDifferential.BuildFare"),
     Asks(3, "Text 2898, ErrorText 2898"),
     Writes(u"Beginning of FillWithData (in Fare) Function", u"Fare.FillWithData"),
     Asks(3, "Children 2898, Next 2898, TypeId 2717, Text 2717, Next 2898"),
     Writes(u"End of FillWithData (in Fare) Function", u"Fare.FillWithData"),
     Sets({"Fare.Text=M15.00", "Fare.Amount=15.00"}),
     Writes(u"End of BuildFare (in HigherClassDifferential) Function", u"HigherClassDifferential.BuildFare"),
     Asks(1, "Next 2877, TypeId 2902"),
     Writes(u"Beginning of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
     Asks(2, "Children 2902, Next 2902, TypeId 2765 => InclusiveTourFare=True, Next 2902, TypeId 2768"),
     Asks(2, "Text 2768 => MileagePercentage=15, Next 2902, TypeId 2769 => MileageId=True, Next 2902, TypeId 2767"),
     Asks(2, "Next 2902"),
     Writes(u"End of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
     Asks(1, "Next 2877, TypeId 2, Next 2877"),
     Writes(u"End of FillWithData (in HigherClassDifferential) Function", u"HigherClassDifferential.FillWithData")});

TEST_F(HigherClassDifferentialTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kDifferential, kDifferentialStory); }

TEST_F(HigherClassDifferentialTest, StopsWhereACallFailsAndDoesNotShowHalfAFareOrHalfItsPoints) {
  ExpectStoryToStopAtEveryFailure(kDifferential, kDifferentialStory);
}

TEST_F(HigherClassDifferentialTest, IsNoLongerMarkedWhenASecondMileageItemHasBegunAndFails) {
  toolkit_->FailAt(12, RuntimeError(5));  // the children of the second item
  EXPECT_EQ(FailureOf({2877, u"", {{2902, u"", {{2769, u"M"}}}, {2902, u""}}}), "0x00000006 QorlTST");
  EXPECT_EQ(toolkit_->calls.back(), "Children 2902");
  EXPECT_EQ(testing::Contents(*record_), Texts());
}

}  // namespace
}  // namespace qorltst
