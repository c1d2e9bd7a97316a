// Tests of a mileage equalization.
#include <gtest/gtest.h>

#include "farecalc/MileageEqualizationRule.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class MileageEqualizationRuleTest : public testing::RecordTest<MileageEqualizationRule> {};

TEST_F(MileageEqualizationRuleTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2901, u"E/PAR"}.WithError(u"e")), (Texts{"Text=E/PAR", "ErrorText=e"}));
}

TEST_F(MileageEqualizationRuleTest, WithACityAloneHasNoMileage) {
  EXPECT_EQ(FilledFrom({2901, u"", {{92, u"PAR"}}}), Texts{"CityCode=PAR"});
}

TEST_F(MileageEqualizationRuleTest, TakesTheCityAndNothingElse) {
  EXPECT_EQ(StoredBelow(2901, {}), Texts{"92 CityCode=text"});
}

TEST_F(MileageEqualizationRuleTest, TakesTheMileageItem) {
  EXPECT_EQ(StoredBelow(2901, {2902}), (Texts{"2765 InclusiveTourFare=True", "2766 BulkTourFare=True",
                                              "2768 MileageItemPercentage=text", "2769 MileageId=True"}));
}

TEST_F(MileageEqualizationRuleTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({2901, u"", {{2769, u"M"}, {2902, u"", {{2902, u"", {{2769, u"M"}}}, {92, u"PAR"}}}}}), Texts());
}

TEST_F(MileageEqualizationRuleTest, StaysMarkedAfterASecondMileageItemWithoutTheMarker) {
  EXPECT_EQ(FilledFrom({2901, u"", {{2902, u"", {{2769, u"M"}}}, {2902, u"", {{2768, u"15"}}}}}),
            (Texts{"MileageId=True", "MileageItemPercentage=15"}));
}

TEST_F(MileageEqualizationRuleTest, FilledTwiceIsNoLongerMarkedAndKeepsTheTourFlags) {
  Fill({2901, u"", {{2902, u"", {{2769, u"M"}, {2765, u"IT"}, {2766, u"BT"}}}, {92, u"PAR"}}});
  EXPECT_EQ(FilledFrom({2901, u""}), (Texts{"BulkTourFare=True", "InclusiveTourFare=True", "CityCode=PAR"}));
}

TEST_F(MileageEqualizationRuleTest, IsNoLongerMarkedWhenASecondFillFailsAtItsFirstCall) {
  Fill({2901, u"first", {{2902, u"", {{2769, u"M"}}}}});
  toolkit_->FailAt(1, RuntimeError(5));
  EXPECT_EQ(FailureOf({2901, u"second"}), "0x80040005 QorlTST");
  EXPECT_EQ(testing::Contents(*record_), Texts{"Text=first"});
}

TEST_F(MileageEqualizationRuleTest, KeepsTheLastOfEachField) {
  EXPECT_EQ(FilledFrom({2901, u"", {{92, u"PAR"}, {2902, u"", {{2768, u"5"}, {2768, u"10"}}}, {92, u"LON"}}}),
            (Texts{"MileageItemPercentage=10", "CityCode=LON"}));
}

const Tree kRule =
    Tree{2901, u"E/PAR 15M", {{92, u"PAR"}, {5, u"?"}, {2902, u"", {{2768, u"15"}, {2769, u"?"}, {2767, u"?"}}}}}
        .WithError(u"e");

const Story kRuleStory = Tell(
    {Writes(u"Beginning of FillWithData (in MileageEqualizationRule) Function",
            u"MileageEqualizationRule.FillWithData"),
     Asks(1, "Text 2901 => Text=E/PAR 15M, ErrorText 2901 => ErrorText=e, Children 2901"),
     Asks(1, "Next 2901, TypeId 92, Text 92 => CityCode=PAR, Next 2901, TypeId 5, Next 2901, TypeId 2902"),
     Asks(1, "Children 2902, Next 2902, TypeId 2768, Text 2768 => MileageItemPercentage=15"),
     Asks(1, "Next 2902, TypeId 2769 => MileageId=True, Next 2902, TypeId 2767, Next 2902, Next 2901"),
     Writes(u"End of FillWithData (in MileageEqualizationRule) Function", u"MileageEqualizationRule.FillWithData")});

TEST_F(MileageEqualizationRuleTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kRule, kRuleStory); }

TEST_F(MileageEqualizationRuleTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kRule, kRuleStory); }

}  // namespace
}  // namespace qorltst
