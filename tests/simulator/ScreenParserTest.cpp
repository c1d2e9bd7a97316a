// The parser object and the rules that hold for every display; see simulator/ScreenParser.h and DisplayParser.h.
#include <gtest/gtest.h>

#include "DisplaySupport.h"
#include "simulator/ScreenParser.h"
#include "simulator/SimulatorNumbers.h"

namespace qorltst::simulator {
namespace {

TEST(ScreenParser, ReadsAnEmptyTextAsADisplayWithoutNodes) {
  const Parsed parsed = Parsed::FromText(u"");
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  EXPECT_FALSE(parsed.parser->HasChildren());
}

TEST(ScreenParser, IsTheRootOfWhatItRead) {
  const Parsed parsed({u"TST 00001", u"EQUIV EUR 1.00"});
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  EXPECT_EQ(parsed.parser->TypeId(), NodeTypeId::None);
  EXPECT_EQ(parsed.Dump(),
            "602 \"TST 00001\"\n  2689 \"00001\"\n"
            "2852 \"EQUIV EUR 1.00\"\n  147 \"EUR\"\n  2717 \"1.00\"\n");
}

TEST(ScreenParser, ReplacesItsTreeWhenItParsesAgain) {
  const Parsed parsed({u"TST 00001"});
  EXPECT_EQ(parsed.parser->Parse(Screen({u"TST 00002"}), 6), toolkit::kParseSuccess);
  EXPECT_EQ(parsed.Dump(), "602 \"TST 00002\"\n  2689 \"00002\"\n");
}

TEST(ScreenParser, AcceptsALastLineThatIsShorterThanTheOthers) {
  const Parsed parsed = Parsed::FromText(Screen({u"TST 00001"}) + u"EQUIV EUR 1.00");
  EXPECT_TRUE(parsed.parser->FindNode(NodeTypeId::EquivalentLine));
}

TEST(ScreenParser, FindsNoHeaderInADisplayThatIsNoTst) {
  const Parsed parsed({u"NO STORED TICKET", u"  TST 00001", u"TST DISPLAY NOT ALLOWED", u"TST", u"TST00001"});
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  EXPECT_EQ(parsed.Dump(), "");
}

TEST(ScreenParser, LeavesOutUnknownLinesBeforeTheHeader) {
  EXPECT_EQ(Parsed({u"TQT", u"TST 00001"}).Dump(), "602 \"TST 00001\"\n  2689 \"00001\"\n");
}

TEST(ScreenParser, WarnsOfUnknownLinesAfterTheHeader) {
  const Parsed parsed({u"TST 00001", u"LOUNGE ACCESS"});
  const auto unknown = parsed.parser->FindNode(kUnknownLine);
  ASSERT_TRUE(unknown);
  EXPECT_EQ(unknown->Text(), u"LOUNGE ACCESS");
  EXPECT_TRUE(unknown->HasWarning());
  EXPECT_EQ(unknown->ErrorText(), u"column 1: unknown line");
}

TEST(ScreenParser, LeavesOutThePromptOfTheHost) {
  EXPECT_EQ(Parsed({u"TST 00001", u">"}).Dump(), "602 \"TST 00001\"\n  2689 \"00001\"\n");
}

TEST(ScreenParser, TakesNoLineForAPromptThatHasMoreText) {
  EXPECT_TRUE(Parsed({u"TST 00001", u"> MORE TEXT"}).parser->FindNode(kUnknownLine));
}

TEST(ScreenParser, KnowsLabelsAsWholeWordsOnly) {
  EXPECT_EQ(Parsed({u"TOTALS EUR 1.00", u"TOTA EUR 1.00", u"total EUR 1.00"}).Dump(), "");
}

TEST(ScreenParser, ReadsTheLinesOfAFollowingScreenWithoutAHeader) {
  const Parsed parsed({u" THE END OF A LINE OF THE SCREEN BEFORE", u"EQUIV EUR 1.00", u"LOUNGE ACCESS"});
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  EXPECT_EQ(parsed.Dump(), "2852 \"EQUIV EUR 1.00\"\n  147 \"EUR\"\n  2717 \"1.00\"\n");
}

TEST(ScreenParser, MarksAScreenThatOthersFollow) {
  const Parsed parsed({u"TST 00001", u"-MORE-"});
  const auto mark = parsed.parser->FindNode(NodeTypeId::MoreScreens);
  ASSERT_TRUE(mark);
  EXPECT_FALSE(mark->HasWarning());
  EXPECT_FALSE(mark->HasChildren());
}

TEST(ScreenParser, TakesNoOtherTextForTheMoreScreensMark) {
  EXPECT_FALSE(Parsed({u"TST 00001", u"-MORE", u"X -MORE-"}).parser->FindNode(NodeTypeId::MoreScreens));
}

TEST(ScreenParser, JoinsALineWithTheLinesThatContinueIt) {
  const Parsed parsed({u"TOTAL EUR 10.00", u"  BR/H/1.17", u"EQUIV EUR 1.00"});
  const auto total = parsed.parser->FindNode(NodeTypeId::TotalLine);
  EXPECT_EQ(total->Text(), u"TOTAL EUR 10.00" + std::u16string(65, u' ') + u"  BR/H/1.17");
  EXPECT_FALSE(total->HasWarning());
  EXPECT_EQ(total->FindNode(NodeTypeId::BankersRateId)->Text(), u"H");
}

TEST(ScreenParser, LooksThroughBlankLinesInsideALine) {
  const Parsed parsed({u"TOTAL EUR 10.00", u"", u" BR/H/1.17"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::BankersRateId)->Text(), u"H");
}

TEST(ScreenParser, NamesLineAndColumnInWarningsOfContinuationLines) {
  const Parsed parsed({u"TOTAL EUR 10.00", u"  XX"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::TotalLine)->ErrorText(), u"line 2, column 3: unknown item");
}

TEST(ScreenParser, NeverReadsAFieldAcrossTheEndOfAScreenLine) {
  const Parsed parsed({u"TOTAL EUR " + std::u16string(70, u'1'), u" BR/H/1.17"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::TotalCollection)->Text(), std::u16string(70, u'1'));
  EXPECT_FALSE(parsed.parser->FindNode(NodeTypeId::TotalLine)->HasWarning());
}

TEST(ScreenParser, WarnsOfASecondHeader) {
  const Parsed parsed({u"TST 00001", u"TST 00002"});
  EXPECT_EQ(parsed.Dump(),
            "602 \"TST 00001\"\n  2689 \"00001\"\n"
            "602 \"TST 00002\" ! column 1: second header\n  2689 \"00002\"\n");
}

TEST(ScreenParser, CannotReadATextWithControlCharacters) {
  for (const char16_t control : {u'\0', u'\t', u'\n', u'\u001F', u'\u007F', u'\u009F'}) {
    const Parsed parsed = Parsed::FromText(Screen({u"TST 00001"}) + u"EQUIV" + control);
    EXPECT_EQ(parsed.result, kDamagedText) << static_cast<int>(control);
    EXPECT_EQ(parsed.parser->ErrorText(), u"line 2, column 6: control character");
    EXPECT_FALSE(parsed.parser->HasChildren());
  }
}

TEST(ScreenParser, ReadsLettersBeyondAscii) {
  const Parsed parsed({u"TST 00001", u"PAYMENT CR\u00C9DIT \u20AC \u00A0\U0001F6EB"});
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::PaymentRestrictionLine)->Text(),
            u"CR\u00C9DIT \u20AC \u00A0\U0001F6EB");
}

TEST(ScreenParser, CannotReadHalfASurrogatePair) {
  const Parsed parsed = Parsed::FromText(Screen({u"TST 00001"}) + static_cast<char16_t>(0xD800));
  EXPECT_EQ(parsed.result, kDamagedText);
  EXPECT_EQ(parsed.parser->ErrorText(), u"line 2, column 1: half a surrogate pair");
}

TEST(ScreenParser, KnowsNoOtherParseMode) {
  const auto parser = Make<ScreenParser>();
  EXPECT_EQ(parser->Parse(Screen({u"TST 00001"}), 5), kUnknownMode);
  EXPECT_FALSE(parser->HasChildren());
}

TEST(ScreenParser, ForgetsAnErrorWhenItParsesAgain) {
  const Parsed parsed = Parsed::FromText(u"\t");
  EXPECT_EQ(parsed.parser->Parse(Screen({u"TST 00001"}), 6), toolkit::kParseSuccess);
  EXPECT_EQ(parsed.parser->ErrorText(), u"");
}

}  // namespace
}  // namespace qorltst::simulator
