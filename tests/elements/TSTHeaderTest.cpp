// The header line. See src/elements/TSTHeader.h.
#include <gtest/gtest.h>

#include "elements/TSTHeader.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Concat;
using testing::Texts;
using testing::Tree;

using TSTHeaderTest = testing::ElementTest<TSTHeader>;

/// A header line with every field once.
Tree WholeLine() {
  return Tree{602,
              u"TST00001 QXLON",
              {{2689, u"1"},
               {2690, u"C"},
               {2691, u"I"},
               {2692, u"D"},
               {2693, u"LON-ROM"},
               {2694, u"SITI"},
               {2695, u"A"},
               {94, u"12MAR"},
               {464, u"LONQX0100"},
               {476, u"0001AA"},
               Tree{3324, u"30JUN"}.WithDate(36707),
               {3326, u"M"}}}
      .WithError(u"col 3");
}

TEST_F(TSTHeaderTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"ErrorText=col 3", "InternationalSalesId=SITI", "OriginDestinationId=D", "PricingId=I",
                   "FareCalculationType=A", "LastModifDate=12MAR", "OriginDestinationData=LON-ROM",
                   "AgentDutyCode=0001AA", "OfficeId=LONQX0100", "PNRChangeFlag=C", "Text=TST00001 QXLON",
                   "ElementNumber=1", "FareCalculationModeIndicator=M", "LastDateFromTst=36707.000000"}));
}

TEST_F(TSTHeaderTest, AHeaderWithoutChildrenHasOnlyItsTextAndErrorTextAndDateZero) {
  EXPECT_EQ(FilledFrom(Tree{602, u"TST00001"}.WithError(u"e")), (Texts{"ErrorText=e", "Text=TST00001"}));
  EXPECT_EQ(testing::DateOf(*element_, u"LastDateFromTst"), 0.0);
}

TEST_F(TSTHeaderTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}),
            (Texts{"94 LastModifDate=text", "464 OfficeId=text", "476 AgentDutyCode=text", "2689 ElementNumber=text",
                   "2690 PNRChangeFlag=text", "2691 PricingId=text", "2692 OriginDestinationId=text",
                   "2693 OriginDestinationData=text", "2694 InternationalSalesId=text", "2695 FareCalculationType=text",
                   "3324 LastDateFromTst=1.000000", "3326 FareCalculationModeIndicator=text"}));
}

TEST_F(TSTHeaderTest, TheTypeBetweenTheLastDateAndTheModeIsIgnored) {
  EXPECT_EQ(FilledFrom({602, u"", {Tree{3325, u"x"}.WithDate(7)}}), Texts());
}

TEST_F(TSTHeaderTest, TheLastDateLeavesTheDateOfTheLastModificationAlone) {
  EXPECT_EQ(FilledFrom({602, u"", {{94, u"12MAR"}, Tree{3324, u"30JUN"}.WithDate(36707.5)}}),
            (Texts{"LastModifDate=12MAR", "LastDateFromTst=36707.500000"}));
}

TEST_F(TSTHeaderTest, TheDateOfTheLastModificationLeavesTheLastDateAlone) {
  EXPECT_EQ(FilledFrom({602, u"", {Tree{94, u"12MAR"}.WithDate(36707)}}), Texts{"LastModifDate=12MAR"});
}

TEST_F(TSTHeaderTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(
      FilledFrom({602,
                  u"",
                  {{464, u"first"}, Tree{3324}.WithDate(1), {94, u"01JAN"}, {464, u"second"}, Tree{3324}.WithDate(2)}}),
      (Texts{"LastModifDate=01JAN", "OfficeId=second", "LastDateFromTst=2.000000"}));
}

TEST_F(TSTHeaderTest, FieldsBelowAChildAreNotSeen) {
  EXPECT_EQ(FilledFrom({602, u"", {{4711, u"?", {{464, u"LONQX0100"}}}, {464, u"PARZZ0200", {{2689, u"1"}}}}}),
            Texts{"OfficeId=PARZZ0200"});
}

TEST_F(TSTHeaderTest, TextsAreKeptAsTheyCome) {
  EXPECT_EQ(FilledFrom({602, u"  TST ", {{2690, std::u16string(u" \0 ", 3)}, {94, u" 1MAR"}}}),
            (Texts{"LastModifDate= 1MAR", "PNRChangeFlag= \\u0 ", "Text=  TST "}));
}

TEST_F(TSTHeaderTest, TheTracesWriteTheClassInTheirOwnCaseAndStandAroundEachChild) {
  Fill({602, u"TST", {{464, u"LONQX0100"}, {4711, u"?"}}});
  EXPECT_EQ(toolkit_->log, Concat({Around(u"FillTextWithData", u"TstHeader"), Around(u"FillWithData", u"TstHeader"),
                                   Around(u"FillWithData", u"TstHeader")}));
  EXPECT_EQ(toolkit_->log[2],
            testing::TraceEntry(u"Beginning of FillWithData(in TstHeader) Function", u"TstHeader.FillWithData"));
}

TEST_F(TSTHeaderTest, EachChildIsReadOnceAndOnlyWhatIsStored) {
  Fill({602, u"TST", {{464, u"LONQX0100"}, {4711, u"?", {{464, u"x"}}}, Tree{3324, u"30JUN"}.WithDate(1)}});
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 602", "ErrorText 602", "Children 602", "Next 602", "TypeId 464", "Text 464", "Next 602",
                   "TypeId 4711", "Next 602", "TypeId 3324", "DateValue 3324", "Next 602"}));
}

TEST_F(TSTHeaderTest, EveryFailureClimbsAndNothingMoreIsTraced) {
  ExpectEveryFailureToClimb(WholeLine(), {"Children 602", "Next 602"});
}

TEST_F(TSTHeaderTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

TEST_F(TSTHeaderTest, AFailureUnderOneTrapCarriesItsOwnNumberAndSource) {
  toolkit_->FailAt(1, toolkit::RuntimeError(1234, u"Toolkit.Node", u""));
  EXPECT_EQ(FailureOf(WholeLine()), "0x800404D2 Toolkit.Node");
  EXPECT_EQ(toolkit_->log, std::vector{testing::TraceEntry(u"Beginning of FillTextWithData(in TstHeader) Function",
                                                           u"TstHeader.FillTextWithData")});
}

}  // namespace
}  // namespace qorltst
