// The documents issued in exchange, which are told apart by their position. See src/elements/FOElement.h.
#include <gtest/gtest.h>

#include <algorithm>

#include "elements/FOElement.h"
#include "tests/support/ElementTests.h"
#include "tests/support/OriginalIssueLine.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::LineWithExchange;
using testing::LineWithGroups;
using testing::Texts;
using testing::Tree;

using FOElementExchangeTest = testing::ElementTest<FOElement>;

Tree Numbered(std::u16string number) { return {744, u"", {{528, std::move(number)}}}; }

TEST_F(FOElementExchangeTest, NothingDirectlyInTheGroupIsStored) { EXPECT_EQ(StoredBelow({736, 738, 595}), Texts()); }

TEST_F(FOElementExchangeTest, ExactlyTheseFieldsOfADocumentAreStored) {
  EXPECT_EQ(
      StoredBelow({736, 738, 595, 744}),
      (Texts{"92 IssuedInExchangeCity=text", "467 IssuedInExchangeDate=text", "526 IssuedInExchangeNumAirline=text",
             "528 IssuedInExchangeDocumentNumber=text", "534 IssuedInExchangeCheckDigit=text",
             "541 IssuedInExchangeVoucherCode=text", "740 IssuedInExchangeCoupon=one"}));
}

TEST_F(FOElementExchangeTest, ExactlyTheseFieldsOfAConjunctionAreStored) {
  EXPECT_EQ(StoredBelow({736, 738, 595, 744, 741}),
            (Texts{"529 IssuedInExchangeConjunctedTicketNo=text", "534 IssuedInExchangeConjunctedCheckDigit=text",
                   "742 IssuedInExchangeConjunctedTicketCoupon=one"}));
}

TEST_F(FOElementExchangeTest, OnlyTheNumberIsStoredOfAnIataGroup) {
  EXPECT_EQ(StoredBelow({736, 738, 595, 744, 743}), Texts{"544 IssuedInExchangeIata=text"});
}

TEST_F(FOElementExchangeTest, TheFirstDocumentFillsTheFirstSetAndTheSecondTheSecond) {
  EXPECT_EQ(FilledFrom(LineWithExchange({Numbered(u"1"), Numbered(u"2")})),
            (Texts{"SecIssuedInExchangeDocumentNumber=2", "IssuedInExchangeDocumentNumber=1"}));
}

TEST_F(FOElementExchangeTest, ADocumentBehindAnyOtherNodeFillsTheSecondSetOnly) {
  EXPECT_EQ(FilledFrom(LineWithExchange({{4711, u"?"}, testing::Document(744, u"")})),
            (Texts{"SecIssuedInExchangeIata=91200001", "SecIssuedInExchangeDate=12MAR", "SecIssuedInExchangeCoupon=12",
                   "SecIssuedInExchangeConjunctedTicketNo=02", "SecIssuedInExchangeConjunctedTicketCoupon=34",
                   "SecIssuedInExchangeConjunctedCheckDigit=6", "SecIssuedInExchangeCity=LON",
                   "SecIssuedInExchangeCheckDigit=5", "SecIssuedInExchangeDocumentNumber=2400000001",
                   "SecIssuedInExchangeVoucherCode=V", "SecIssuedInExchangeNumAirline=998"}));
}

TEST_F(FOElementExchangeTest, AThirdDocumentOverwritesTheSecond) {
  EXPECT_EQ(FilledFrom(LineWithExchange(
                {Numbered(u"1"), {744, u"", {{528, u"2"}, {92, u"ROM"}}}, {4711, u"?"}, Numbered(u"3")})),
            (Texts{"SecIssuedInExchangeCity=ROM", "SecIssuedInExchangeDocumentNumber=3",
                   "IssuedInExchangeDocumentNumber=1"}));
}

TEST_F(FOElementExchangeTest, EachGroupCountsItsPositionsAnew) {
  EXPECT_EQ(FilledFrom(LineWithGroups({{595, u"", {Numbered(u"1")}}, {595, u"", {Numbered(u"2")}}})),
            Texts{"IssuedInExchangeDocumentNumber=2"});
}

TEST_F(FOElementExchangeTest, ADocumentOutsideTheGroupIsIgnored) {
  EXPECT_EQ(FilledFrom(LineWithGroups({Numbered(u"1"), {739, u"", {Numbered(u"2")}}, {595, u"", {{528, u"3"}}}})),
            Texts());
}

TEST_F(FOElementExchangeTest, AnOriginalDocumentInsideTheGroupIsIgnored) {
  EXPECT_EQ(FilledFrom(LineWithExchange({{739, u"", {{528, u"1"}}}})), Texts());
}

TEST_F(FOElementExchangeTest, CouponsWithoutAnItemStayEmptyAndAreNoFailure) {
  const Tree document{744, u"", {{740, u"x"}, {741, u"", {{742, u"y"}, {529, u"02"}}}}};
  EXPECT_EQ(FailureOf(LineWithExchange({document, document})), "no failure");
  EXPECT_EQ(testing::Filled(*element_),
            (Texts{"SecIssuedInExchangeConjunctedTicketNo=02", "IssuedInExchangeConjunctedTicketNo=02"}));
}

TEST_F(FOElementExchangeTest, TheConjunctionOfEachDocumentWritesItsPairOfTraces) {
  Fill(LineWithExchange({{744, u"", {{741, u""}, {741, u""}}}}));
  const auto conjunction = Around(u"FillIssuedConjunctedTicket", u"FOElement");
  EXPECT_EQ(toolkit_->log,
            Around(u"FillWithData", u"FOElement",
                   Around(u"FillTheRest", u"FOElement",
                          Around(u"FillIssued", u"FOElement", testing::Concat({conjunction, conjunction})))));
}

TEST_F(FOElementExchangeTest, TheLastPositionThatTheCounterHoldsIsFilled) {
  std::vector<Tree> nodes(32766, Tree{4711});
  nodes.push_back(Numbered(u"last"));
  EXPECT_EQ(FailureOf(LineWithExchange(std::move(nodes))), "no failure");
  EXPECT_EQ(testing::Filled(*element_), Texts{"SecIssuedInExchangeDocumentNumber=last"});
}

TEST_F(FOElementExchangeTest, OnePositionMoreOverflowsAndItsNodeIsNotLookedAt) {
  std::vector<Tree> nodes(32767, Tree{4711});
  nodes.front() = Numbered(u"first");
  nodes.push_back(Numbered(u"beyond"));
  EXPECT_EQ(FailureOf(LineWithExchange(std::move(nodes))), "0x80040006 QorlTST") << "overflow behind three traps";
  EXPECT_EQ(testing::Filled(*element_), Texts{"IssuedInExchangeDocumentNumber=first"});
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "TypeId 744"), 1);
  EXPECT_EQ(toolkit_->log.size(), 3U) << "the begin lines alone";
}

}  // namespace
}  // namespace qorltst
