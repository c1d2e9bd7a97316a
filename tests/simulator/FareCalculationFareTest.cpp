// The fares of a fare calculation, the checks and charges beside them, and its end line.
#include <gtest/gtest.h>

#include "FareCalculationParts.h"

namespace qorltst::simulator {
namespace {

TEST(FareCalculationFare, CanHaveAFareBasisBesideIt) {
  EXPECT_EQ(PartOf(u"LON QX PAR120.50YRT/CH25 QX LON", 889),
            "889 \"QX PAR120.50YRT/CH25\"\n"
            "  2754 \"QX\"\n  2763 \"PAR\"\n"
            "  2898 \"120.50YRT/CH25\"\n    2717 \"120.50\"\n"
            "  2706 \"YRT/CH25\"\n");
}

TEST(FareCalculationFare, IsFollowedByACarrierWhereACodeOfTwoCharactersFollows) {
  EXPECT_EQ(PartOf(u"LON QX PAR120.50QX LON130.50U2 ROM", 2821),
            "2821 \"QX PAR120.50QX LON130.50U2 ROM\"\n"
            "  889 \"QX PAR120.50\"\n"
            "    2754 \"QX\"\n    2763 \"PAR\"\n    2898 \"120.50\"\n      2717 \"120.50\"\n"
            "  889 \"QX LON130.50\"\n"
            "    2754 \"QX\"\n    2763 \"LON\"\n    2898 \"130.50\"\n      2717 \"130.50\"\n"
            "  889 \"U2 ROM\"\n    2754 \"U2\"\n    2763 \"ROM\"\n");
}

TEST(FareCalculationFare, IsNotMistakenForATotalThatFollowsAtOnce) {
  EXPECT_EQ(PartOf(u"LON QX PAR 120JPY240END", 2897), "2897 \"JPY240\"\n  2716 \"JPY\"\n  2717 \"240\"\n");
  EXPECT_EQ(PartOf(u"LON QX PAR 120NUC240", 2897), "2897 \"NUC240\"\n  2716 \"NUC\"\n  2717 \"240\"\n");
  EXPECT_EQ(PartOf(u"LON QX PAR 120NUC 240", 2897), "2897 \"NUC 240\"\n  2716 \"NUC\"\n  2717 \"240\"\n");
  EXPECT_EQ(PartOf(u"LON QX PAR 120JPY240", 2706), "2706 \"JPY240\"\n");
}

TEST(FareCalculationFare, CanBeLessAnAmount) {
  EXPECT_EQ(PartOf(u"LON QX PAR 120.50-25.00", 2899), "2899 \"-25.00\"\n  2771 \"25.00\"\n");
  EXPECT_EQ(PartOf(u"LON QX PAR 120.50LESS 25.00", 2899), "2899 \"LESS 25.00\"\n  2771 \"25.00\"\n");
}

TEST(FareCalculationFare, CanHaveStopOvers) {
  EXPECT_EQ(PartOf(u"LON QX PAR 120.50S20.00", 2898),
            "2898 \"120.50S20.00\"\n  2717 \"120.50\"\n  2903 \"S20.00\"\n    2764 \"20.00\"\n");
}

TEST(FareCalculationFare, CountsForTheWholeLineWhereItFollowsNoRouting) {
  EXPECT_EQ(PartOf(u"LON QX PAR 120.50 241.00", 2821),
            "2821 \"QX PAR 120.50 241.00\"\n"
            "  889 \"QX PAR 120.50\"\n"
            "    2754 \"QX\"\n    2763 \"PAR\"\n    2898 \"120.50\"\n      2717 \"120.50\"\n"
            "  2898 \"241.00\"\n    2717 \"241.00\"\n");
}

TEST(FareCalculationMinimum, CanBeAPlusUp) {
  EXPECT_EQ(PartOf(u"LON QX TYO 120.50 P LONTYO LC/SEL 25.00YRT", 2875),
            "2875 \"P LONTYO LC/SEL 25.00YRT\"\n"
            "  2781 \"P\"\n  2784 \"LON\"\n  2785 \"TYO\"\n"
            "  2906 \"LC/SEL\"\n    92 \"SEL\"\n"
            "  2898 \"25.00YRT\"\n    2717 \"25.00\"\n"
            "  2706 \"YRT\"\n");
}

TEST(FareCalculationMinimum, CanBeAnotherCheckWithoutAnAmount) {
  for (const std::u16string check : {u"BHC", u"COM", u"COP", u"CTM", u"DMC", u"OSC", u"RSC"}) {
    const std::string name = ToUtf8(check);
    EXPECT_EQ(PartOf(u"LON QX TYO " + check + u" LONTYO QX PAR", 2875),
              "2875 \"" + name + " LONTYO\"\n  2782 \"" + name + "\"\n  2784 \"LON\"\n  2785 \"TYO\"\n");
  }
}

TEST(FareCalculationDifferential, HasIntermediatePointsMileageAndAFare) {
  EXPECT_EQ(PartOf(u"LON QX TYO D LONTYO LONPAR/C PARTYO 5M12.00", 2877),
            "2877 \"D LONTYO LONPAR/C PARTYO 5M12.00\"\n"
            "  2788 \"LONTYO\"\n"
            "  2827 \"LONPAR/C PARTYO\"\n"
            "    2904 \"LONPAR/C\"\n      1130 \"LONPAR\"\n      2908 \"C\"\n        2780 \"C\"\n"
            "    2904 \"PARTYO\"\n      1130 \"PARTYO\"\n"
            "  2902 \"5M\"\n    2768 \"5\"\n    2769 \"M\"\n"
            "  2898 \"12.00\"\n    2717 \"12.00\"\n");
}

TEST(FareCalculationDifferential, NeedsNoMoreThanItsCityPair) {
  EXPECT_EQ(PartOf(u"LON QX TYO D LONTYO", 2877), "2877 \"D LONTYO\"\n  2788 \"LONTYO\"\n");
}

TEST(FareCalculationCommonFare, HasAGroupOfCitiesForEachStretch) {
  EXPECT_EQ(PartOf(u"LON QX TYO C/LONPAR/PAROSATYO 120.00", 2876),
            "2876 \"C/LONPAR/PAROSATYO 120.00\"\n"
            "  2826 \"LONPAR/PAROSATYO\"\n"
            "    2896 \"LONPAR\"\n      92 \"LON\"\n      92 \"PAR\"\n"
            "    2896 \"PAROSATYO\"\n      92 \"PAR\"\n      92 \"OSA\"\n      92 \"TYO\"\n"
            "  2898 \"120.00\"\n    2717 \"120.00\"\n");
}

TEST(FareCalculationExtraSeat, HasItsFareInParts) {
  EXPECT_EQ(PartOf(u"LON QX TYO EXST LON GBP120.00LESS20.00", 2878),
            "2878 \"EXST LON GBP120.00LESS20.00\"\n"
            "  2772 \"EXST\"\n  2828 \"LON\"\n  2879 \"GBP\"\n    147 \"GBP\"\n"
            "  2717 \"120.00\"\n  2899 \"LESS20.00\"\n    2771 \"20.00\"\n");
}

TEST(FareCalculationExtraSeat, CanBeASeatForCabinBaggage) {
  EXPECT_EQ(PartOf(u"LON QX TYO CBBG LON 120.00", 2878),
            "2878 \"CBBG LON 120.00\"\n  2773 \"CBBG\"\n  2828 \"LON\"\n  2717 \"120.00\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO CBBG LON120.00", 2878),
            "2878 \"CBBG LON120.00\"\n  2773 \"CBBG\"\n  2879 \"LON\"\n    147 \"LON\"\n  2717 \"120.00\"\n");
}

TEST(FareCalculationExtraSeat, TakesNeitherACheckNorTheTotalForItsOwn) {
  EXPECT_EQ(PartOf(u"LON QX TYO EXST CTM LONTYO", 2878), "2878 \"EXST\"\n  2772 \"EXST\"\n");
  EXPECT_EQ(PartOf(u"LON QX TYO EXST NUC120.00END", 2878), "2878 \"EXST\"\n  2772 \"EXST\"\n");
}

TEST(FareCalculationEnd, CanCompareTheTotalWithAnotherFare) {
  EXPECT_EQ(PartOf(u"LON NUC241.00/LONTYO LC/SEL GBP195.78YRT END", 2897),
            "2897 \"NUC241.00/LONTYO LC/SEL GBP195.78YRT\"\n"
            "  2716 \"NUC\"\n  2717 \"241.00\"\n"
            "  2894 \"LONTYO LC/SEL GBP195.78YRT\"\n"
            "    2786 \"LON\"\n    2787 \"TYO\"\n    92 \"SEL\"\n    147 \"GBP\"\n    2717 \"195.78\"\n"
            "    2706 \"YRT\"\n");
}

TEST(FareCalculationEnd, HasARateOfExchangeAlsoRightBehindItsMarker) {
  EXPECT_EQ(PartOf(u"LON QX PAR M/IT ENDROE0.812345", 2880),
            "2880 \"ENDROE0.812345\"\n  2774 \"END\"\n  2895 \"ROE0.812345\"\n    2775 \"0.812345\"\n");
}

TEST(FareCalculationEnd, HasFacilityChargesByAirport) {
  EXPECT_EQ(PartOf(u"LON END XFJFK4.5LAX4.5 SFO3", 2829),
            "2829 \"XFJFK4.5LAX4.5 SFO3\"\n"
            "  2888 \"XFJFK4.5LAX4.5 SFO3\"\n"
            "    2833 \"JFK4.5LAX4.5 SFO3\"\n"
            "      2889 \"JFK4.5\"\n        2789 \"JFK\"\n        2777 \"4.5\"\n"
            "      2889 \"LAX4.5\"\n        2789 \"LAX\"\n        2777 \"4.5\"\n"
            "      2889 \"SFO3\"\n        2789 \"SFO\"\n        2777 \"3\"\n");
}

TEST(FareCalculationEnd, HasSegmentTaxesWithAndWithoutAmounts) {
  EXPECT_EQ(PartOf(u"LON END ZP JFKLAX4.1 NON REFUNDABLE", 2829),
            "2829 \"ZP JFKLAX4.1\"\n"
            "  2891 \"ZP JFKLAX4.1\"\n"
            "    2834 \"JFKLAX4.1\"\n"
            "      2892 \"JFK\"\n        2789 \"JFK\"\n"
            "      2892 \"LAX4.1\"\n        2789 \"LAX\"\n        2778 \"4.1\"\n");
}

TEST(FareCalculationEnd, TellsWhatWasPaidBefore) {
  EXPECT_EQ(PartOf(u"LON END PD 12.00GB3.50Y4 PD GBP7.00 PD XT 2.00FR", 2829),
            "2829 \"PD 12.00GB3.50Y4 PD GBP7.00 PD XT 2.00FR\"\n"
            "  2890 \"PD 12.00GB3.50Y4\"\n"
            "    2720 \"12.00\"\n    2721 \"GB\"\n    2720 \"3.50\"\n    2721 \"Y4\"\n"
            "  2893 \"PD GBP7.00\"\n    147 \"GBP\"\n    2720 \"7.00\"\n"
            "  2882 \"PD\"\n"
            "  2883 \"XT 2.00FR\"\n    2720 \"2.00\"\n    2721 \"FR\"\n");
}

TEST(FareCalculationEnd, TakesAllElseBehindItsMarkerForFreeText) {
  EXPECT_EQ(PartOf(u"LON END ROE0.8 VALID QX (ZZ) 12,00", 2881),
            "2881 \"VALID QX (ZZ) 12,00\"\n  868 \"VALID QX (ZZ) 12,00\"\n    2779 \"VALID QX (ZZ) 12,00\"\n");
}

}  // namespace
}  // namespace qorltst::simulator
