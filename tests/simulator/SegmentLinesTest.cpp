// The lines of the journey: air, open and surface segments and the destination; see simulator/lines/.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

std::string Dump(const std::u16string& line) { return Parsed(std::vector{line}).Dump(); }

/// The error text of a display's only line.
std::u16string Warnings(const std::u16string& line) {
  return Parsed(std::vector{line}).parser->Children()->Next()->ErrorText();
}

TEST(AirLine, HoldsAllItsFieldsInDisplayOrder) {
  EXPECT_EQ(Dump(u"AIR 1 X LON QX 0341 Y B 12NOV 0930 OK FB/YLE6M/ADT NV/12NOV/12MAY BG/20K"),
            "230 \"AIR 1 X LON QX 0341 Y B 12NOV 0930 OK FB/YLE6M/ADT NV/12NOV/12MAY BG/20K\"\n"
            "  2699 \"1\"\n"
            "  2700 \"X\"\n"
            "  92 \"LON\"\n"
            "  3 \"QX\"\n"
            "  95 \"0341\"\n"
            "  93 \"Y\"\n"
            "  2705 \"B\"\n"
            "  94 \"12NOV\"\n"
            "  99 \"0930\"\n"
            "  96 \"OK\"\n"
            "  2707 \"YLE6M\"\n"
            "  2708 \"ADT\"\n"
            "  2709 \"12NOV\"\n"
            "  2710 \"12MAY\"\n"
            "  2711 \"20K\"\n");
}

TEST(AirLine, CanLeaveOutItsItemsConnectionAndDesignator) {
  EXPECT_EQ(Dump(u"AIR 1 LON Q7 7A Y 12NOV 2359 RQ"),
            "230 \"AIR 1 LON Q7 7A Y 12NOV 2359 RQ\"\n"
            "  2699 \"1\"\n"
            "  92 \"LON\"\n"
            "  3 \"Q7\"\n"
            "  95 \"7A\"\n"
            "  93 \"Y\"\n"
            "  94 \"12NOV\"\n"
            "  99 \"2359\"\n"
            "  96 \"RQ\"\n");
}

TEST(AirLine, CanSayOnlyUntilWhenTheTicketIsValid) {
  EXPECT_EQ(Dump(u"AIR 1 LON QX 7 Y 12NOV 0930 OK NV//12MAY"),
            "230 \"AIR 1 LON QX 7 Y 12NOV 0930 OK NV//12MAY\"\n"
            "  2699 \"1\"\n"
            "  92 \"LON\"\n"
            "  3 \"QX\"\n"
            "  95 \"7\"\n"
            "  93 \"Y\"\n"
            "  94 \"12NOV\"\n"
            "  99 \"0930\"\n"
            "  96 \"OK\"\n"
            "  2710 \"12MAY\"\n");
}

TEST(AirLine, ReadsItsItemsFromAContinuationLine) {
  const Parsed parsed({u"AIR 1 LON QX 7 Y 12NOV", u" 0930 OK", u" BG/20K"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::TimeText)->Text(), u"0930");
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::BaggageAllowance)->Text(), u"20K");
}

TEST(AirLine, ReadsWhatFollowsAMissingField) {
  EXPECT_EQ(Dump(u"AIR LON 0341 12NOV 0930 FB/Y"),
            "230 \"AIR LON 0341 12NOV 0930 FB/Y\" ! column 5: element number expected; column 9: carrier expected; "
            "column 14: class expected; column 25: status expected\n"
            "  92 \"LON\"\n"
            "  95 \"0341\"\n"
            "  94 \"12NOV\"\n"
            "  99 \"0930\"\n"
            "  2707 \"Y\"\n");
}

TEST(AirLine, KeepsAFieldThatFitsNowhereAtItsPlace) {
  EXPECT_EQ(Dump(u"AIR 1A LON QX 0341 Y 12NVO 0930 OK"),
            "230 \"AIR 1A LON QX 0341 Y 12NVO 0930 OK\" ! column 5: element number expected; "
            "column 22: day and month expected\n"
            "  2699 \"1A\"\n"
            "  92 \"LON\"\n"
            "  3 \"QX\"\n"
            "  95 \"0341\"\n"
            "  93 \"Y\"\n"
            "  94 \"12NVO\"\n"
            "  99 \"0930\"\n"
            "  96 \"OK\"\n");
}

TEST(AirLine, WarnsOfEveryFieldWhenItIsEmpty) {
  EXPECT_EQ(Warnings(u"AIR"),
            u"column 4: element number expected; column 4: board point expected; column 4: carrier expected; "
            u"column 4: flight number expected; column 4: class expected; column 4: day and month expected; "
            u"column 4: time expected; column 4: status expected");
}

TEST(AirLine, WarnsOfItemsThatDoNotFit) {
  const std::u16string start = u"AIR 1 LON QX 7 Y 12NOV 0930 OK ";
  EXPECT_EQ(Warnings(start + u"FB/"), u"column 35: fare basis expected");
  EXPECT_EQ(Warnings(start + u"FB/YLE/ADULT"), u"column 39: passenger type expected");
  EXPECT_EQ(Warnings(start + u"NV/31JUN"), u"column 35: day and month expected");
  EXPECT_EQ(Warnings(start + u"BG/20-K"), u"column 35: baggage allowance expected");
  EXPECT_EQ(Warnings(start + u"MEAL"), u"column 32: unknown item");
}

TEST(OpenLine, HoldsAllItsFieldsInDisplayOrder) {
  EXPECT_EQ(Dump(u"OPEN 3 O PAR QX Y 12NOV FB/YLE6M/ADT NV/12NOV/12MAY BG/1PC"),
            "2847 \"OPEN 3 O PAR QX Y 12NOV FB/YLE6M/ADT NV/12NOV/12MAY BG/1PC\"\n"
            "  2699 \"3\"\n"
            "  2700 \"O\"\n"
            "  92 \"PAR\"\n"
            "  3 \"QX\"\n"
            "  93 \"Y\"\n"
            "  94 \"12NOV\"\n"
            "  2707 \"YLE6M\"\n"
            "  2708 \"ADT\"\n"
            "  2709 \"12NOV\"\n"
            "  2710 \"12MAY\"\n"
            "  2711 \"1PC\"\n");
}

TEST(OpenLine, CanBeWithoutADate) {
  EXPECT_EQ(Dump(u"OPEN 3 PAR QX Y BG/1PC"),
            "2847 \"OPEN 3 PAR QX Y BG/1PC\"\n"
            "  2699 \"3\"\n"
            "  92 \"PAR\"\n"
            "  3 \"QX\"\n"
            "  93 \"Y\"\n"
            "  2711 \"1PC\"\n");
}

TEST(OpenLine, HasNoFlight) {
  EXPECT_EQ(Warnings(u"OPEN 3 PAR QX 0341 Y"), u"column 15: class expected; column 20: unknown item");
}

TEST(ArnkLine, HoldsElementNumberAndBoardPoint) {
  EXPECT_EQ(Dump(u"ARNK 2 PAR"), "239 \"ARNK 2 PAR\"\n  2699 \"2\"\n  2713 \"PAR\"\n");
}

TEST(ArnkLine, WarnsOfWhatDoesNotFit) {
  EXPECT_EQ(Dump(u"ARNK ROME X"),
            "239 \"ARNK ROME X\" ! column 6: element number expected; column 6: board point expected; "
            "column 11: unexpected text\n  2713 \"ROME\"\n");
  EXPECT_EQ(Warnings(u"ARNK 2"), u"column 7: board point expected");
}

TEST(DestinationLine, HoldsTheCityAndTheArrival) {
  EXPECT_EQ(Dump(u"DEST LON 1755"), "2848 \"DEST LON 1755\"\n  2714 \"LON\"\n  99 \"1755\"\n");
  EXPECT_EQ(Dump(u"DEST LON"), "2848 \"DEST LON\"\n  2714 \"LON\"\n");
}

TEST(DestinationLine, WarnsOnItsNodesToo) {
  EXPECT_EQ(Dump(u"DEST L0N 2460 LATE"),
            "2848 \"DEST L0N 2460 LATE\" ! column 6: destination expected; column 10: time expected; "
            "column 15: unexpected text\n"
            "  2714 \"L0N\" ! column 6: destination expected\n"
            "  99 \"2460\" ! column 10: time expected; column 15: unexpected text\n");
}

TEST(DestinationLine, WarnsWhenTheCityIsMissing) {
  EXPECT_EQ(Dump(u"DEST 1755"), "2848 \"DEST 1755\" ! column 6: destination expected\n  99 \"1755\"\n");
  EXPECT_EQ(Dump(u"DEST"), "2848 \"DEST\" ! column 5: destination expected\n");
}

}  // namespace
}  // namespace qorltst::simulator
