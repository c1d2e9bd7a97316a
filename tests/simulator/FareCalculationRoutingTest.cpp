// The routing of a fare calculation: departure point, legs with their symbols, and what stands at the points.
#include <gtest/gtest.h>

#include "FareCalculationParts.h"

namespace qorltst::simulator {
namespace {

TEST(FareCalculationLine, HasADepartureItinerariesAndAnEnd) {
  EXPECT_EQ(Parsed({u"FCALC LON QX PAR120.50NUC120.50END"}).Dump(),
            "2869 \"FCALC LON QX PAR120.50NUC120.50END\"\n"
            "  2870 \"LON\"\n"
            "    2752 \"LON\"\n"
            "  2821 \"QX PAR120.50\"\n"
            "    889 \"QX PAR120.50\"\n"
            "      2754 \"QX\"\n"
            "      2763 \"PAR\"\n"
            "      2898 \"120.50\"\n"
            "        2717 \"120.50\"\n"
            "  2880 \"NUC120.50END\"\n"
            "    2897 \"NUC120.50\"\n"
            "      2716 \"NUC\"\n"
            "      2717 \"120.50\"\n"
            "    2774 \"END\"\n");
}

TEST(FareCalculationLine, GoesOnOverContinuationLines) {
  EXPECT_EQ(Parsed({u"FCALC LON QX", u" PAR120.50", u"", u" END"}).Dump(),
            "2869 \"FCALC LON QX" + std::string(68, ' ') + " PAR120.50" + std::string(150, ' ') +
                " END\"\n"
                "  2870 \"LON\"\n"
                "    2752 \"LON\"\n"
                "  2821 \"QX" +
                std::string(69, ' ') +
                "PAR120.50\"\n"
                "    889 \"QX" +
                std::string(69, ' ') +
                "PAR120.50\"\n"
                "      2754 \"QX\"\n"
                "      2763 \"PAR\"\n"
                "      2898 \"120.50\"\n"
                "        2717 \"120.50\"\n"
                "  2880 \"END\"\n"
                "    2774 \"END\"\n");
}

TEST(FareCalculationLine, FillsALineUpToItsLastColumn) {
  const std::u16string full = u"FCALC LON QX " + std::u16string(55, u' ') + u"PAR120.50END";
  ASSERT_EQ(full.size(), 80U);
  EXPECT_EQ(WarningsOfLines({full, u" ROE0.8"}), "");
}

TEST(FareCalculationDeparture, CanHaveADate) {
  const std::string tree = "2870 \"12NOV LON\"\n  2871 \"12NOV LON\"\n    439 \"12NOV\"\n    2753 \"LON\"\n";
  EXPECT_EQ(PartOf(u"12NOV LON QX PAR", 2870), tree);
  EXPECT_EQ(PartOf(u"12NOV26LON QX PAR", 2870),
            "2870 \"12NOV26LON\"\n  2871 \"12NOV26LON\"\n    439 \"12NOV26\"\n    2753 \"LON\"\n");
}

TEST(FareCalculationDeparture, CanFollowAnInvoluntaryRerouting) {
  EXPECT_EQ(PartOf(u"I-12NOVLON QX PAR", 2870),
            "2870 \"I-12NOVLON\"\n  2872 \"I-12NOVLON\"\n    2750 \"I-\"\n    2751 \"12NOV\"\n    2753 \"LON\"\n");
  EXPECT_EQ(PartOf(u"I- LON QX PAR", 2870), "2870 \"I- LON\"\n  2872 \"I- LON\"\n    2750 \"I-\"\n    2753 \"LON\"\n");
}

TEST(FareCalculationComponent, RunsOverAllItsLegsUpToTheFare) {
  EXPECT_EQ(PartOf(u"LON QX PAR 4U TYO 120.50 S7 LON", 889),
            "889 \"QX PAR 4U TYO 120.50\"\n"
            "  2754 \"QX\"\n  2763 \"PAR\"\n  2754 \"4U\"\n  2763 \"TYO\"\n"
            "  2898 \"120.50\"\n    2717 \"120.50\"\n");
}

TEST(FareCalculationComponent, EndsWithATourThatHasNoFare) {
  EXPECT_EQ(PartOf(u"LON QX PAR M/IT QX LON", 2821),
            "2821 \"QX PAR M/IT QX LON\"\n"
            "  889 \"QX PAR M/IT\"\n"
            "    2754 \"QX\"\n    2763 \"PAR\"\n    2902 \"M/IT\"\n      2769 \"M\"\n      2765 \"IT\"\n"
            "  889 \"QX LON\"\n    2754 \"QX\"\n    2763 \"LON\"\n");
}

TEST(FareCalculationLeg, CanHaveSeveralSymbolsInOneGroup) {
  EXPECT_EQ(PartOf(u"LON QX X/E/L/*/T/PAR", 889),
            "889 \"QX X/E/L/*/T/PAR\"\n"
            "  2754 \"QX\"\n"
            "  2822 \"X/E/L/*/T/\"\n"
            "    2758 \"X/\"\n    2757 \"E/\"\n    2759 \"L/\"\n    2760 \"*/\"\n    2756 \"T/\"\n"
            "  2763 \"PAR\"\n");
}

TEST(FareCalculationLeg, CanBeAGapInsideTheMileage) {
  EXPECT_EQ(PartOf(u"LON QX PAR /-BRU", 2822), "2822 \"/-\"\n  2762 \"/-\"\n");
}

TEST(FareCalculationLeg, CanBeAGapOutsideTheMileage) {
  EXPECT_EQ(PartOf(u"LON QX PAR //X/BRU", 2822), "2822 \"//X/\"\n  2761 \"//\"\n  2758 \"X/\"\n");
}

TEST(FareCalculationPoint, CanHaveAGlobalIndicator) {
  const std::string tree = "2907 \"(EH)\"\n  2755 \"EH\"\n";
  EXPECT_EQ(PartOf(u"LON QX(EH)TYO", 2907), tree);
  EXPECT_EQ(PartOf(u"LON QX TYO (EH)", 2907), tree);
}

TEST(FareCalculationPoint, CanHaveSurchargesInOneGroup) {
  EXPECT_EQ(PartOf(u"LON QX TYO Q10.00Q LONTYO5.00", 2823),
            "2823 \"Q10.00Q LONTYO5.00\"\n"
            "  2823 \"Q10.00\"\n    2764 \"10.00\"\n"
            "  2823 \"Q LONTYO5.00\"\n    1130 \"LONTYO\"\n    2764 \"5.00\"\n");
}

TEST(FareCalculationPoint, CanHaveAStopOverCharge) {
  EXPECT_EQ(PartOf(u"LON QX TYO S50.00", 2903), "2903 \"S50.00\"\n  2764 \"50.00\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO 2S50.00", 2903), "2903 \"2S50.00\"\n  2767 \"2\"\n  2764 \"50.00\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO S/2", 2903), "2903 \"S/2\"\n  2767 \"2\"\n");
}

TEST(FareCalculationPoint, CanHaveAMileageItem) {
  EXPECT_EQ(PartOf(u"LON QX TYO M120.50", 2902), "2902 \"M\"\n  2769 \"M\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO 5M120.50", 2902), "2902 \"5M\"\n  2768 \"5\"\n  2769 \"M\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO 25M/BT", 2902), "2902 \"25M/BT\"\n  2768 \"25\"\n  2769 \"M\"\n  2766 \"BT\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO IT", 2902), "2902 \"IT\"\n  2765 \"IT\"\n");
}

TEST(FareCalculationPoint, CanHaveAHigherIntermediatePoint) {
  EXPECT_EQ(PartOf(u"LON QX TYO 15M LONOSA/Y120.50", 2904), "2904 \"LONOSA/Y\"\n  1130 \"LONOSA\"\n  93 \"Y\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO 15M LONOSA120.50", 2904), "2904 \"LONOSA\"\n  1130 \"LONOSA\"\n");
}

TEST(FareCalculationPoint, CanHaveALowestCombinationAndAFictitiousPoint) {
  EXPECT_EQ(PartOf(u"LON QX TYO LC/SEL", 2906), "2906 \"LC/SEL\"\n  92 \"SEL\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO F/SEL", 2900), "2900 \"F/SEL\"\n  92 \"SEL\"\n");
}

TEST(FareCalculationPoint, CanHaveAnAllowanceOfExtraMileage) {
  EXPECT_EQ(PartOf(u"LON QX TYO E/XXX M120.50", 2770), "2770 \"E/XXX\"\n");
}

TEST(FareCalculationPoint, CanHaveMileageEqualizationsInOneGroup) {
  EXPECT_EQ(PartOf(u"LON QX TYO B/BUE B/RIO/5M/IT 120.50", 2824),
            "2824 \"B/BUE B/RIO/5M/IT\"\n"
            "  2901 \"B/BUE\"\n    92 \"BUE\"\n"
            "  2901 \"B/RIO/5M/IT\"\n    92 \"RIO\"\n    2902 \"5M/IT\"\n"
            "      2768 \"5\"\n      2769 \"M\"\n      2765 \"IT\"\n");
}

TEST(FareCalculationSideTrip, BelongsToTheComponentThatItInterrupts) {
  EXPECT_EQ(PartOf(u"LON QX PAR (ZZ BRU Q5.00 ZZ PAR 80.00 ZZ LIL) QX TYO", 889),
            "889 \"QX PAR (ZZ BRU Q5.00 ZZ PAR 80.00 ZZ LIL) QX TYO\"\n"
            "  2754 \"QX\"\n  2763 \"PAR\"\n"
            "  2820 \"(ZZ BRU Q5.00 ZZ PAR 80.00 ZZ LIL)\"\n"
            "    2873 \"ZZ BRU Q5.00 ZZ PAR 80.00\"\n"
            "      2825 \"ZZ BRU Q5.00 ZZ PAR 80.00\"\n"
            "        889 \"ZZ BRU Q5.00\"\n"
            "          2754 \"ZZ\"\n          2763 \"BRU\"\n          2823 \"Q5.00\"\n            2764 \"5.00\"\n"
            "        889 \"ZZ PAR 80.00\"\n"
            "          2754 \"ZZ\"\n          2763 \"PAR\"\n          2898 \"80.00\"\n            2717 \"80.00\"\n"
            "    2873 \"ZZ LIL\"\n"
            "      2825 \"ZZ LIL\"\n"
            "        889 \"ZZ LIL\"\n          2754 \"ZZ\"\n          2763 \"LIL\"\n"
            "  2754 \"QX\"\n  2763 \"TYO\"\n");
}

TEST(FareCalculationSideTrip, EndsAComponentOfItsOwnWithATour) {
  EXPECT_EQ(PartOf(u"LON (QX BRU BT QX LON M/IT 80.00)", 2820),
            "2820 \"(QX BRU BT QX LON M/IT 80.00)\"\n"
            "  2873 \"QX BRU BT\"\n    2825 \"QX BRU BT\"\n      889 \"QX BRU BT\"\n"
            "        2754 \"QX\"\n        2763 \"BRU\"\n        2902 \"BT\"\n          2766 \"BT\"\n"
            "  2873 \"QX LON M/IT 80.00\"\n    2825 \"QX LON M/IT 80.00\"\n      889 \"QX LON M/IT 80.00\"\n"
            "        2754 \"QX\"\n        2763 \"LON\"\n"
            "        2902 \"M/IT\"\n          2769 \"M\"\n          2765 \"IT\"\n"
            "        2898 \"80.00\"\n          2717 \"80.00\"\n");
}

TEST(FareCalculationSideTrip, StandsBesideTheComponentsWhereNoneIsOpen) {
  EXPECT_EQ(PartOf(u"LON (QX PAR) QX TYO", 2821),
            "2821 \"(QX PAR) QX TYO\"\n"
            "  2820 \"(QX PAR)\"\n    2873 \"QX PAR\"\n      2825 \"QX PAR\"\n        889 \"QX PAR\"\n"
            "          2754 \"QX\"\n          2763 \"PAR\"\n"
            "  889 \"QX TYO\"\n    2754 \"QX\"\n    2763 \"TYO\"\n");
}

}  // namespace
}  // namespace qorltst::simulator
