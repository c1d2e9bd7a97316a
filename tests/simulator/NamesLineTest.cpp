// The line of the passengers; see simulator/lines/NamesLine.cpp.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

/// What stands below the container of a display of these lines.
std::string Passengers(const std::vector<std::u16string>& lines) {
  const Parsed parsed(lines);
  const auto container = parsed.parser->FindNode(NodeTypeId::NameContainer);
  std::string dump = container ? DumpTree(*container) : "";
  return dump.substr(dump.find('\n') + 1);
}

std::string Passengers(const std::u16string& line) { return Passengers(std::vector{line}); }

std::u16string Warnings(const std::u16string& line) {
  return Parsed(std::vector{line}).parser->FindNode(NodeTypeId::NameLine)->ErrorText();
}

TEST(NamesLine, HoldsAContainerOfPassengers) {
  EXPECT_EQ(Parsed({u"NAMES 1.ORRIN/HALE 2.ORRIN/TESS"}).Dump(),
            "2845 \"NAMES 1.ORRIN/HALE 2.ORRIN/TESS\"\n"
            "  563 \"1.ORRIN/HALE 2.ORRIN/TESS\"\n"
            "    10 \"1.ORRIN/HALE\"\n"
            "      2697 \"1\"\n"
            "      466 \"ORRIN\"\n"
            "      460 \"HALE\"\n"
            "    10 \"2.ORRIN/TESS\"\n"
            "      2697 \"2\"\n"
            "      466 \"ORRIN\"\n"
            "      460 \"TESS\"\n");
}

TEST(NamesLine, HoldsSeveralPassengerTypesAndAnIdentity) {
  EXPECT_EQ(Passengers(u"NAMES 1.ORRIN/H (ADT+SRC/P4471902)"),
            "  10 \"1.ORRIN/H (ADT+SRC/P4471902)\"\n"
            "    2697 \"1\"\n"
            "    466 \"ORRIN\"\n"
            "    460 \"H\"\n"
            "    564 \"(ADT+SRC/P4471902)\"\n"
            "      614 \"ADT+SRC\"\n"
            "        494 \"ADT\"\n"
            "        494 \"SRC\"\n"
            "      615 \"P4471902\"\n"
            "        493 \"P4471902\"\n");
}

TEST(NamesLine, CanHoldAnIdentityWithoutAPassengerType) {
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H (/P4471902)"), u"");
  EXPECT_EQ(Passengers(u"NAMES 1.ORRIN/H (/P4471902)"),
            "  10 \"1.ORRIN/H (/P4471902)\"\n"
            "    2697 \"1\"\n"
            "    466 \"ORRIN\"\n"
            "    460 \"H\"\n"
            "    564 \"(/P4471902)\"\n"
            "      615 \"P4471902\"\n"
            "        493 \"P4471902\"\n");
}

TEST(NamesLine, MarksExtraSeatsAndCabinBaggage) {
  EXPECT_EQ(Passengers(u"NAMES 1.ORRIN/H EXST CBBG"),
            "  10 \"1.ORRIN/H EXST CBBG\"\n"
            "    2697 \"1\"\n"
            "    466 \"ORRIN\"\n"
            "    460 \"H\"\n"
            "    490 \"EXST\"\n"
            "    491 \"CBBG\"\n");
}

TEST(NamesLine, ReadsNamesOfSeveralWords) {
  EXPECT_EQ(Passengers(u"NAMES 1.VAN DER O'RIN-ELST/HALE JAN MR"),
            "  10 \"1.VAN DER O'RIN-ELST/HALE JAN MR\"\n"
            "    2697 \"1\"\n"
            "    466 \"VAN DER O'RIN-ELST\"\n"
            "    460 \"HALE JAN MR\"\n");
}

TEST(NamesLine, GoesOnInContinuationLines) {
  const std::string passengers = Passengers({u"NAMES 1.ORRIN/HALE", u" (ADT) EXST 2.ORRIN/TESS", u" 3.ORRIN/PIM"});
  EXPECT_EQ(passengers, "  10 \"1.ORRIN/HALE" + std::string(63, ' ') +
                            "(ADT) EXST\"\n"
                            "    2697 \"1\"\n"
                            "    466 \"ORRIN\"\n"
                            "    460 \"HALE\"\n"
                            "    564 \"(ADT)\"\n"
                            "      614 \"ADT\"\n"
                            "        494 \"ADT\"\n"
                            "    490 \"EXST\"\n"
                            "  10 \"2.ORRIN/TESS\"\n"
                            "    2697 \"2\"\n"
                            "    466 \"ORRIN\"\n"
                            "    460 \"TESS\"\n"
                            "  10 \"3.ORRIN/PIM\"\n"
                            "    2697 \"3\"\n"
                            "    466 \"ORRIN\"\n"
                            "    460 \"PIM\"\n");
}

TEST(NamesLine, DoesNotTakeAWordOfTheNextScreenLineForPartOfAName) {
  const Parsed parsed({u"NAMES 1.ORRIN/HALE", u" MR"});
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::Initial)->Text(), u"HALE");
  EXPECT_EQ(parsed.parser->FindNode(NodeTypeId::NameLine)->ErrorText(), u"line 2, column 2: unknown item");
}

TEST(NamesLine, WarnsOnTheLineAndOnThePassengerConcerned) {
  EXPECT_EQ(Parsed({u"NAMES 1.ORRIN/H 2.ORRIN 3.ORRIN/T"}).Dump(),
            "2845 \"NAMES 1.ORRIN/H 2.ORRIN 3.ORRIN/T\" ! column 24: first name or initial expected\n"
            "  563 \"1.ORRIN/H 2.ORRIN 3.ORRIN/T\"\n"
            "    10 \"1.ORRIN/H\"\n"
            "      2697 \"1\"\n"
            "      466 \"ORRIN\"\n"
            "      460 \"H\"\n"
            "    10 \"2.ORRIN\" ! column 24: first name or initial expected\n"
            "      2697 \"2\"\n"
            "      466 \"ORRIN\"\n"
            "    10 \"3.ORRIN/T\"\n"
            "      2697 \"3\"\n"
            "      466 \"ORRIN\"\n"
            "      460 \"T\"\n");
}

TEST(NamesLine, WarnsOfEachPartThatDoesNotFit) {
  EXPECT_EQ(Warnings(u"NAMES"), u"column 6: passenger expected");
  EXPECT_EQ(Warnings(u"NAMES ORRIN/H 1.ORRIN/H"), u"column 7: passenger expected");
  EXPECT_EQ(Warnings(u"NAMES 1./H"), u"column 9: last name expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H/X"), u"column 15: first name or initial expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H VIP/1"), u"column 17: unknown item");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H ()"), u"column 18: passenger type expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H (ADT+)"), u"column 22: passenger type expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H (ADT/P-1)"), u"column 22: identity number expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H (ADT"), u"column 21: closing bracket expected");
  EXPECT_EQ(Warnings(u"NAMES 1.ORRIN/H (ADT)X"), u"column 22: closing bracket expected");
}

TEST(NamesLine, KeepsPartsThatItWarnsOf) {
  EXPECT_EQ(Passengers(u"NAMES 1.ORRIN/H (A-T/P-1"),
            "  10 \"1.ORRIN/H (A-T/P-1\" ! column 25: closing bracket expected; column 18: passenger type expected; "
            "column 22: identity number expected\n"
            "    2697 \"1\"\n"
            "    466 \"ORRIN\"\n"
            "    460 \"H\"\n"
            "    564 \"(A-T/P-1\"\n"
            "      614 \"A-T\"\n"
            "        494 \"A-T\"\n"
            "      615 \"P-1\"\n"
            "        493 \"P-1\"\n");
}

}  // namespace
}  // namespace qorltst::simulator
