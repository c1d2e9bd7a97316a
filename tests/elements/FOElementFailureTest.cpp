// Failures inside the original issue line. See src/elements/FOElement.h.
#include <gtest/gtest.h>

#include "elements/FOElement.h"
#include "tests/support/ElementTests.h"
#include "tests/support/OriginalIssueLine.h"

namespace qorltst {
namespace {

using testing::Buffered;
using testing::Entry;
using testing::LineWithBody;
using testing::LineWithExchange;
using testing::LineWithGroups;
using testing::Texts;
using testing::TraceEntry;

class FOElementFailureTest : public testing::ElementTest<FOElement> {
 protected:
  /// The log of procedures that have begun and never ended.
  static std::vector<Entry> Begun(const std::vector<std::u16string>& operations) {
    std::vector<Entry> log;
    for (const std::u16string& operation : operations) {
      log.push_back(TraceEntry(u"Beginning of " + operation + u"(in FOElement) Function", u"FOElement." + operation));
    }
    return log;
  }

  /// How a runtime error of the component appears behind the traps of these groups.
  const std::string kBehindOneTrap = "0x8004005B QorlTST";
  const std::string kBehindTwoOrFourTraps = "0x00000006 QorlTST";
  const std::string kBehindThreeTraps = "0x80040006 QorlTST";
};

TEST_F(FOElementFailureTest, EveryFailureClimbsAndNothingMoreIsTraced) {
  ExpectEveryFailureToClimb(testing::WholeOriginalIssueLine());
}

TEST_F(FOElementFailureTest, EveryFailureKeepsWhatWasSet) {
  ExpectEveryFailureToKeepWhatWasSet(testing::WholeOriginalIssueLine());
}

TEST_F(FOElementFailureTest, AFailureInTheLineItselfCarriesItsOwnNumberAndSource) {
  toolkit_->FailAt(3, toolkit::RuntimeError(91));
  EXPECT_EQ(FailureOf(testing::WholeOriginalIssueLine()), kBehindOneTrap);
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData"}));
}

TEST_F(FOElementFailureTest, AMissingTaxItemEndsTheBodyAndNothingBehindItIsRead) {
  EXPECT_EQ(
      FailureOf(LineWithBody(
          {{219, u"A"}, {738, u"", {{746, u"", {{2733, u"1"}, {747, u"x"}, Buffered(748, u"2")}}}}, {219, u"B"}})),
      kBehindTwoOrFourTraps)
      << "the tax group has no trap of its own";
  EXPECT_EQ(testing::Filled(*element_), (Texts{"FreeFlow=A", "BaseFare=1"}));
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest"}));
  EXPECT_EQ(toolkit_->calls.back(), "Item 747");
}

TEST_F(FOElementFailureTest, AMissingPenaltyItemEndsTheBodyToo) {
  EXPECT_EQ(FailureOf(LineWithGroups({{746, u"", {Buffered(747, u"1"), {748, u"x"}, {2733, u"3"}}}})),
            kBehindTwoOrFourTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts{"Tax=1"});
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest"}));
  EXPECT_EQ(toolkit_->calls.back(), "Item 748");
}

TEST_F(FOElementFailureTest, ATaxItemWithoutABufferEndsTheBody) {
  EXPECT_EQ(FailureOf(LineWithGroups({{746, u"", {{747, u"", {{1, u"text"}}}}}})), kBehindTwoOrFourTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts());
  EXPECT_EQ(toolkit_->calls.back(), "Buffer 1");
}

TEST_F(FOElementFailureTest, ACouponItemWithoutABufferEndsTheOriginalIssue) {
  EXPECT_EQ(FailureOf(LineWithGroups({{739, u"", {{528, u"1"}, {740, u"", {{1, u"text"}}}, {92, u"LON"}}}})),
            kBehindThreeTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts{"OriginalIssueDocumentNumber=1"});
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest", u"FillOriginIssue"}));
}

TEST_F(FOElementFailureTest, AConjunctionCouponItemWithoutABufferEndsTheConjunction) {
  EXPECT_EQ(FailureOf(LineWithGroups({{739, u"", {{741, u"", {{529, u"02"}, {742, u"", {{1, u"text"}}}}}}}})),
            kBehindTwoOrFourTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts{"OriginalIssueConjuctedTicketNumber=02"});
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest", u"FillOriginIssue", u"FillConjunctedTicket"}));
}

TEST_F(FOElementFailureTest, ACouponItemWithoutABufferEndsTheExchange) {
  EXPECT_EQ(
      FailureOf(LineWithExchange({{744, u"", {{528, u"1"}, {740, u"", {{1, u"text"}}}}}, {744, u"", {{528, u"2"}}}})),
      kBehindThreeTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts{"IssuedInExchangeDocumentNumber=1"});
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest", u"FillIssued"}));
}

TEST_F(FOElementFailureTest, AConjunctionCouponItemWithoutABufferEndsTheExchangesConjunction) {
  EXPECT_EQ(FailureOf(LineWithExchange({{744, u"", {{741, u"", {{742, u"", {{1, u"text"}}}}}}}})),
            kBehindTwoOrFourTraps);
  EXPECT_EQ(testing::Filled(*element_), Texts());
  EXPECT_EQ(toolkit_->log, Begun({u"FillWithData", u"FillTheRest", u"FillIssued", u"FillIssuedConjunctedTicket"}));
}

}  // namespace
}  // namespace qorltst
