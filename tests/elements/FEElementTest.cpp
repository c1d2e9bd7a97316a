// The endorsement line. See src/elements/FEElement.h.
#include <gtest/gtest.h>

#include "elements/FEElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Concat;
using testing::Texts;
using testing::Tree;

using FEElementTest = testing::ElementTest<FEElement>;

Tree WholeLine() {
  return Tree{2860, u"FE M NONREF", {{91, u"7"}, {719, u"data", {{2730, u"M"}, {2731, u"NONREF"}}}}}.WithError(
      u"col 2");
}

TEST_F(FEElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"ElementNumber=7", "Text=FE M NONREF", "ManualId=M", "FreeFlowText=NONREF", "ErrorText=col 2"}));
}

TEST_F(FEElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2860, u"FE"}.WithError(u"e")), (Texts{"Text=FE", "ErrorText=e"}));
}

TEST_F(FEElementTest, OnlyTheElementNumberIsStoredDirectly) {
  EXPECT_EQ(StoredBelow({}), Texts{"91 ElementNumber=text"});
}

TEST_F(FEElementTest, ExactlyTheseFieldsOfTheDataAreStored) {
  EXPECT_EQ(StoredBelow({719}), (Texts{"2730 ManualId=text", "2731 FreeFlowText=text"}));
}

TEST_F(FEElementTest, FieldsOutsideTheDataAreIgnored) {
  EXPECT_EQ(FilledFrom({2860,
                        u"",
                        {{2730, u"M"},
                         {2731, u"A"},
                         {719, u"", {{719, u"", {{2731, u"B"}}}, {91, u"7"}}},
                         {4711, u"", {{719, u"", {{2731, u"C"}}}}}}}),
            Texts());
}

TEST_F(FEElementTest, RepeatedFieldsOverwrite) {
  EXPECT_EQ(
      FilledFrom({2860, u"", {{719, u"", {{2731, u"A"}, {2730, u"M"}, {2731, u"B"}}}, {719, u"", {{2731, u"C"}}}}}),
      (Texts{"ManualId=M", "FreeFlowText=C"}));
}

TEST_F(FEElementTest, TracesStandAroundTheLinesTextsAndAroundEachChild) {
  Fill({2860, u"", {{91, u"7"}, {4711, u"?"}}});
  EXPECT_EQ(toolkit_->log, Concat({Around(u"FillUpLevelData", u"FEElement"), Around(u"FillWithData", u"FEElement"),
                                   Around(u"FillWithData", u"FEElement")}));
}

TEST_F(FEElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill({2860, u"", {{4711, u"?"}, {719, u"g", {{91, u"?"}, {2731, u"A"}}}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 2860", "ErrorText 2860", "Children 2860", "Next 2860", "TypeId 4711",
                                    "Next 2860", "TypeId 719", "Children 719", "Next 719", "TypeId 91", "Next 719",
                                    "TypeId 2731", "Text 2731", "Next 719", "Next 2860"}));
}

TEST_F(FEElementTest, EveryFailureClimbsAndNothingMoreIsTraced) {
  ExpectEveryFailureToClimb(WholeLine(), {"Children 2860", "Next 2860"});
}

TEST_F(FEElementTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
