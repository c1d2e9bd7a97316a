// The line of the documents that were issued before; see simulator/lines/ExchangeLine.cpp and TicketDocument.cpp.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

/// What stands below the first node of the type in a display of this one line.
std::string Below(NodeTypeId type, const std::u16string& line) {
  const Parsed parsed(std::vector{line});
  const auto node = parsed.parser->FindNode(type);
  std::string dump = node ? DumpTree(*node) : "";
  return dump.substr(dump.find('\n') + 1);
}

std::u16string Warnings(const std::u16string& line) {
  return Parsed(std::vector{line}).parser->FindNode(NodeTypeId::OriginalIssueLine)->ErrorText();
}

TEST(ExchangeLine, HoldsTheOriginalDocument) {
  EXPECT_EQ(Below(NodeTypeId::OriginalIssueLine,
                  u"EXCH 14 OI/990-4700108801-2/C34/LON/28OCT26/91200015/V6K/4700108802-3-C12"),
            "  91 \"14\"\n"
            "  736 \"OI/990-4700108801-2/C34/LON/28OCT26/91200015/V6K/4700108802-3-C12\"\n"
            "    738 \"OI/990-4700108801-2/C34/LON/28OCT26/91200015/V6K/4700108802-3-C12\"\n"
            "      739 \"OI/990-4700108801-2/C34/LON/28OCT26/91200015/V6K/4700108802-3-C12\"\n"
            "        526 \"990\"\n"
            "        528 \"4700108801\"\n"
            "        534 \"2\"\n"
            "        740 \"C34\"\n"
            "          12 \"34\"\n"
            "        92 \"LON\"\n"
            "        467 \"28OCT26\"\n"
            "        743 \"91200015\"\n"
            "          544 \"91200015\"\n"
            "        541 \"V6K\"\n"
            "        741 \"4700108802-3-C12\"\n"
            "          529 \"4700108802\"\n"
            "          534 \"3\"\n"
            "          742 \"C12\"\n"
            "            12 \"12\"\n");
}

TEST(ExchangeLine, NeedsNothingButTheNumberOfADocument) {
  EXPECT_EQ(Warnings(u"EXCH 14 OI/990-4700108801"), u"");
  EXPECT_EQ(Below(NodeTypeId::OriginalIssue, u"EXCH 14 OI/990-4700108801///28OCT26"),
            "  526 \"990\"\n  528 \"4700108801\"\n  467 \"28OCT26\"\n");
}

TEST(ExchangeLine, GivesCouponsTaxAndPenaltyAsItems) {
  const Parsed parsed({u"EXCH 14 OI/990-4700108801/C34//////4700108802--C1 TP/840.00/T20.00/P50.00"});
  const auto itemOf = [&](NodeTypeId type) { return parsed.parser->FindNode(type)->Item(1)->Buffer(); };
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::Coupon)->Text(), u"C34");
  EXPECT_EQ(itemOf(NodeTypeId::Coupon), u"34");
  EXPECT_EQ(itemOf(NodeTypeId::ExchangeTax), u"20.00");
  EXPECT_EQ(itemOf(NodeTypeId::ExchangePenalty), u"50.00");
}

TEST(ExchangeLine, GivesTheCouponsOfAConjunctionAsAnItem) {
  const Parsed parsed({u"EXCH 14 OI/990-4700108801//////4700108802--C1"});
  const auto coupons = parsed.parser->FindNode(NodeTypeId::ConjunctionCoupon);
  ASSERT_TRUE(coupons);
  EXPECT_EQ(coupons->Item(1)->Buffer(), u"1");
}

TEST(ExchangeLine, GathersTheDocumentsIssuedInExchange) {
  EXPECT_EQ(Below(NodeTypeId::DocumentGroups, u"EXCH 14 IX/990-4700112233 IX/990-4700110077"),
            "  595 \"IX/990-4700112233 IX/990-4700110077\"\n"
            "    744 \"IX/990-4700112233\"\n"
            "      526 \"990\"\n"
            "      528 \"4700112233\"\n"
            "    744 \"IX/990-4700110077\"\n"
            "      526 \"990\"\n"
            "      528 \"4700110077\"\n");
}

TEST(ExchangeLine, GathersDocumentsAndAmountsInOneGroup) {
  EXPECT_EQ(Below(NodeTypeId::OriginalIssueBody, u"EXCH 14 AM/EUR/120.00 RF/X OI/990-4700108801 TP/840.00/T2/P5 RF/Y"),
            "  738 \"AM/EUR/120.00 RF/X OI/990-4700108801 TP/840.00/T2/P5\"\n"
            "    745 \"AM/EUR/120.00\"\n"
            "      147 \"EUR\"\n"
            "      2733 \"120.00\"\n"
            "    739 \"OI/990-4700108801\"\n"
            "      526 \"990\"\n"
            "      528 \"4700108801\"\n"
            "    746 \"TP/840.00/T2/P5\"\n"
            "      2733 \"840.00\"\n"
            "      747 \"T2\"\n"
            "        12 \"2\"\n"
            "      748 \"P5\"\n"
            "        12 \"5\"\n"
            "  219 \"X\"\n"
            "  219 \"Y\"\n");
}

TEST(ExchangeLine, CanHaveATaxOrAPenaltyAlone) {
  EXPECT_EQ(Below(NodeTypeId::TaxAndPenalty, u"EXCH 14 TP//T20.00"), "  747 \"T20.00\"\n    12 \"20.00\"\n");
  EXPECT_EQ(Below(NodeTypeId::TaxAndPenalty, u"EXCH 14 TP///P50.00"), "  748 \"P50.00\"\n    12 \"50.00\"\n");
  EXPECT_EQ(Warnings(u"EXCH 14 TP///P50.00"), u"");
}

TEST(ExchangeLine, HoldsARemarkToItsEnd) {
  const Parsed parsed({u"EXCH 14 RF/A RM/UPGRADE RF/B", u" FOR QX"});
  const auto group = parsed.parser->FindNode(NodeTypeId::FreeFlowGroup);
  EXPECT_EQ(DumpTree(*group), "749 \"RM/UPGRADE RF/B" + std::string(53, ' ') +
                                  "FOR QX\"\n"
                                  "  219 \"UPGRADE RF/B FOR QX\"\n");
}

TEST(ExchangeLine, WarnsOfEachPartOfADocumentThatDoesNotFitAndKeepsIt) {
  const std::u16string line = u"EXCH 14 OI/99-47001-12-3/C5/LONDON/31NOV26/912/V-7/47-X-12-9/1";
  EXPECT_EQ(Warnings(line),
            u"column 12: numeric airline expected; column 15: document number expected; "
            u"column 21: check digit expected; column 24: unexpected text; column 26: coupons expected; "
            u"column 29: city expected; column 36: date of issue expected; column 44: agency number expected; "
            u"column 48: voucher code expected; column 52: ticket number expected; column 55: check digit expected; "
            u"column 57: coupons expected; column 60: unexpected text; column 62: unexpected text");
  EXPECT_EQ(Below(NodeTypeId::OriginalIssue, line),
            "  526 \"99\"\n"
            "  528 \"47001\"\n"
            "  534 \"12\"\n"
            "  740 \"C5\"\n"
            "    12 \"5\"\n"
            "  92 \"LONDON\"\n"
            "  467 \"31NOV26\"\n"
            "  743 \"912\"\n"
            "    544 \"912\"\n"
            "  541 \"V-7\"\n"
            "  741 \"47-X-12-9\"\n"
            "    529 \"47\"\n"
            "    534 \"X\"\n"
            "    742 \"12\"\n"
            "      12 \"12\"\n");
}

TEST(ExchangeLine, WarnsOfEachOtherPartThatDoesNotFit) {
  EXPECT_EQ(Warnings(u"EXCH"), u"column 5: element number expected; column 5: document expected");
  EXPECT_EQ(Warnings(u"EXCH 14 990-4700108801"), u"column 9: unknown item");
  EXPECT_EQ(Warnings(u"EXCH 14 AM/120.00"), u"column 12: currency code expected; column 18: amount expected");
  EXPECT_EQ(Warnings(u"EXCH 14 TP/X/20.00/PX/1"),
            u"column 12: base fare expected; column 14: tax expected; column 20: penalty expected; "
            u"column 23: unexpected text");
  EXPECT_EQ(Warnings(u"EXCH 14 RF/ RM/"), u"column 12: reference expected; column 16: text expected");
}

}  // namespace
}  // namespace qorltst::simulator
