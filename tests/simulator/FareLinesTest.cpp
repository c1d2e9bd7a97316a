// The TST's own lines: fare, equivalent, net fare, total, payment restriction, ZapOff; see simulator/lines/.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

std::string Dump(const std::u16string& line) { return Parsed(std::vector{line}).Dump(); }

TEST(FareLine, HoldsIssueIdCurrencyAmountAndCorporateCode) {
  EXPECT_EQ(
      Dump(u"FARE F GBP 120.00 CC/ACME01"),
      "2850 \"FARE F GBP 120.00 CC/ACME01\"\n  1201 \"F\"\n  147 \"GBP\"\n  2717 \"120.00\"\n  2718 \"ACME01\"\n");
}

TEST(FareLine, StandsBesideTheHeaderAndNotBelowIt) {
  const Parsed parsed({u"TST 00001", u"FARE F GBP 120.00"});
  const auto children = parsed.parser->Children();
  EXPECT_EQ(children->Next()->TypeId(), NodeTypeId::TstRoot);
  EXPECT_EQ(children->Next()->TypeId(), NodeTypeId::FareLine);
  EXPECT_FALSE(children->Next());
}

TEST(FareLine, CanSayThatTheFareIsNotShown) {
  EXPECT_EQ(Dump(u"FARE I EUR IT"), "2850 \"FARE I EUR IT\"\n  1201 \"I\"\n  147 \"EUR\"\n  2717 \"IT\"\n");
}

TEST(FareLine, WarnsOfEachFieldThatIsMissing) {
  EXPECT_EQ(Dump(u"FARE"),
            "2850 \"FARE\" ! column 5: issue id expected; column 5: currency code expected; "
            "column 5: amount expected\n");
}

TEST(FareLine, KeepsAnAmountThatOnlyStartsAsOne) {
  EXPECT_EQ(
      Dump(u"FARE F GBP 12O.00"),
      "2850 \"FARE F GBP 12O.00\" ! column 12: amount expected\n  1201 \"F\"\n  147 \"GBP\"\n  2717 \"12O.00\"\n");
}

TEST(FareLine, ReadsWhatFollowsAMissingAmount) {
  EXPECT_EQ(Dump(u"FARE F GBP CC/ACME01"),
            "2850 \"FARE F GBP CC/ACME01\" ! column 12: amount expected\n"
            "  1201 \"F\"\n  147 \"GBP\"\n  2718 \"ACME01\"\n");
}

TEST(EquivalentLine, HoldsCurrencyAndAmount) {
  EXPECT_EQ(Dump(u"EQUIV EUR 140.50"), "2852 \"EQUIV EUR 140.50\"\n  147 \"EUR\"\n  2717 \"140.50\"\n");
}

TEST(EquivalentLine, WarnsOfMoreThanThat) {
  EXPECT_EQ(Dump(u"EQUIV EUR 140.50 CC/A"),
            "2852 \"EQUIV EUR 140.50 CC/A\" ! column 18: unexpected text\n  147 \"EUR\"\n  2717 \"140.50\"\n");
}

TEST(EquivalentLine, KnowsNoAmountInWords) {
  EXPECT_EQ(Dump(u"EQUIV EUR IT"),
            "2852 \"EQUIV EUR IT\" ! column 11: amount expected; column 11: unexpected text\n  147 \"EUR\"\n");
}

TEST(NetFareLine, KeepsTheZerosOfItsAmount) {
  EXPECT_EQ(Dump(u"NETFARE GBP 00150.00"), "3337 \"NETFARE GBP 00150.00\"\n  147 \"GBP\"\n  2717 \"00150.00\"\n");
}

TEST(NetFareLine, WarnsOfAPointWithoutDigits) {
  EXPECT_EQ(Dump(u"NETFARE GBP 150."),
            "3337 \"NETFARE GBP 150.\" ! column 13: amount expected\n  147 \"GBP\"\n  2717 \"150.\"\n");
}

TEST(TotalLine, HoldsCurrencyAndCollection) {
  EXPECT_EQ(Dump(u"TOTAL EUR 167.35"), "2857 \"TOTAL EUR 167.35\"\n  147 \"EUR\"\n  2725 \"167.35\"\n");
}

TEST(TotalLine, GroupsTheBankersRateAndItsAdditionalAmount) {
  EXPECT_EQ(Dump(u"TOTAL EUR 167.35 BR/H/1.170833/2.50USD"),
            "2857 \"TOTAL EUR 167.35 BR/H/1.170833/2.50USD\"\n"
            "  147 \"EUR\"\n"
            "  2725 \"167.35\"\n"
            "  2858 \"BR/H/1.170833/2.50USD\"\n"
            "    2726 \"H\"\n"
            "    2727 \"1.170833\"\n"
            "    2859 \"2.50USD\"\n"
            "      2727 \"2.50\"\n"
            "      2728 \"USD\"\n");
}

TEST(TotalLine, CanLeaveOutTheAdditionalAmount) {
  EXPECT_EQ(Dump(u"TOTAL EUR 1 BR/H/1.17"),
            "2857 \"TOTAL EUR 1 BR/H/1.17\"\n  147 \"EUR\"\n  2725 \"1\"\n"
            "  2858 \"BR/H/1.17\"\n    2726 \"H\"\n    2727 \"1.17\"\n");
}

TEST(TotalLine, LeavesAnAdditionalAmountInOnePieceWhenItCannotTellItsParts) {
  EXPECT_EQ(Dump(u"TOTAL EUR 1 BR/H/1.17/USD"),
            "2857 \"TOTAL EUR 1 BR/H/1.17/USD\" ! column 23: amount and currency expected\n"
            "  147 \"EUR\"\n  2725 \"1\"\n"
            "  2858 \"BR/H/1.17/USD\"\n    2726 \"H\"\n    2727 \"1.17\"\n    2859 \"USD\"\n");
}

TEST(PaymentRestrictionLine, HasItsFreeTextForItsOwnText) {
  EXPECT_EQ(Dump(u"PAYMENT  CASH  ONLY"), "2835 \"CASH  ONLY\"\n");
}

TEST(PaymentRestrictionLine, JoinsItsScreenLinesWithOneBlank) {
  const std::u16string full = u"PAYMENT " + std::u16string(72, u'A');
  EXPECT_EQ(Parsed({full, u" B", u"", u"     C  D"}).Dump(), "2835 \"" + std::string(72, 'A') + " B C  D\"\n");
}

TEST(PaymentRestrictionLine, WarnsWhenItIsEmpty) {
  EXPECT_EQ(Dump(u"PAYMENT"), "2835 \"\" ! column 8: text expected\n");
}

TEST(ZapOffLine, HoldsAnAmountOrAPercentage) {
  EXPECT_EQ(Dump(u"ZAPOFF 25.00"), "3336 \"ZAPOFF 25.00\"\n  3330 \"25.00\"\n");
  EXPECT_EQ(Dump(u"ZAPOFF 10P"), "3336 \"ZAPOFF 10P\"\n  3330 \"10P\"\n");
}

TEST(ZapOffLine, WarnsOfAnythingElse) {
  EXPECT_EQ(Dump(u"ZAPOFF TEN"), "3336 \"ZAPOFF TEN\" ! column 8: reduction expected\n  3330 \"TEN\"\n");
  EXPECT_EQ(Dump(u"ZAPOFF"), "3336 \"ZAPOFF\" ! column 7: reduction expected\n");
}

}  // namespace
}  // namespace qorltst::simulator
