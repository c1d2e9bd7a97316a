// A surface segment. See src/elements/ARNKSegment.h.
#include <gtest/gtest.h>

#include "elements/ARNKSegment.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using ARNKSegmentTest = testing::ElementTest<ARNKSegment>;

Tree WholeLine() { return Tree{239, u"3 ROM ARNK", {{2699, u"3"}, {2713, u"ROM"}}}.WithError(u"col 2"); }

TEST_F(ARNKSegmentTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"ElementNumber=3", "Text=3 ROM ARNK", "BoardPoint=ROM", "ErrorText=col 2"}));
}

TEST_F(ARNKSegmentTest, ASegmentWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{239, u"ARNK"}.WithError(u"e")), (Texts{"Text=ARNK", "ErrorText=e"}));
}

TEST_F(ARNKSegmentTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}), (Texts{"2699 ElementNumber=text", "2713 BoardPoint=text"}));
}

TEST_F(ARNKSegmentTest, TheBoardPointOfAFlownSegmentLeavesItEmpty) {
  EXPECT_EQ(FilledFrom({239, u"", {{92, u"ROM"}}}), Texts());
}

TEST_F(ARNKSegmentTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({239, u"", {{2713, u"ROM"}, {2713, u"MIL"}}}), Texts{"BoardPoint=MIL"});
}

TEST_F(ARNKSegmentTest, FieldsBelowAChildAreNotSeen) {
  EXPECT_EQ(FilledFrom({239, u"", {{4711, u"?", {{2713, u"ROM"}}}, {2699, u"3", {{2713, u"MIL"}}}}}),
            Texts{"ElementNumber=3"});
}

TEST_F(ARNKSegmentTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"ARNKSegment"));
}

TEST_F(ARNKSegmentTest, EachChildIsReadOnceAndOnlyWhatIsStored) {
  Fill({239, u"", {{92, u"ROM"}, {2713, u"MIL"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 239", "ErrorText 239", "Children 239", "Next 239", "TypeId 92", "Next 239",
                                    "TypeId 2713", "Text 2713", "Next 239"}));
}

TEST_F(ARNKSegmentTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(ARNKSegmentTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
