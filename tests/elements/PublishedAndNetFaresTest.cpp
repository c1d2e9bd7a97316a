// A published or net fare. See src/elements/PublishedAndNetFares.h.
#include <gtest/gtest.h>

#include "elements/PublishedAndNetFares.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using PublishedAndNetFaresTest = testing::ElementTest<PublishedAndNetFares>;

Tree WholeLine() {
  return Tree{2849, u"P EUR 120.00", {{1201, u"P"}, {147, u"EUR"}, {2717, u"120.00"}}}.WithError(u"col 3");
}

TEST_F(PublishedAndNetFaresTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()), (Texts{"PubAndNetFaresBase=120.00", "PubAndNetFaresCurrencyCode=EUR",
                                            "PubAndNetFaresId=P", "ErrorText=col 3", "Text=P EUR 120.00"}));
}

TEST_F(PublishedAndNetFaresTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2849, u"P"}.WithError(u"e")), (Texts{"ErrorText=e", "Text=P"}));
}

TEST_F(PublishedAndNetFaresTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}), (Texts{"147 PubAndNetFaresCurrencyCode=text", "1201 PubAndNetFaresId=text",
                                    "2717 PubAndNetFaresBase=text"}));
}

TEST_F(PublishedAndNetFaresTest, TheFareStaysText) {
  EXPECT_EQ(FilledFrom({2849, u"", {{2717, u" 00120.00A"}}}), Texts{"PubAndNetFaresBase= 00120.00A"});
}

TEST_F(PublishedAndNetFaresTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({2849, u"", {{1201, u"P"}, {147, u"EUR"}, {1201, u"N"}}}),
            (Texts{"PubAndNetFaresCurrencyCode=EUR", "PubAndNetFaresId=N"}));
}

TEST_F(PublishedAndNetFaresTest, FieldsBelowAChildAreNotSeen) {
  EXPECT_EQ(FilledFrom({2849, u"", {{4711, u"", {{147, u"EUR"}}}, {1201, u"P", {{147, u"USD"}}}}}),
            Texts{"PubAndNetFaresId=P"});
}

TEST_F(PublishedAndNetFaresTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"PublishedAndNetFares"));
}

TEST_F(PublishedAndNetFaresTest, EachChildIsReadOnceAndOnlyWhatIsStored) {
  Fill({2849, u"", {{2733, u"?"}, {2717, u"1"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 2849", "ErrorText 2849", "Children 2849", "Next 2849", "TypeId 2733",
                                    "Next 2849", "TypeId 2717", "Text 2717", "Next 2849"}));
}

TEST_F(PublishedAndNetFaresTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(PublishedAndNetFaresTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
