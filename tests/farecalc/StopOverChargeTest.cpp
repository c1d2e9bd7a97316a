// Tests of a stop-over charge, which is its node itself.
#include <gtest/gtest.h>

#include "farecalc/StopOverCharge.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class StopOverChargeTest : public testing::RecordTest<StopOverCharge> {};

TEST_F(StopOverChargeTest, IsAValueOrANumberByTheTypeOfItsNodeAndNothingForAnyOtherType) {
  Texts stored;
  for (std::int32_t type = -2; type <= 3000; ++type) {
    record_ = Make<StopOverCharge>(*toolkit_);
    for (const std::string& set : FilledFrom(Tree{type, u"2", {{2764, u"1"}, {2767, u"1"}}}.WithError(u"e"))) {
      stored.push_back(std::to_string(type) + " " + set);
    }
  }
  EXPECT_EQ(stored, (Texts{"2764 StopOverChargeValue=2", "2767 NumberStopAllowed=2"}));
}

TEST_F(StopOverChargeTest, FilledTwiceHasBoth) {
  Fill({2764, u"50.00"});
  EXPECT_EQ(FilledFrom({2767, u"2"}), (Texts{"NumberStopAllowed=2", "StopOverChargeValue=50.00"}));
}

TEST_F(StopOverChargeTest, OfAnotherTypeReadsNothingButTheType) {
  Fill({2903, u"S", {{2764, u"50.00"}}});
  EXPECT_EQ(toolkit_->calls, Texts{"TypeId 2903"});
  EXPECT_EQ(toolkit_->log.size(), 2U);
}

Story StoryOf(const std::string& calls) {
  return Tell({Writes(u"Beginning of FillWithData (in StopOverCharge) Function", u"StopOverCharge.FillWithData"),
               Asks(1, calls),
               Writes(u"End of FillWithData (in StopOverCharge) Function", u"StopOverCharge.FillWithData")});
}

TEST_F(StopOverChargeTest, IsFilledWithTheseCallsAndLines) {
  ExpectStory({2764, u"50.00"}, StoryOf("TypeId 2764, Text 2764 => StopOverChargeValue=50.00"));
  ExpectStory({2767, u"2"}, StoryOf("TypeId 2767, Text 2767 => NumberStopAllowed=2"));
}

TEST_F(StopOverChargeTest, StopsWhereACallFailsAndItsEndLineIsNotReached) {
  ExpectStoryToStopAtEveryFailure({2764, u"50.00"}, StoryOf("TypeId 2764, Text 2764 => StopOverChargeValue=50.00"));
}

}  // namespace
}  // namespace qorltst
