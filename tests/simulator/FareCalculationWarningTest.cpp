// Fare calculations that are not quite right: what is missing or wrong, with its place, and what is read all the same.
#include <gtest/gtest.h>

#include "FareCalculationParts.h"

namespace qorltst::simulator {
namespace {

TEST(FareCalculationWarning, NamesAMissingDepartureCity) {
  EXPECT_EQ(WarningsOfLines({u"FCALC"}), "column 6: departure city expected");
  EXPECT_EQ(WarningsOf(u"QX PAR 120.50"), "column 7: departure city expected");
  EXPECT_EQ(WarningsOf(u"12NOV QX PAR 120.50"), "column 13: departure city expected");
}

TEST(FareCalculationWarning, NamesADateThatIsNone) {
  EXPECT_EQ(WarningsOf(u"31NOVLON QX PAR"), "column 7: date expected");
  EXPECT_EQ(WarningsOf(u"I-29FEB27LON QX PAR"), "column 9: date expected");
  EXPECT_EQ(PartOf(u"31NOVLON QX PAR", 439), "439 \"31NOV\"\n");
}

TEST(FareCalculationWarning, NamesAMissingCarrier) {
  EXPECT_EQ(WarningsOf(u"LON PAR 120.50"), "column 11: carrier expected");
  EXPECT_EQ(WarningsOf(u"LON X/PAR 120.50"), "column 11: carrier expected");
  EXPECT_EQ(PartOf(u"LON PAR 120.50", 2763), "2763 \"PAR\"\n");
}

TEST(FareCalculationWarning, NamesAMissingCity) {
  EXPECT_EQ(WarningsOf(u"LON QX ZZ TYO"), "column 14: city expected");
  EXPECT_EQ(WarningsOf(u"LON QX X/ 120.50"), "column 17: city expected");
  EXPECT_EQ(WarningsOf(u"LON QX NUC120.50END"), "column 14: city expected");
  EXPECT_EQ(WarningsOf(u"LON QX"), "column 13: city expected");
}

TEST(FareCalculationWarning, NamesAMissingAmount) {
  EXPECT_EQ(WarningsOf(u"LON QX PAR Q"), "column 19: amount expected");
  EXPECT_EQ(WarningsOf(u"LON QX PAR S M"), "column 20: amount expected");
  EXPECT_EQ(WarningsOf(u"LON QX PAR 120.50LESS"), "column 28: amount expected");
  EXPECT_EQ(WarningsOf(u"LON QX PAR 120.50 NUC END"), "column 29: amount expected");
  EXPECT_EQ(WarningsOf(u"LON NUC120.50/GBP END"), "column 25: amount expected");
  EXPECT_EQ(WarningsOf(u"LON END ROE"), "column 18: amount expected");
  EXPECT_EQ(WarningsOf(u"LON END XF JFK"), "column 21: amount expected");
}

TEST(FareCalculationWarning, NamesAMissingAirport) {
  EXPECT_EQ(WarningsOf(u"LON END XF"), "column 17: airport expected");
  EXPECT_EQ(WarningsOf(u"LON END ZP XT"), "column 18: airport expected");
}

TEST(FareCalculationWarning, NamesAMissingBracket) {
  EXPECT_EQ(WarningsOf(u"LON QX PAR (QX BRU 80.00"), "column 31: closing bracket expected");
  EXPECT_EQ(WarningsOf(u"LON QX PAR (QX BRU 80.00 NUC80.00END"), "column 32: closing bracket expected");
}

TEST(FareCalculationWarning, SkipsAWordThatCannotBeRead) {
  EXPECT_EQ(WarningsOf(u"LON ?4,5(A) QX PAR 120.50"), "column 11: unexpected text; column 16: unexpected text");
  EXPECT_EQ(PartOf(u"LON ??? QX PAR", 2763), "2763 \"PAR\"\n");
  EXPECT_EQ(WarningsOf(u"LON NUC120.50 ??? END"), "column 21: unexpected text");
  EXPECT_EQ(WarningsOf(u"LON (QX PAR (ZZ BRU) 80.00)"), "column 19: unexpected text; column 33: unexpected text");
}

TEST(FareCalculationWarning, CountsLinesAndColumnsOverContinuations) {
  EXPECT_EQ(WarningsOfLines({u"FCALC LON QX", u" ZZ PAR", u"", u"  PAR"}),
            "line 2, column 2: city expected; line 4, column 3: carrier expected");
}

TEST(FareCalculationWarning, IsGivenWhereAWordWasBrokenOverLines) {
  EXPECT_EQ(WarningsOfLines({u"FCALC LON QX P", u" AR 120.50"}),
            "column 14: city expected; column 14: unexpected text; line 2, column 5: city expected");
}

TEST(FareCalculationWarning, StandsOnTheLineAndNotOnItsParts) {
  const Parsed parsed({u"FCALC LON QX PAR Q M120.50"});
  EXPECT_TRUE(parsed.parser->FindNode(NodeTypeId::FareCalculationLine)->HasWarning());
  EXPECT_FALSE(parsed.parser->FindNode(NodeTypeId::Itinerary)->HasWarning());
}

TEST(FareCalculationWarning, IsNotNeededForALineOfTwentyScreens) {
  std::vector<std::u16string> lines{u"FCALC LON"};
  for (int i = 0; i < 480; ++i) {
    lines.emplace_back(u" QX X/PAR QX(EH)TYO Q25.00 10M1250.50YRT QX OSA S25.00 ZZ LON M1250.50YRT");
  }
  EXPECT_EQ(WarningsOfLines(lines), "");
}

}  // namespace
}  // namespace qorltst::simulator
