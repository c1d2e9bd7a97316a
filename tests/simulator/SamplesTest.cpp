// The sample displays of examples/displays, each with the tree that it is read into.
#include <gtest/gtest.h>

#include <set>

#include "DisplaySupport.h"
#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

/// The tree of the display that answers the command, its screens stitched.
Parsed Retrieve(const std::string& file, std::u16string_view command) {
  const auto session = RecordedSession::Load(SourceFolder() / "examples/displays" / file);
  std::u16string text = session->SendCommand(command, true)->Text();
  while (Parsed::FromText(text).parser->FindNode(NodeTypeId::MoreScreens)) {
    text = Stitch(text, session->SendCommand(u"MD", true)->Text());
  }
  return Parsed::FromText(WithoutTrailingBlanks(text));
}

std::string DumpOf(const std::string& file, std::u16string_view command) {
  const Parsed parsed = Retrieve(file, command);
  EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
  return parsed.Dump();
}

TEST(Samples, HoldEveryLineOfAFare) {
  EXPECT_EQ(DumpOf("fares.txt", u"TQT"),
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
            "  3326 \"0\"\n"
            "2850 \"FARE F GBP 120.00 CC/ACME01\"\n"
            "  1201 \"F\"\n"
            "  147 \"GBP\"\n"
            "  2717 \"120.00\"\n"
            "  2718 \"ACME01\"\n"
            "2852 \"EQUIV EUR 140.50\"\n"
            "  147 \"EUR\"\n"
            "  2717 \"140.50\"\n"
            "3337 \"NETFARE GBP 00150.00\"\n"
            "  147 \"GBP\"\n"
            "  2717 \"00150.00\"\n"
            "2857 \"TOTAL EUR 167.35 BR/H/1.170833/2.50USD\"\n"
            "  147 \"EUR\"\n"
            "  2725 \"167.35\"\n"
            "  2858 \"BR/H/1.170833/2.50USD\"\n"
            "    2726 \"H\"\n"
            "    2727 \"1.170833\"\n"
            "    2859 \"2.50USD\"\n"
            "      2727 \"2.50\"\n"
            "      2728 \"USD\"\n"
            "2835 \"CASH OR CARD QX ONLY\"\n"
            "3336 \"ZAPOFF 10P\"\n"
            "  3330 \"10P\"\n");
}

TEST(Samples, HoldABulkFareWithoutAnAmount) {
  EXPECT_EQ(DumpOf("fares.txt", u"TQT/T2"),
            "602 \"TST 00002 P/B BY/PARZZ0042/GS/03JAN FC/M\"\n"
            "  2689 \"00002\"\n"
            "  2691 \"B\"\n"
            "  464 \"PARZZ0042\"\n"
            "  476 \"GS\"\n"
            "  94 \"03JAN\"\n"
            "  2695 \"M\"\n"
            "2850 \"FARE I EUR BT\"\n"
            "  1201 \"I\"\n"
            "  147 \"EUR\"\n"
            "  2717 \"BT\"\n"
            "2857 \"TOTAL EUR 0.00\"\n"
            "  147 \"EUR\"\n"
            "  2725 \"0.00\"\n");
}

TEST(Samples, HoldADisplayOnTwoScreens) {
  EXPECT_EQ(DumpOf("long.txt", u"TQT"),
            "602 \"TST 00014 P/I BY/LONQX0100/GS/07FEB LD/01MAR27 OD/I/LONTYO SI/SOTO FC/M/1\"\n"
            "  2689 \"00014\"\n"
            "  2691 \"I\"\n"
            "  464 \"LONQX0100\"\n"
            "  476 \"GS\"\n"
            "  94 \"07FEB\"\n"
            "  3324 \"01MAR27\" = 2027-03-01\n"
            "  2692 \"I\"\n"
            "  2693 \"LONTYO\"\n"
            "  2694 \"SOTO\"\n"
            "  2695 \"M\"\n"
            "  3326 \"1\"\n"
            "2850 \"FARE F GBP 845.00 CC/ACME77\"\n"
            "  1201 \"F\"\n"
            "  147 \"GBP\"\n"
            "  2717 \"845.00\"\n"
            "  2718 \"ACME77\"\n"
            "2852 \"EQUIV EUR 989.35\"\n"
            "  147 \"EUR\"\n"
            "  2717 \"989.35\"\n"
            "2835 \"THIS TICKET MAY BE PAID WITH CASH OR WITH A CARD OF CARRIER QX ONLY PART PAYMENT BY "
            "VOUCHER IS ALLOWED UNDER THESE CONDITIONS - THE VOUCHER NAMES THE SAME PASSENGER AS THE TICKET "
            "- THE VOUCHER WAS ISSUED BY CARRIER QX OR ON ITS BEHALF - THE VOUCHER IS NOT OLDER THAN TWELVE "
            "MONTHS ON THE DAY OF ISSUE CARDS ARE TAKEN WHEN ALL OF THE FOLLOWING HOLD - THE HOLDER IS ONE "
            "OF THE PASSENGERS OR THE AGENCY ITSELF - THE CARD IS VALID UNTIL THE LAST DAY OF TRAVEL AT "
            "LEAST - THE AMOUNT IS COLLECTED AT ONCE AND IN THE CURRENCY OF THE TOTAL INVOICES TO COMPANIES "
            "ARE ALLOWED FOR CORPORATE CODES THAT START WITH ACME - THE INVOICE CARRIES THE TICKET NUMBER - "
            "THE INVOICE IS SETTLED WITHIN FOURTEEN DAYS PAYMENT BY INSTALMENTS IS NOT ALLOWED PAYMENT BY "
            "MILES IS NOT ALLOWED PAYMENT BY THIRD PARTIES IS NOT ALLOWED EXCEPT BY A PARENT FOR A CHILD A "
            "REFUND IS MADE IN THE FORM IN WHICH THE TICKET WAS PAID A REFUND OF A PART THAT WAS PAID BY "
            "VOUCHER IS MADE BY VOUCHER A REFUND TO A CARD TAKES UP TO THIRTY DAYS CHARGES OF THE BANK ARE "
            "NOT REFUNDED THESE CONDITIONS ARE NOT TRANSFERABLE QUESTIONS GO TO THE OFFICE THAT ISSUED THE "
            "TICKET\"\n"
            "3337 \"NETFARE GBP 790.50\"\n"
            "  147 \"GBP\"\n"
            "  2717 \"790.50\"\n"
            "2857 \"TOTAL EUR 1103.19 BR/B/1.170833\"\n"
            "  147 \"EUR\"\n"
            "  2725 \"1103.19\"\n"
            "  2858 \"BR/B/1.170833\"\n"
            "    2726 \"B\"\n"
            "    2727 \"1.170833\"\n"
            "3336 \"ZAPOFF 25.00\"\n"
            "  3330 \"25.00\"\n");
}

TEST(Samples, HoldADisplayThatIsOnlyPartlyUnderstood) {
  EXPECT_EQ(DumpOf("warnings.txt", u"TQT"),
            "602 \"TST 00003 P/F BY/LONQX01/SU/31NOV LD/31FEB27 OD/I XX/7 FC/A/0/Z\" ! column 18: office "
            "expected; column 29: day and month expected; column 38: last date expected; column 50: city "
            "pair expected; column 51: unknown item; column 63: unexpected text\n"
            "  2689 \"00003\"\n"
            "  2691 \"F\"\n"
            "  464 \"LONQX01\"\n"
            "  476 \"SU\"\n"
            "  94 \"31NOV\"\n"
            "  3324 \"31FEB27\"\n"
            "  2692 \"I\"\n"
            "  2695 \"A\"\n"
            "  3326 \"0\"\n"
            "2850 \"FARE GBP 12O.00 CC/\" ! column 6: issue id expected; column 10: amount expected; column "
            "20: corporate code expected\n"
            "  147 \"GBP\"\n"
            "  2717 \"12O.00\"\n"
            "2852 \"EQUIV 140.50\" ! column 7: currency code expected\n"
            "  2717 \"140.50\"\n"
            "3337 \"NETFARE GBP\" ! column 12: amount expected\n"
            "  147 \"GBP\"\n"
            "2857 \"TOTAL EUR 167.35 BR/H/1,17/USD                                                   BR/7\" "
            "! column 23: rate of exchange expected; column 28: amount and currency expected; line 2, "
            "column 5: rate id expected; line 2, column 6: rate of exchange expected\n"
            "  147 \"EUR\"\n"
            "  2725 \"167.35\"\n"
            "  2858 \"BR/H/1,17/USD\"\n"
            "    2726 \"H\"\n"
            "    2727 \"1,17\"\n"
            "    2859 \"USD\"\n"
            "  2858 \"BR/7\"\n"
            "    2726 \"7\"\n"
            "2835 \"\" ! column 8: text expected\n"
            "3336 \"ZAPOFF TEN\" ! column 8: reduction expected\n"
            "  3330 \"TEN\"\n"
            "1 \"LOUNGE ACCESS INCLUDED\" ! column 1: unknown line\n"
            "602 \"TST 00004\" ! column 1: second header\n"
            "  2689 \"00004\"\n");
}

/// The lines of the display, "2845 <warnings>" each.
std::vector<std::string> LinesOf(const std::string& file, std::u16string_view command) {
  const Parsed parsed = Retrieve(file, command);
  std::vector<std::string> lines;
  const auto children = parsed.parser->Children();
  while (const auto line = children->Next()) {
    lines.push_back(std::to_string(static_cast<std::int32_t>(line->TypeId())) + ' ' + ToUtf8(line->ErrorText()));
  }
  return lines;
}

TEST(Samples, HoldEveryKindOfLineOnTwoScreens) {
  const Recording recording = ReadRecording(SourceFolder() / "examples/displays/rich.txt");
  EXPECT_EQ(recording.front().screens.size(), 2U);
  const std::vector<std::string> lines = LinesOf("rich.txt", u"TQT");
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.ends_with(' ')) << line;
  }
  const std::set<std::string> kinds(lines.begin(), lines.end());
  for (const std::string kind :
       {"602",  "2845", "230",  "239",  "2847", "2848", "2850", "2852", "2853", "2857", "2835",
        "2860", "2861", "2862", "2863", "2867", "2868", "2932", "3336", "3337", "3338", "2869"}) {
    EXPECT_TRUE(kinds.contains(kind + ' ')) << kind;
  }
}

TEST(Samples, HoldTheLeastThatIsATst) { EXPECT_EQ(DumpOf("minimal.txt", u"TQT"), "602 \"TST 1\"\n  2689 \"1\"\n"); }

TEST(Samples, HoldTheShortestFormOfEveryLine) {
  EXPECT_EQ(LinesOf("minimal.txt", u"TQT/T2"),
            (std::vector<std::string>{"602 ",  "2845 ", "230 ",  "239 ",  "2847 ", "2848 ", "2850 ",
                                      "2852 ", "2932 ", "3337 ", "2853 ", "3338 ", "2857 ", "2835 ",
                                      "3336 ", "2860 ", "2861 ", "2863 ", "2868 ", "2867 ", "2862 "}));
}

TEST(Samples, HoldAnItineraryAndTicketingLinesThatAreOnlyPartlyUnderstood) {
  EXPECT_EQ(LinesOf("warnings.txt", u"TQT/T2"),
            (std::vector<std::string>{
                "602 ",
                "2845 column 7: passenger expected; column 17: first name or initial expected; column 23: passenger "
                "type expected; column 25: identity number expected; column 33: unknown item; column 39: last name "
                "expected; column 49: closing bracket expected",
                "230 column 5: element number expected; column 19: day and month expected; column 42: passenger type "
                "expected; column 48: unknown item",
                "2847 column 8: board point expected; column 16: day and month expected",
                "239 column 8: board point expected",
                "2848 column 6: destination expected; column 10: time expected; column 15: unexpected text",
                "2932 column 14: amount expected; column 21: currency code expected; column 27: amount expected",
                "2853 column 11: amount expected; column 23: unexpected text; column 26: currency code expected",
                "3338 column 5: tax expected",
                "2861 column 6: element number expected; column 10: commission expected; column 18: amount expected; "
                "column 19: unknown item",
                "2863 column 16: form of payment expected; column 21: form of payment expected",
                "2868 column 10: carrier expected",
                "2860 column 9: element number expected; column 12: manual id expected; column 14: text expected",
                "2867 column 12: tour type expected; column 15: tour code expected; column 19: two sub-fields "
                "expected; column 26: text expected",
                "2862 column 12: numeric airline expected; column 15: document number expected; column 21: coupons "
                "expected; column 24: city expected; column 31: date of issue expected; column 39: agency number "
                "expected; column 43: voucher code expected; column 47: ticket number expected; column 50: check "
                "digit expected; column 55: numeric airline expected; column 55: document number expected; column 59: "
                "currency code expected; column 65: amount expected; column 71: tax expected; column 77: penalty "
                "expected; line 2, column 5: reference expected; line 2, column 12: text expected"}));
}

TEST(Samples, HoldTheSameDisplayInScreensAndAsAWhole) {
  const Recording recording = ReadRecording(SourceFolder() / "examples/displays/long.txt");
  ASSERT_EQ(recording.size(), 2U);
  EXPECT_EQ(recording[0].screens.size(), 2U);
  EXPECT_EQ(recording[0].screens.front().size(), 1920U);
  EXPECT_EQ(recording[0].screens, recording[1].screens);
}

TEST(Samples, HoldDisplaysThatCannotBeRead) {
  struct Damage {
    std::u16string_view command;
    std::int32_t result;
    std::u16string_view errorText;
  };
  for (const Damage& damage : {Damage{u"TQT", kDamagedHeader, u"header, column 5: element number expected"},
                               Damage{u"TQT/T2", kDamagedText, u"line 2, column 11: control character"},
                               Damage{u"TQT/T3", kDamagedText, u"line 3, column 1: control character"},
                               Damage{u"TQT/T4", kDamagedText, u"line 2, column 9: half a surrogate pair"},
                               Damage{u"TQT/T5", kDamagedText, u"line 3, column 14: control character"},
                               Damage{u"TQT/T6", kDamagedHeader, u"header, column 5: element number expected"}}) {
    const Parsed parsed = Retrieve("broken.txt", damage.command);
    EXPECT_EQ(parsed.result, damage.result);
    EXPECT_EQ(parsed.parser->ErrorText(), damage.errorText);
    EXPECT_EQ(parsed.Dump(), "");
  }
}

TEST(Samples, HoldAnswersThatAreNoTst) {
  EXPECT_EQ(DumpOf("not-a-tst.txt", u"TQT"), "");
  EXPECT_EQ(DumpOf("not-a-tst.txt", u"RH"), "");
}

TEST(Samples, HoldACommandWithoutAnAnswer) {
  const auto session = RecordedSession::Load(SourceFolder() / "examples/displays/not-a-tst.txt");
  EXPECT_FALSE(session->SendCommand(u"TQT/T9", true));
}

}  // namespace
}  // namespace qorltst::simulator
