// A tour code line. See src/elements/FTElement.h.
#include <gtest/gtest.h>

#include "elements/FTElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using FTElementTest = testing::ElementTest<FTElement>;

/// A tour code line with these nodes in its data.
Tree LineWith(std::vector<Tree> data) { return {2867, u"", {{756, u"data", std::move(data)}}}; }

Tree SubFields(std::vector<Tree> fields) { return {759, u"sub-fields", std::move(fields)}; }

/// A line with every field once, its free text from this node.
Tree WholeLine(Tree freeText) {
  return Tree{2867,
              u"FT IT123",
              {{91, u"8"}, {756, u"data", {{757, u"tour", {{758, u"QX1"}, {3315, u"IT"}}}, std::move(freeText)}}}}
      .WithError(u"col 2");
}

Tree Buffered(std::u16string text) { return Tree{1, u"text"}.WithBuffer(std::move(text)); }

TEST_F(FTElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine({760, u"FREE"})), (Texts{"ElementNumber=8", "TourType=IT", "TourCode=QX1",
                                                          "FreeFlowText=FREE", "Text=FT IT123", "ErrorText=col 2"}));
}

TEST_F(FTElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2867, u"FT"}.WithError(u"e")), (Texts{"Text=FT", "ErrorText=e"}));
}

TEST_F(FTElementTest, ThePassengerExceptionIsEmptyWhateverTheLineHolds) {
  for (const std::vector<std::int32_t>& groups :
       std::vector<std::vector<std::int32_t>>{{}, {756}, {756, 757}, {756, 759}, {756, 760}}) {
    for (const std::string& stored : StoredBelow(groups)) {
      EXPECT_EQ(stored.find("PassengerExeption"), std::string::npos) << stored;
    }
  }
}

TEST_F(FTElementTest, OnlyTheElementNumberIsStoredDirectly) {
  EXPECT_EQ(StoredBelow({}), Texts{"91 ElementNumber=text"});
}

TEST_F(FTElementTest, ExactlyTheseFieldsAreStoredDirectlyInTheData) {
  EXPECT_EQ(StoredBelow({756}), (Texts{"759 FreeFlowText= two", "760 FreeFlowText=text", "3485 FreeFlowText=text"}));
}

TEST_F(FTElementTest, ExactlyTheseFieldsOfTheTourGroupAreStored) {
  EXPECT_EQ(StoredBelow({756, 757}), (Texts{"758 TourCode=text", "3315 TourType=text"}));
}

TEST_F(FTElementTest, ATourCodeOutsideItsGroupIsIgnored) {
  EXPECT_EQ(FilledFrom({2867, u"", {{758, u"A"}, {757, u"", {{758, u"B"}}}, {756, u"", {{758, u"C"}, {3315, u"D"}}}}}),
            Texts());
}

TEST_F(FTElementTest, AFreeTextOutsideTheDataIsIgnored) {
  EXPECT_EQ(FilledFrom({2867, u"", {{760, u"A"}, {3485, u"B"}, {756, u"", {{757, u"", {{760, u"C"}}}}}}}), Texts());
}

TEST_F(FTElementTest, ALaterFreeTextOverwritesAnEarlierOne) {
  EXPECT_EQ(FilledFrom(LineWith({{760, u"A"}, {3485, u"B"}})), Texts{"FreeFlowText=B"});
  EXPECT_EQ(FilledFrom(LineWith({{3485, u"A"}, {760, u"B"}})), Texts{"FreeFlowText=B"});
  EXPECT_EQ(FilledFrom(LineWith({SubFields({Buffered(u"1"), Buffered(u"2")}), {760, u"C"}})), Texts{"FreeFlowText=C"});
}

TEST_F(FTElementTest, TheSecondSubFieldStandsBehindOneSpace) {
  EXPECT_EQ(FilledFrom(LineWith({{760, u"A"}, SubFields({Buffered(u"x"), Buffered(u"IT123"), Buffered(u"y")})})),
            Texts{"FreeFlowText= IT123"});
}

TEST_F(FTElementTest, AnEmptySecondSubFieldIsASpaceAlone) {
  EXPECT_EQ(FilledFrom(LineWith({SubFields({Buffered(u"x"), Buffered(u"")})})), Texts{"FreeFlowText= "});
}

TEST_F(FTElementTest, AMissingSecondSubFieldIsAnObjectThatIsNotSet) {
  EXPECT_EQ(FailureOf(LineWith({{760, u"A"}, SubFields({Buffered(u"x")}), {757, u"", {{758, u"B"}}}})),
            "0x8004005B QorlTST");
  EXPECT_EQ(testing::Filled(*element_), Texts{"FreeFlowText=A"});
  EXPECT_EQ(toolkit_->log.size(), 1U) << "the begin line alone";
}

TEST_F(FTElementTest, ASecondSubFieldWithoutABufferIsAMemberThatIsNotThere) {
  EXPECT_EQ(FailureOf(LineWith({{760, u"A"}, SubFields({Buffered(u"x"), {1, u"y"}})})), "0x800401B6 QorlTST");
  EXPECT_EQ(testing::Filled(*element_), Texts{"FreeFlowText=A"});
}

TEST_F(FTElementTest, RepeatedFieldsOverwrite) {
  EXPECT_EQ(FilledFrom(LineWith({{757, u"", {{758, u"A"}, {3315, u"IT"}, {758, u"B"}}}, {757, u"", {{758, u"C"}}}})),
            (Texts{"TourType=IT", "TourCode=C"}));
}

TEST_F(FTElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine({3485, u"FREE"}));
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"FTElement"));
}

TEST_F(FTElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill(LineWith({{758, u"?"}, {757, u"g", {{760, u"?"}, {758, u"A"}}}, SubFields({Buffered(u"x"), Buffered(u"y")})}));
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 2867",  "ErrorText 2867", "Children 2867", "Next 2867",  "TypeId 756",   "Children 756",
                   "Next 756",   "TypeId 758",     "Next 756",      "TypeId 757", "Children 757", "Next 757",
                   "TypeId 760", "Next 757",       "TypeId 758",    "Text 758",   "Next 757",     "Next 756",
                   "TypeId 759", "Item 759",       "Buffer 1",      "Next 756",   "Next 2867"}));
}

TEST_F(FTElementTest, EveryFailureClimbsAndNothingMoreIsTraced) {
  ExpectEveryFailureToClimb(WholeLine(SubFields({Buffered(u"x"), Buffered(u"y")})));
}

TEST_F(FTElementTest, EveryFailureKeepsWhatWasSet) {
  ExpectEveryFailureToKeepWhatWasSet(WholeLine({760, u"FREE"}));
  ExpectEveryFailureToKeepWhatWasSet(WholeLine(SubFields({Buffered(u"x"), Buffered(u"y")})));
}

}  // namespace
}  // namespace qorltst
