// The closing line of the itinerary. See src/elements/ItineraryLastLine.h.
#include <gtest/gtest.h>

#include "elements/ItineraryLastLine.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Concat;
using testing::Texts;
using testing::Tree;

using ItineraryLastLineTest = testing::ElementTest<ItineraryLastLine>;

TEST_F(ItineraryLastLineTest, TheDestinationIsStored) {
  EXPECT_EQ(FilledFrom({2848, u"line", {{2714, u"ROM"}}}), Texts{"DestinationCode=ROM"});
}

TEST_F(ItineraryLastLineTest, ALineWithoutChildrenLeavesEverythingEmpty) {
  EXPECT_EQ(FilledFrom(Tree{2848, u"ROM"}.WithError(u"e")), Texts()) << "the line's own texts are not taken";
  EXPECT_EQ(toolkit_->log, std::vector<testing::Entry>());
}

TEST_F(ItineraryLastLineTest, OnlyADestinationIsStored) {
  EXPECT_EQ(StoredBelow({}), Texts{"2714 DestinationCode=text"});
}

TEST_F(ItineraryLastLineTest, TheErrorTextIsThatOfTheLastChildWhateverItsType) {
  EXPECT_EQ(FilledFrom({2848, u"", {Tree{2714, u"ROM"}.WithError(u"first"), Tree{4711, u"x"}.WithError(u"second")}}),
            (Texts{"ErrorText=second", "DestinationCode=ROM"}));
}

TEST_F(ItineraryLastLineTest, ALastChildWithoutAnErrorTextClearsTheOneBefore) {
  EXPECT_EQ(FilledFrom({2848, u"", {Tree{2714, u"ROM"}.WithError(u"first"), {4711, u"x"}}}),
            Texts{"DestinationCode=ROM"});
}

TEST_F(ItineraryLastLineTest, TheLastDestinationWins) {
  EXPECT_EQ(FilledFrom({2848, u"", {{2714, u"ROM"}, {2714, u"MIL"}}}), Texts{"DestinationCode=MIL"});
}

TEST_F(ItineraryLastLineTest, ADestinationBelowAChildIsNotSeen) {
  EXPECT_EQ(FilledFrom({2848, u"", {{4711, u"", {Tree{2714, u"ROM"}.WithError(u"e")}}}}), Texts());
}

TEST_F(ItineraryLastLineTest, TracesStandAroundEachChild) {
  Fill({2848, u"", {{2714, u"ROM"}, {4711, u"x"}}});
  EXPECT_EQ(toolkit_->log,
            Concat({Around(u"FillWithData", u"ItineraryLastLine"), Around(u"FillWithData", u"ItineraryLastLine")}));
}

TEST_F(ItineraryLastLineTest, TheErrorTextIsReadFirstAndTheTextOnlyOfADestination) {
  Fill({2848, u"", {{4711, u"x"}, {2714, u"ROM"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Children 2848", "Next 2848", "ErrorText 4711", "TypeId 4711", "Next 2848",
                                    "ErrorText 2714", "TypeId 2714", "Text 2714", "Next 2848"}));
}

TEST_F(ItineraryLastLineTest, EveryFailureClimbsAndNothingMoreIsTraced) {
  ExpectEveryFailureToClimb({2848, u"", {{2714, u"ROM"}, {4711, u"x"}}}, {"Children 2848", "Next 2848"});
}

TEST_F(ItineraryLastLineTest, EveryFailureKeepsWhatWasSet) {
  ExpectEveryFailureToKeepWhatWasSet({2848, u"", {Tree{2714, u"ROM"}.WithError(u"e")}});
}

}  // namespace
}  // namespace qorltst
