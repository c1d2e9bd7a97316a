// The original issue line: its own fields, the original document, amounts and taxes. The documents issued in exchange
// are in FOElementExchangeTest.cpp, failures in FOElementFailureTest.cpp. See src/elements/FOElement.h.
#include <gtest/gtest.h>

#include "elements/FOElement.h"
#include "tests/support/ElementTests.h"
#include "tests/support/OriginalIssueLine.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Buffered;
using testing::Calls;
using testing::Concat;
using testing::LineWithBody;
using testing::LineWithGroups;
using testing::Texts;
using testing::Tree;
using testing::WholeOriginalIssueLine;

using FOElementTest = testing::ElementTest<FOElement>;

TEST_F(FOElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeOriginalIssueLine()), (Texts{"OriginalIssueVoucherCode=V-O",
                                                         "ElementNumber=9",
                                                         "Text=FO 998-2400000001",
                                                         "FreeFlow=FREE",
                                                         "OriginalIssueDocumentNumber=2400000001-O",
                                                         "OriginalIssueCheckDigit=5-O",
                                                         "OriginalIssueCoupon=12-O",
                                                         "OriginalIssueConjuctedTicketNumber=02-O",
                                                         "OriginalIssuedConjunctedCheckDigit=6-O",
                                                         "OriginalIssuedConjunctedTicketCoupon=34-O",
                                                         "OriginalIssueCity=LON-O",
                                                         "OriginalIssueDate=12MAR-O",
                                                         "OriginalIssueIata=91200001-O",
                                                         "SecIssuedInExchangeIata=91200001-2",
                                                         "SecIssuedInExchangeDate=12MAR-2",
                                                         "SecIssuedInExchangeCoupon=12-2",
                                                         "SecIssuedInExchangeConjunctedTicketNo=02-2",
                                                         "SecIssuedInExchangeConjunctedTicketCoupon=34-2",
                                                         "SecIssuedInExchangeConjunctedCheckDigit=6-2",
                                                         "SecIssuedInExchangeCity=LON-2",
                                                         "SecIssuedInExchangeCheckDigit=5-2",
                                                         "SecIssuedInExchangeDocumentNumber=2400000001-2",
                                                         "SecIssuedInExchangeVoucherCode=V-2",
                                                         "SecIssuedInExchangeNumAirline=998-2",
                                                         "IssuedInExchangeIata=91200001-1",
                                                         "IssuedInExchangeDate=12MAR-1",
                                                         "IssuedInExchangeCoupon=12-1",
                                                         "IssuedInExchangeConjunctedTicketNo=02-1",
                                                         "IssuedInExchangeConjunctedTicketCoupon=34-1",
                                                         "IssuedInExchangeConjunctedCheckDigit=6-1",
                                                         "IssuedInExchangeCity=LON-1",
                                                         "IssuedInExchangeCheckDigit=5-1",
                                                         "IssuedInExchangeDocumentNumber=2400000001-1",
                                                         "IssuedInExchangeVoucherCode=V-1",
                                                         "IssuedInExchangeNumAirline=998-1",
                                                         "OriginalIssueNumAirline=998-O",
                                                         "BaseFare=107.70",
                                                         "CurrencyCode=EUR",
                                                         "Amount=120.00",
                                                         "ErrorText=col 4",
                                                         "Tax=12.30",
                                                         "Penalty=50.00"}));
}

TEST_F(FOElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2862, u"FO"}.WithError(u"e")), (Texts{"Text=FO", "ErrorText=e"}));
}

TEST_F(FOElementTest, ALineWithANumberAloneLeavesEverythingElseEmpty) {
  EXPECT_EQ(FilledFrom({2862, u"FO", {{91, u"9"}}}), (Texts{"ElementNumber=9", "Text=FO"}));
}

TEST_F(FOElementTest, OnlyTheElementNumberIsStoredDirectly) {
  EXPECT_EQ(StoredBelow({}), Texts{"91 ElementNumber=text"});
}

TEST_F(FOElementTest, OnlyFreeTextIsStoredDirectlyInTheBodyAndInItsGroup) {
  EXPECT_EQ(StoredBelow({736}), Texts{"219 FreeFlow=text"});
  EXPECT_EQ(StoredBelow({736, 749}), Texts{"219 FreeFlow=text"});
}

TEST_F(FOElementTest, NothingDirectlyInTheDocumentGroupsIsStored) { EXPECT_EQ(StoredBelow({736, 738}), Texts()); }

TEST_F(FOElementTest, ExactlyTheseFieldsOfTheOriginalDocumentAreStored) {
  EXPECT_EQ(StoredBelow({736, 738, 739}),
            (Texts{"92 OriginalIssueCity=text", "467 OriginalIssueDate=text", "526 OriginalIssueNumAirline=text",
                   "528 OriginalIssueDocumentNumber=text", "534 OriginalIssueCheckDigit=text",
                   "541 OriginalIssueVoucherCode=text", "740 OriginalIssueCoupon=one"}));
}

TEST_F(FOElementTest, ExactlyTheseFieldsOfTheOriginalConjunctionAreStored) {
  EXPECT_EQ(StoredBelow({736, 738, 739, 741}),
            (Texts{"529 OriginalIssueConjuctedTicketNumber=text", "534 OriginalIssuedConjunctedCheckDigit=text",
                   "742 OriginalIssuedConjunctedTicketCoupon=one"}));
}

TEST_F(FOElementTest, OnlyTheNumberIsStoredOfTheOriginalIataGroup) {
  EXPECT_EQ(StoredBelow({736, 738, 739, 743}), Texts{"544 OriginalIssueIata=text"});
}

TEST_F(FOElementTest, ExactlyTheseFieldsOfTheAmountGroupAreStored) {
  EXPECT_EQ(StoredBelow({736, 738, 745}), (Texts{"147 CurrencyCode=text", "2733 Amount=text"}));
}

TEST_F(FOElementTest, ExactlyTheseFieldsOfTheTaxGroupAreStored) {
  EXPECT_EQ(StoredBelow({736, 738, 746}), (Texts{"747 Tax=one", "748 Penalty=one", "2733 BaseFare=text"}));
}

TEST_F(FOElementTest, GroupsAtTheWrongLevelAreIgnored) {
  const Tree original{739, u"", {{528, u"1"}}};
  const Tree amount{745, u"", {{147, u"EUR"}}};
  const Tree tax{746, u"", {{2733, u"1"}}};
  EXPECT_EQ(
      FilledFrom({2862,
                  u"",
                  {original,
                   amount,
                   tax,
                   {738, u"", {original}},
                   {219, u"A"},
                   {749, u"", {{219, u"B"}}},
                   {736, u"", {original, amount, tax, {91, u"9"}, {738, u"", {{738, u"", {amount}}, {219, u"C"}}}}},
                   {4711, u"", {{736, u"", {{219, u"D"}}}}}}}),
      Texts());
}

TEST_F(FOElementTest, FreeTextsAreJoinedWithoutASeparator) {
  EXPECT_EQ(FilledFrom(LineWithBody({{219, u"AB"}, {219, u"CD"}})), Texts{"FreeFlow=ABCD"});
}

TEST_F(FOElementTest, FreeTextsOfTheBodyAndOfItsGroupsAreJoinedInTheirOrder) {
  EXPECT_EQ(FilledFrom(LineWithBody(
                {{749, u"", {{219, u"A"}, {7, u"-"}, {219, u"B"}}}, {219, u"C"}, {749, u"", {{219, u"D"}}}})),
            Texts{"FreeFlow=ABCD"});
}

TEST_F(FOElementTest, ASecondFillAppendsFreeTextAndOverwritesTheRest) {
  Fill(LineWithBody({{219, u"AB"}, {738, u"", {{745, u"", {{147, u"EUR"}, {2733, u"1"}}}}}}));
  EXPECT_EQ(FilledFrom(LineWithBody({{219, u"CD"}, {738, u"", {{745, u"", {{2733, u"2"}}}}}})),
            (Texts{"FreeFlow=ABCD", "CurrencyCode=EUR", "Amount=2"}));
}

TEST_F(FOElementTest, ASecondOriginalDocumentOverwritesTheFieldsItCarries) {
  EXPECT_EQ(FilledFrom(LineWithGroups({{739, u"", {{528, u"1"}, {92, u"LON"}, {743, u"", {{544, u"1"}, {544, u"2"}}}}},
                                       {739, u"", {{528, u"2"}}}})),
            (Texts{"OriginalIssueDocumentNumber=2", "OriginalIssueCity=LON", "OriginalIssueIata=2"}));
}

TEST_F(FOElementTest, ACouponWithoutAnItemStaysEmptyAndIsNoFailure) {
  EXPECT_EQ(
      FailureOf(LineWithGroups({{739, u"", {{740, u"x"}, {741, u"", {{742, u"y"}, {529, u"02"}}}, {92, u"LON"}}}})),
      "no failure");
  EXPECT_EQ(testing::Filled(*element_), (Texts{"OriginalIssueConjuctedTicketNumber=02", "OriginalIssueCity=LON"}));
}

TEST_F(FOElementTest, ACouponWithoutAnItemKeepsAnEarlierOne) {
  EXPECT_EQ(FilledFrom(LineWithGroups({{739, u"", {Buffered(740, u"12"), {740, u"x"}}}})),
            Texts{"OriginalIssueCoupon=12"});
}

TEST_F(FOElementTest, EachGroupWritesItsPairOfTracesAndTheTaxGroupWritesNone) {
  Fill(WholeOriginalIssueLine());
  const auto fo = [](std::u16string_view operation, std::vector<testing::Entry> between = {}) {
    return Around(operation, u"FOElement", std::move(between));
  };
  EXPECT_EQ(toolkit_->log, fo(u"FillWithData",
                              fo(u"FillTheRest", Concat({fo(u"FillOriginIssue", fo(u"FillConjunctedTicket")),
                                                         fo(u"FillIssued", Concat({fo(u"FillIssuedConjunctedTicket"),
                                                                                   fo(u"FillIssuedConjunctedTicket")})),
                                                         fo(u"FillAmout")}))));
}

TEST_F(FOElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill(LineWithGroups({{739, u"g", {{7, u"?"}, Buffered(740, u"12"), {740, u"empty"}, {743, u"g", {{528, u"?"}}}}},
                       {746, u"g", {Buffered(747, u"1"), {147, u"?"}}}}));
  EXPECT_EQ(
      toolkit_->calls,
      (Calls{"Text 2862",  "ErrorText 2862", "Children 2862", "Next 2862",  "TypeId 736",   "Children 736", "Next 736",
             "TypeId 738", "Children 738",   "Next 738",      "TypeId 739", "Children 739", "Next 739",     "TypeId 7",
             "Next 739",   "TypeId 740",     "Item 740",      "Buffer 1",   "Next 739",     "TypeId 740",   "Item 740",
             "Next 739",   "TypeId 743",     "Children 743",  "Next 743",   "TypeId 528",   "Next 743",     "Next 739",
             "Next 738",   "TypeId 746",     "Children 746",  "Next 746",   "TypeId 747",   "Item 747",     "Buffer 1",
             "Next 746",   "TypeId 147",     "Next 746",      "Next 738",   "Next 736",     "Next 2862"}));
}

}  // namespace
}  // namespace qorltst
