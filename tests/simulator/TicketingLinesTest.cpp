// Commission, form of payment, validating carrier, endorsement and tour code; see simulator/lines/.
#include <gtest/gtest.h>

#include "DisplaySupport.h"

namespace qorltst::simulator {
namespace {

std::string Dump(const std::u16string& line) { return Parsed(std::vector{line}).Dump(); }

/// The error text of a display's only line.
std::u16string Warnings(const std::u16string& line) {
  return Parsed(std::vector{line}).parser->Children()->Next()->ErrorText();
}

TEST(CommissionLine, HoldsTheNewOneTheCapAndTheOldOne) {
  EXPECT_EQ(Dump(u"COMM 7 NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80"),
            "2861 \"COMM 7 NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80\"\n"
            "  91 \"7\"\n"
            "  728 \"NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80\"\n"
            "    729 \"NEW/25.00A/2.00/XP\"\n"
            "      537 \"25.00\"\n"
            "      538 \"A\"\n"
            "      539 \"2.00\"\n"
            "      730 \"XP\"\n"
            "    731 \"CAP/50.00\"\n"
            "      852 \"50.00\"\n"
            "    732 \"OLD/9/1.80\"\n"
            "      537 \"9\"\n"
            "      539 \"1.80\"\n");
}

TEST(CommissionLine, MarksAnAmountAndNoPercentage) {
  EXPECT_EQ(Dump(u"COMM 7 NEW/9 OLD/10.00A"),
            "2861 \"COMM 7 NEW/9 OLD/10.00A\"\n"
            "  91 \"7\"\n"
            "  728 \"NEW/9 OLD/10.00A\"\n"
            "    729 \"NEW/9\"\n"
            "      537 \"9\"\n"
            "    732 \"OLD/10.00A\"\n"
            "      537 \"10.00\"\n"
            "      538 \"A\"\n");
}

TEST(CommissionLine, CanHaveAnIdWithoutVat) {
  EXPECT_EQ(Dump(u"COMM 7 NEW/9//XP"),
            "2861 \"COMM 7 NEW/9//XP\"\n"
            "  91 \"7\"\n"
            "  728 \"NEW/9//XP\"\n"
            "    729 \"NEW/9//XP\"\n"
            "      537 \"9\"\n"
            "      730 \"XP\"\n");
}

TEST(CommissionLine, WarnsOfEachPartThatDoesNotFit) {
  EXPECT_EQ(Warnings(u"COMM"), u"column 5: element number expected; column 5: commission expected");
  EXPECT_EQ(Warnings(u"COMM NEW/9"), u"column 6: element number expected");
  EXPECT_EQ(Warnings(u"COMM 7 9"), u"column 8: unknown item");
  EXPECT_EQ(Warnings(u"COMM 7 NEW/"), u"column 12: commission expected");
  EXPECT_EQ(Warnings(u"COMM 7 NEW/A"), u"column 12: commission expected");
  EXPECT_EQ(Warnings(u"COMM 7 NEW/TEN/V/X-P/1"),
            u"column 12: commission expected; column 16: VAT expected; column 18: commission id expected; "
            u"column 22: unexpected text");
  EXPECT_EQ(Warnings(u"COMM 7 CAP/9P/1"), u"column 12: amount expected; column 15: unexpected text");
  EXPECT_EQ(Warnings(u"COMM 7 OLD/9/1/XP"), u"column 16: unexpected text");
}

TEST(FormOfPaymentLine, HoldsTheNewFormsTheAccountAndTheOldForm) {
  EXPECT_EQ(Dump(u"FOP 8 NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE"),
            "2863 \"FOP 8 NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE\"\n"
            "  91 \"8\"\n"
            "  751 \"NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE\"\n"
            "    2818 \"NEW/CASH+CCZZ0001\"\n"
            "      3335 \"CASH\"\n"
            "      3335 \"CCZZ0001\"\n"
            "    520 \"ACME77\"\n"
            "    2864 \"OLD/CHEQUE\"\n"
            "      2819 \"CHEQUE\"\n");
}

TEST(FormOfPaymentLine, HoldsWhatIsTakenOverFromTheOldForm) {
  EXPECT_EQ(Dump(u"FOP 8 OLD/CHEQUE/CASH+INV/MISC"),
            "2863 \"FOP 8 OLD/CHEQUE/CASH+INV/MISC\"\n"
            "  91 \"8\"\n"
            "  751 \"OLD/CHEQUE/CASH+INV/MISC\"\n"
            "    2864 \"OLD/CHEQUE/CASH+INV/MISC\"\n"
            "      2819 \"CHEQUE\"\n"
            "      2865 \"CASH+INV\"\n"
            "        2818 \"CASH\"\n"
            "        2818 \"INV\"\n"
            "      2865 \"MISC\"\n"
            "        2818 \"MISC\"\n");
}

TEST(FormOfPaymentLine, WarnsOfEachPartThatDoesNotFit) {
  EXPECT_EQ(Warnings(u"FOP 8"), u"column 6: form of payment expected");
  EXPECT_EQ(Warnings(u"FOP 8 CASH"), u"column 7: unknown item");
  EXPECT_EQ(Warnings(u"FOP 8 NEW/CASH++C-C"),
            u"column 16: form of payment expected; column 17: form of payment expected");
  EXPECT_EQ(Warnings(u"FOP 8 AC/A/B"), u"column 12: unexpected text");
  EXPECT_EQ(Warnings(u"FOP 8 OLD/"), u"column 11: form of payment expected");
  EXPECT_EQ(Warnings(u"FOP 8 OLD/CASH/INV+"), u"column 20: form of payment expected");
}

TEST(CarrierLine, HoldsElementNumberAndCarrier) {
  EXPECT_EQ(Dump(u"CARRIER 9 QX"), "2868 \"CARRIER 9 QX\"\n  91 \"9\"\n  2734 \"QX\"\n");
}

TEST(CarrierLine, WarnsOfWhatDoesNotFit) {
  EXPECT_EQ(Dump(u"CARRIER QX"), "2868 \"CARRIER QX\" ! column 9: element number expected\n  2734 \"QX\"\n");
  EXPECT_EQ(
      Dump(u"CARRIER 9 12 X"),
      "2868 \"CARRIER 9 12 X\" ! column 11: carrier expected; column 14: unexpected text\n  91 \"9\"\n  2734 \"12\"\n");
  EXPECT_EQ(Warnings(u"CARRIER 9"), u"column 10: carrier expected");
}

TEST(EndorsementLine, HoldsTheManualIdAndTheText) {
  EXPECT_EQ(Parsed({u"ENDORSE 10 ID/M NON  REFUNDABLE", u"   QX ONLY"}).Dump(),
            "2860 \"ENDORSE 10 ID/M NON  REFUNDABLE" + std::string(52, ' ') +
                "QX ONLY\"\n"
                "  91 \"10\"\n"
                "  719 \"ID/M NON  REFUNDABLE" +
                std::string(52, ' ') +
                "QX ONLY\"\n"
                "    2730 \"M\"\n"
                "    2731 \"NON  REFUNDABLE QX ONLY\"\n");
}

TEST(EndorsementLine, CanBeWithoutAManualId) {
  EXPECT_EQ(Dump(u"ENDORSE 10 QX ONLY"),
            "2860 \"ENDORSE 10 QX ONLY\"\n  91 \"10\"\n  719 \"QX ONLY\"\n    2731 \"QX ONLY\"\n");
}

TEST(EndorsementLine, WarnsOfWhatDoesNotFit) {
  EXPECT_EQ(Warnings(u"ENDORSE QX ONLY"), u"column 9: element number expected");
  EXPECT_EQ(Warnings(u"ENDORSE 10"), u"column 11: text expected");
  EXPECT_EQ(Warnings(u"ENDORSE 10 ID/MM QX"), u"column 15: manual id expected");
  EXPECT_EQ(Warnings(u"ENDORSE 10 ID/M"), u"column 16: text expected");
}

TEST(TourCodeLine, HoldsTheTour) {
  EXPECT_EQ(Dump(u"TOUR 11 TC/N/IT27QX9"),
            "2867 \"TOUR 11 TC/N/IT27QX9\"\n"
            "  91 \"11\"\n"
            "  756 \"TC/N/IT27QX9\"\n"
            "    757 \"TC/N/IT27QX9\"\n"
            "      3315 \"N\"\n"
            "      758 \"IT27QX9\"\n");
}

TEST(TourCodeLine, HoldsSubFieldsThatAreAskedForByTheirPlace) {
  const Parsed parsed({u"TOUR 11 SF/NET/IT27QX9"});
  const auto node = parsed.parser->FindNode(NodeTypeId::TourSubFields);
  EXPECT_EQ(node->Text(), u"SF/NET/IT27QX9");
  EXPECT_EQ(node->Item(1)->Buffer(), u"NET");
  EXPECT_EQ(node->Item(2)->Buffer(), u"IT27QX9");
  EXPECT_FALSE(node->Item(3));
}

TEST(TourCodeLine, LeavesOutSubFieldsOfWhichOneIsMissing) {
  for (const std::u16string line : {u"TOUR 11 SF/", u"TOUR 11 SF/NET", u"TOUR 11 SF/NET/", u"TOUR 11 SF//IT27"}) {
    EXPECT_EQ(Warnings(line), u"column 12: two sub-fields expected");
    EXPECT_FALSE(Parsed(std::vector{line}).parser->FindNode(NodeTypeId::TourSubFields));
  }
}

TEST(TourCodeLine, HoldsFreeTextOfTwoKindsToItsEnd) {
  EXPECT_EQ(
      Dump(u"TOUR 11 TX/LAND  PART RM/X"),
      "2867 \"TOUR 11 TX/LAND  PART RM/X\"\n  91 \"11\"\n  756 \"TX/LAND  PART RM/X\"\n    760 \"LAND  PART RM/X\"\n");
  EXPECT_EQ(Dump(u"TOUR 11 RM/ GROUP FARE"),
            "2867 \"TOUR 11 RM/ GROUP FARE\"\n  91 \"11\"\n  756 \"RM/ GROUP FARE\"\n    3485 \"GROUP FARE\"\n");
}

TEST(TourCodeLine, WarnsOfEachPartThatDoesNotFit) {
  EXPECT_EQ(Warnings(u"TOUR 11"), u"column 8: tour code expected");
  EXPECT_EQ(Warnings(u"TOUR 11 IT27"), u"column 9: unknown item");
  EXPECT_EQ(Warnings(u"TOUR 11 TC/NET/IT-1/X"),
            u"column 12: tour type expected; column 16: tour code expected; column 21: unexpected text");
  EXPECT_EQ(Warnings(u"TOUR 11 SF/NET/IT27/X"), u"column 21: unexpected text");
  EXPECT_EQ(Warnings(u"TOUR 11 TX/"), u"column 12: text expected");
}

}  // namespace
}  // namespace qorltst::simulator
