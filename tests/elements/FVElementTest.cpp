// The validating carrier line. See src/elements/FVElement.h.
#include <gtest/gtest.h>

#include "elements/FVElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using FVElementTest = testing::ElementTest<FVElement>;

Tree WholeLine() { return Tree{2868, u"FV QX", {{91, u"6"}, {2734, u"QX"}}}.WithError(u"col 1"); }

TEST_F(FVElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()), (Texts{"ElementNumber=6", "Text=FV QX", "Carrier=QX", "ErrorText=col 1"}));
}

TEST_F(FVElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2868, u"FV"}.WithError(u"e")), (Texts{"Text=FV", "ErrorText=e"}));
}

TEST_F(FVElementTest, ALineWithoutACarrierLeavesItEmpty) {
  EXPECT_EQ(FilledFrom({2868, u"FV", {{91, u"6"}, {3, u"QX"}}}), (Texts{"ElementNumber=6", "Text=FV"}));
}

TEST_F(FVElementTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}), (Texts{"91 ElementNumber=text", "2734 Carrier=text"}));
}

TEST_F(FVElementTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({2868, u"", {{2734, u"QX"}, {2734, u"ZZ"}}}), Texts{"Carrier=ZZ"});
}

TEST_F(FVElementTest, ACarrierBelowAChildIsNotSeen) {
  EXPECT_EQ(FilledFrom({2868, u"", {{4711, u"", {{2734, u"QX"}}}, {91, u"6", {{2734, u"ZZ"}}}}}),
            Texts{"ElementNumber=6"});
}

TEST_F(FVElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"FVElement"));
}

TEST_F(FVElementTest, EachChildIsReadOnceAndOnlyWhatIsStored) {
  Fill({2868, u"", {{3, u"?"}, {2734, u"QX"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 2868", "ErrorText 2868", "Children 2868", "Next 2868", "TypeId 3",
                                    "Next 2868", "TypeId 2734", "Text 2734", "Next 2868"}));
}

TEST_F(FVElementTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(FVElementTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
