// Tests of a surcharge of a fare calculation.
#include <gtest/gtest.h>

#include "farecalc/OtherSurcharge.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class OtherSurchargeTest : public testing::RecordTest<OtherSurcharge> {};

TEST_F(OtherSurchargeTest, WithoutAValueHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2823, u"Q25.00"}.WithError(u"e")), (Texts{"Text=Q25.00", "ErrorText=e"}));
}

TEST_F(OtherSurchargeTest, TakesTheValueAndNothingElse) {
  EXPECT_EQ(StoredBelow(2823, {}), Texts{"2764 OtherSurchargeValue=text"});
}

TEST_F(OtherSurchargeTest, IgnoresAValueOneLevelTooLow) {
  EXPECT_EQ(FilledFrom({2823, u"", {{2823, u"", {{2764, u"25.00"}}}}}), Texts());
}

TEST_F(OtherSurchargeTest, KeepsTheLastValue) {
  EXPECT_EQ(FilledFrom({2823, u"", {{2764, u"25.00"}, {2767, u"?"}, {2764, u"30.00"}}}),
            Texts{"OtherSurchargeValue=30.00"});
}

const Tree kSurcharge = Tree{2823, u"Q25.00", {{2767, u"?"}, {2764, u"25.00"}}}.WithError(u"e");

const Story kSurchargeStory =
    Tell({Writes(u"Beginning of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"),
          Asks(1, "Text 2823 => Text=Q25.00, ErrorText 2823 => ErrorText=e, Children 2823, Next 2823, TypeId 2767"),
          Asks(1, "Next 2823, TypeId 2764, Text 2764 => OtherSurchargeValue=25.00, Next 2823"),
          Writes(u"End of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData")});

TEST_F(OtherSurchargeTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kSurcharge, kSurchargeStory); }

TEST_F(OtherSurchargeTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kSurcharge, kSurchargeStory); }

}  // namespace
}  // namespace qorltst
