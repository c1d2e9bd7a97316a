// Tests of the departure point of a fare calculation.
#include <gtest/gtest.h>

#include "farecalc/DepartureRoutingPoint.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class DepartureRoutingPointTest : public testing::RecordTest<DepartureRoutingPoint> {};

TEST_F(DepartureRoutingPointTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2870, u"PAR"}.WithError(u"col 1")), (Texts{"Text=PAR", "ErrorText=col 1"}));
}

TEST_F(DepartureRoutingPointTest, WithACityAloneHasNoDateAndIsNotRerouted) {
  EXPECT_EQ(FilledFrom({2870, u"", {{2752, u"PAR"}}}), Texts{"CityCode=PAR"});
}

TEST_F(DepartureRoutingPointTest, TakesTheCityFromTheNodeAndNothingElse) {
  EXPECT_EQ(StoredBelow(2870, {}), Texts{"2752 CityCode=text"});
}

TEST_F(DepartureRoutingPointTest, TakesTheDateOfADepartureGroupFromTheGeneralDateType) {
  EXPECT_EQ(StoredBelow(2870, {2871}), (Texts{"439 DepartureRoutingDate=text", "2753 CityCode=text"}));
}

TEST_F(DepartureRoutingPointTest, TakesTheDateOfAReroutingGroupFromItsOwnTypeAndTheMarkerWithoutItsText) {
  EXPECT_EQ(StoredBelow(2870, {2872}),
            (Texts{"2750 InvoluntaryRerouting=True", "2751 DepartureRoutingDate=text", "2753 CityCode=text"}));
}

TEST_F(DepartureRoutingPointTest, IgnoresTheFieldsOfTheOtherGroup) {
  EXPECT_EQ(FilledFrom({2870,
                        u"",
                        {{2871, u"", {{2751, u"01JAN"}, {2750, u"I"}, {2752, u"LON"}}},
                         {2872, u"", {{439, u"02JAN"}, {2752, u"ROM"}}}}}),
            Texts());
}

TEST_F(DepartureRoutingPointTest, IgnoresGroupsInsideGroups) {
  EXPECT_EQ(FilledFrom({2870,
                        u"",
                        {{2871, u"", {{2872, u"", {{2750, u"I"}, {2753, u"LON"}}}}},
                         {2872, u"", {{2871, u"", {{439, u"02JAN"}}}}}}}),
            Texts());
}

TEST_F(DepartureRoutingPointTest, OfALaterGroupKeepsTheEarlierValuesThatTheLaterDoesNotHave) {
  EXPECT_EQ(FilledFrom({2870, u"", {{2871, u"", {{439, u"01JAN"}, {2753, u"LON"}}}, {2872, u"", {{2753, u"ROM"}}}}}),
            (Texts{"CityCode=ROM", "DepartureRoutingDate=01JAN"}));
}

TEST_F(DepartureRoutingPointTest, OfALaterReroutingGroupHasItsCityAndDate) {
  EXPECT_EQ(
      FilledFrom({2870,
                  u"",
                  {{2871, u"", {{439, u"01JAN"}, {2753, u"LON"}}}, {2872, u"", {{2751, u"02JAN"}, {2753, u"ROM"}}}}}),
      (Texts{"CityCode=ROM", "DepartureRoutingDate=02JAN"}));
}

TEST_F(DepartureRoutingPointTest, IsNoLongerReroutedAfterAReroutingGroupWithoutTheMarker) {
  EXPECT_EQ(FilledFrom({2870, u"", {{2872, u"", {{2750, u"I"}}}, {2872, u"", {{2753, u"ROM"}}}}}),
            Texts{"CityCode=ROM"});
}

TEST_F(DepartureRoutingPointTest, StaysReroutedAfterADepartureGroup) {
  EXPECT_EQ(FilledFrom({2870, u"", {{2872, u"", {{2750, u"I"}}}, {2871, u"", {{2753, u"ROM"}}}}}),
            (Texts{"InvoluntaryRerouting=True", "CityCode=ROM"}));
}

TEST_F(DepartureRoutingPointTest, IsNoLongerReroutedWhenAGroupHasBegunAndFails) {
  Fill({2870, u"", {{2872, u"", {{2750, u"I"}}}}});
  toolkit_->FailAt(6, RuntimeError(5));  // texts, children, next, type, and the children of the group
  EXPECT_EQ(FailureOf({2870, u"", {{2872, u"", {{2750, u"I"}}}}}), "0x80040005 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), Texts());
}

TEST_F(DepartureRoutingPointTest, FilledTwiceKeepsWhatTheSecondFillDoesNotSet) {
  Fill({2870, u"first", {{2752, u"PAR"}, {2872, u"", {{2750, u"I"}, {2751, u"02JAN"}}}}});
  EXPECT_EQ(FilledFrom({2870, u"second", {{2752, u"LON"}}}),
            (Texts{"Text=second", "InvoluntaryRerouting=True", "CityCode=LON", "DepartureRoutingDate=02JAN"}));
}

const Tree kPoint = Tree{2870,
                         u"I- 02JAN PAR",
                         {{2872, u"I-", {{2750, u"I-"}, {2751, u"02JAN"}, {439, u"?"}}}, {2752, u"PAR"}, {92, u"?"}}}
                        .WithError(u"col 1");

const Story kPointStory =
    Tell({Asks(1, "Text 2870 => Text=I- 02JAN PAR, ErrorText 2870 => ErrorText=col 1, Children 2870, Next 2870"),
          Asks(1, "TypeId 2872, Children 2872, Next 2872, TypeId 2750 => InvoluntaryRerouting=True, Next 2872"),
          Asks(1, "TypeId 2751, Text 2751 => DepartureRoutingDate=02JAN, Next 2872, TypeId 439, Next 2872"),
          Asks(1, "Next 2870, TypeId 2752, Text 2752 => CityCode=PAR, Next 2870, TypeId 92, Next 2870"),
          Writes(u"End of FillWithData (in DepartureRoutingPoint) Function", u"DepartureRoutingPoint.FillWithData")});

TEST_F(DepartureRoutingPointTest, IsFilledWithTheseCallsAndWritesNoBeginLine) { ExpectStory(kPoint, kPointStory); }

TEST_F(DepartureRoutingPointTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kPoint, kPointStory); }

}  // namespace
}  // namespace qorltst
