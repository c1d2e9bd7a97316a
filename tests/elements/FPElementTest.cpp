// The form of payment line. See src/elements/FPElement.h.
#include <gtest/gtest.h>

#include "elements/FPElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using FPElementTest = testing::ElementTest<FPElement>;

/// A form of payment line with these nodes in its data.
Tree LineWith(std::vector<Tree> data) { return {2863, u"", {{751, u"data", std::move(data)}}}; }

/// A line with every field once, the new form of payment in its own group.
Tree WholeLine() {
  return Tree{2863,
              u"FP O/CASH+CHECK",
              {{91, u"5"},
               {751, u"data", {{520, u"AC99"}, {2818, u"new", {{3335, u"CHECK"}}}, {2864, u"old", {{2819, u"CASH"}}}}}}}
      .WithError(u"col 1");
}

TEST_F(FPElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()), (Texts{"AccountId=AC99", "ElementNumber=5", "Text=FP O/CASH+CHECK", "NewFOP=CHECK",
                                            "OldFOP=CASH", "ErrorText=col 1"}));
}

TEST_F(FPElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2863, u"FP"}.WithError(u"e")), (Texts{"Text=FP", "ErrorText=e"}));
}

TEST_F(FPElementTest, SeveralItemsAreJoinedWithAPlus) {
  EXPECT_EQ(FilledFrom(LineWith({{2818, u"g", {{3335, u"CASH"}, {3335, u"CC"}}}})), Texts{"NewFOP=CASH+CC"});
}

TEST_F(FPElementTest, ItemsOfSeveralGroupsAreJoinedInTheirOrder) {
  EXPECT_EQ(FilledFrom(LineWith({{2818, u"", {{3335, u"A"}, {7, u"x"}}}, {2818, u"", {{3335, u"B"}, {3335, u"C"}}}})),
            Texts{"NewFOP=A+B+C"});
}

TEST_F(FPElementTest, AnEmptyFirstItemPutsNoPlusInFront) {
  EXPECT_EQ(FilledFrom(LineWith({{2818, u"", {{3335, u""}, {3335, u"B"}, {3335, u""}}}})), Texts{"NewFOP=B+"});
}

TEST_F(FPElementTest, ItemsInsideTheOldFormsSubgroupsBelongToTheNewForm) {
  EXPECT_EQ(FilledFrom(LineWith(
                {{2818, u"", {{3335, u"CASH"}}}, {2864, u"", {{2819, u"O1"}, {2865, u"sub", {{2818, u"X"}}}}}})),
            (Texts{"NewFOP=CASH+X", "OldFOP=O1"}));
}

TEST_F(FPElementTest, ItemsInsideTheOldFormsSubgroupsAloneStandWithoutAPlus) {
  EXPECT_EQ(FilledFrom(LineWith({{2864, u"", {{2865, u"", {{2818, u"X"}}}, {2865, u"", {{2818, u"Y"}}}}}})),
            Texts{"NewFOP=X+Y"});
}

TEST_F(FPElementTest, AnItemOutsideItsGroupIsIgnored) {
  EXPECT_EQ(FilledFrom({2863, u"", {{3335, u"A"}, {2818, u"", {{3335, u"B"}}}, {751, u"", {{3335, u"C"}}}}}), Texts());
}

TEST_F(FPElementTest, ASubgroupOutsideTheOldFormIsIgnored) {
  EXPECT_EQ(
      FilledFrom(LineWith({{2865, u"", {{2818, u"X"}}}, {2819, u"O"}, {2818, u"", {{2865, u"", {{2818, u"Y"}}}}}})),
      Texts());
}

TEST_F(FPElementTest, AnItemGroupDirectlyInTheOldFormIsIgnored) {
  EXPECT_EQ(FilledFrom(LineWith({{2864, u"", {{2818, u"X", {{3335, u"Y"}}}, {3335, u"Z"}}}})), Texts());
}

TEST_F(FPElementTest, ItemsBelowAnItemInASubgroupAreNotRead) {
  EXPECT_EQ(FilledFrom(LineWith({{2864, u"", {{2865, u"", {{2818, u"X", {{3335, u"Y"}}}, {3335, u"Z"}}}}}})),
            Texts{"NewFOP=X"});
}

TEST_F(FPElementTest, OnlyTheElementNumberIsStoredDirectly) {
  EXPECT_EQ(StoredBelow({}), Texts{"91 ElementNumber=text"});
}

TEST_F(FPElementTest, OnlyTheAccountIsStoredDirectlyInTheData) {
  EXPECT_EQ(StoredBelow({751}), Texts{"520 AccountId=text"});
}

TEST_F(FPElementTest, OnlyItemsAreStoredOfTheNewForm) {
  EXPECT_EQ(StoredBelow({751, 2818}), Texts{"3335 NewFOP=text"});
}

TEST_F(FPElementTest, OnlyItsTextIsStoredOfTheOldForm) {
  EXPECT_EQ(StoredBelow({751, 2864}), Texts{"2819 OldFOP=text"});
}

TEST_F(FPElementTest, OnlyItemsAreStoredOfTheOldFormsSubgroup) {
  EXPECT_EQ(StoredBelow({751, 2864, 2865}), Texts{"2818 NewFOP=text"});
}

TEST_F(FPElementTest, RepeatedSingleFieldsOverwrite) {
  EXPECT_EQ(FilledFrom(
                {2863,
                 u"",
                 {{91, u"1"},
                  {91, u"2"},
                  {751, u"", {{520, u"A"}, {520, u"B"}, {2864, u"", {{2819, u"O1"}}}, {2864, u"", {{2819, u"O2"}}}}}}}),
            (Texts{"AccountId=B", "ElementNumber=2", "OldFOP=O2"}));
}

TEST_F(FPElementTest, ASecondFillGoesOnAppendingToTheNewForm) {
  Fill(WholeLine());
  EXPECT_EQ(FilledFrom(LineWith({{2818, u"", {{3335, u"CC"}}}, {2864, u"", {{2819, u"NONE"}}}})),
            (Texts{"AccountId=AC99", "ElementNumber=5", "NewFOP=CHECK+CC", "OldFOP=NONE"}));
}

TEST_F(FPElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"FPElement"));
}

TEST_F(FPElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill(LineWith(
      {{3335, u"?"}, {2818, u"g", {{520, u"?"}, {3335, u"A"}}}, {2864, u"g", {{2865, u"g", {{2818, u"B"}}}}}}));
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 2863",   "ErrorText 2863", "Children 2863", "Next 2863",   "TypeId 751",    "Children 751",
                   "Next 751",    "TypeId 3335",    "Next 751",      "TypeId 2818", "Children 2818", "Next 2818",
                   "TypeId 520",  "Next 2818",      "TypeId 3335",   "Text 3335",   "Next 2818",     "Next 751",
                   "TypeId 2864", "Children 2864",  "Next 2864",     "TypeId 2865", "Children 2865", "Next 2865",
                   "TypeId 2818", "Text 2818",      "Next 2865",     "Next 2864",   "Next 751",      "Next 2863"}));
}

TEST_F(FPElementTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(FPElementTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

TEST_F(FPElementTest, EveryFailureAroundTheOldFormsSubgroupClimbs) {
  ExpectEveryFailureToClimb(LineWith({{2864, u"", {{2865, u"", {{2818, u"X"}, {2818, u"Y"}}}}}}));
}

TEST_F(FPElementTest, AFailureAtTheSecondItemKeepsTheFirst) {
  const auto outcomes = FailAtEveryCall(LineWith({{2818, u"", {{3335, u"A"}, {3335, u"B"}}}}));
  Texts filledAtItems;
  for (const testing::Outcome& outcome : outcomes) {
    if (outcome.failedCall == "Text 3335") {
      filledAtItems.push_back(outcome.filled.empty() ? "nothing" : outcome.filled.front());
    }
  }
  EXPECT_EQ(filledAtItems, (Texts{"nothing", "NewFOP=A"}));
}

}  // namespace
}  // namespace qorltst
