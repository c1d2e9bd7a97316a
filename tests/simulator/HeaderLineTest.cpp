// The header line; see simulator/lines/HeaderLine.cpp.
#include <gtest/gtest.h>

#include "DisplaySupport.h"
#include "simulator/SimulatorNumbers.h"

namespace qorltst::simulator {
namespace {

/// What stands below the header of a display of this one line.
std::string Fields(const std::u16string& line) {
  const std::string dump = Parsed(std::vector{line}).Dump();
  return dump.substr(dump.find('\n') + 1);
}

std::u16string Warnings(const std::u16string& line) {
  const Parsed parsed(std::vector{line});
  const auto header = parsed.parser->FindNode(NodeTypeId::TstRoot);
  EXPECT_TRUE(header);
  return header ? header->ErrorText() : u"";
}

TEST(HeaderLine, HoldsAllItsFieldsInDisplayOrder) {
  const std::u16string line = u"TST 00001* P/F BY/LONQX0100/SU/12NOV LD/20DEC26 OD/I/LONPAR SI/SITI FC/A/0";
  EXPECT_EQ(Parsed(std::vector{line}).Dump(),
            "602 \"TST 00001* P/F BY/LONQX0100/SU/12NOV LD/20DEC26 OD/I/LONPAR SI/SITI FC/A/0\"\n"
            "  2689 \"00001\"\n"
            "  2690 \"*\"\n"
            "  2691 \"F\"\n"
            "  464 \"LONQX0100\"\n"
            "  476 \"SU\"\n"
            "  94 \"12NOV\"\n"
            "  3324 \"20DEC26\" = 2026-12-20\n"
            "  2692 \"I\"\n"
            "  2693 \"LONPAR\"\n"
            "  2694 \"SITI\"\n"
            "  2695 \"A\"\n"
            "  3326 \"0\"\n");
}

TEST(HeaderLine, NeedsNothingButItsElementNumber) { EXPECT_EQ(Fields(u"TST 7"), "  2689 \"7\"\n"); }

TEST(HeaderLine, TakesALetterForThePnrChangeFlagToo) { EXPECT_EQ(Fields(u"TST 7C"), "  2689 \"7\"\n  2690 \"C\"\n"); }

TEST(HeaderLine, ReadsItsItemsInAnyOrder) {
  EXPECT_EQ(Fields(u"TST 7 SI/SOTO P/B"), "  2689 \"7\"\n  2694 \"SOTO\"\n  2691 \"B\"\n");
}

TEST(HeaderLine, ReadsItsItemsFromAContinuationLine) {
  const Parsed parsed({u"TST 7", u"    P/B"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::PricingId)->Text(), u"B");
}

TEST(HeaderLine, CanLeaveOutTheModeIndicator) {
  EXPECT_EQ(Warnings(u"TST 7 FC/A"), u"");
  EXPECT_EQ(Fields(u"TST 7 FC/A"), "  2689 \"7\"\n  2695 \"A\"\n");
}

TEST(HeaderLine, ReadsTheLastDateOfALeapYear) {
  EXPECT_EQ(Fields(u"TST 7 LD/29FEB28"), "  2689 \"7\"\n  3324 \"29FEB28\" = 2028-02-29\n");
}

TEST(HeaderLine, KeepsTheTextOfADateThatDoesNotExistButNoDateValue) {
  EXPECT_EQ(Fields(u"TST 7 LD/29FEB27"), "  2689 \"7\"\n  3324 \"29FEB27\"\n");
  EXPECT_EQ(Warnings(u"TST 7 LD/29FEB27"), u"column 10: last date expected");
}

TEST(HeaderLine, WarnsOfPartsThatAreMissing) {
  EXPECT_EQ(Warnings(u"TST 7 OD/I"), u"column 11: city pair expected");
  EXPECT_EQ(Warnings(u"TST 7 P/"), u"column 9: pricing id expected");
  EXPECT_EQ(Fields(u"TST 7 P/"), "  2689 \"7\"\n");
}

TEST(HeaderLine, KeepsPartsThatItWarnsOf) {
  EXPECT_EQ(Warnings(u"TST 7 BY/LONQX01/S/31NOV"),
            u"column 10: office expected; column 18: duty code expected; column 20: day and month expected");
  EXPECT_EQ(Fields(u"TST 7 BY/LONQX01/S/31NOV"), "  2689 \"7\"\n  464 \"LONQX01\"\n  476 \"S\"\n  94 \"31NOV\"\n");
}

TEST(HeaderLine, WarnsOfPartsThatAreTooMany) { EXPECT_EQ(Warnings(u"TST 7 SI/SITI/X"), u"column 15: unexpected text"); }

TEST(HeaderLine, WarnsOfItemsWithoutAKnownKey) {
  EXPECT_EQ(Warnings(u"TST 7 XX/1 SITI"), u"column 7: unknown item; column 12: unknown item");
}

TEST(HeaderLine, CannotBeReadWithoutAnElementNumber) {
  for (const std::u16string line : {u"TST 0A001", u"TST 1**", u"TST 123456", u"TST 1/2"}) {
    const Parsed parsed({u"EQUIV EUR 1.00", line});
    EXPECT_EQ(parsed.result, kDamagedHeader);
    EXPECT_EQ(parsed.parser->ErrorText(), u"header, column 5: element number expected");
    EXPECT_FALSE(parsed.parser->HasChildren());
  }
}

}  // namespace
}  // namespace qorltst::simulator
