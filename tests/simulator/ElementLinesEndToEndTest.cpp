// The lines of the ticket record read through the component: a display goes in by a recorded session and comes out as
// properties. What the lines look like is tested beside this file.
#include <gtest/gtest.h>

#include "DisplaySupport.h"
#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"
#include "tests/support/Printers.h"

namespace qorltst::simulator {
namespace {

using testing::CountOf;
using testing::FilledTexts;
using testing::ItemOf;
using testing::ObjectOf;
using testing::TextOf;

using Texts = std::vector<std::string>;

class ElementLinesEndToEnd : public ::testing::Test {
 protected:
  /// What the retrieval answers for a display of a header and these lines.
  std::int32_t Retrieve(std::vector<std::u16string> lines) {
    lines.insert(lines.begin(), u"TST 1");
    const auto session = Make<RecordedSession>(Recording{{u"TQT", {Screen(lines)}}});
    return tst_->RetrieveCurrentTst(session.Get());
  }

  [[nodiscard]] Texts Filled(std::u16string_view collection, std::int32_t index) const {
    return FilledTexts(ItemOf(*tst_, collection, index));
  }

  Ref<SimulatedToolkit> toolkit_ = Make<SimulatedToolkit>();
  Ref<TST> tst_ = Make<TST>(*toolkit_);
};

TEST_F(ElementLinesEndToEnd, NamesOfSeveralPassengers) {
  EXPECT_EQ(Retrieve({u"NAMES 1.ORRIN/HALE MR (ADT+SRC/P4471902) EXST", u" 2.ORRIN/TESS (CHD) CBBG"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"NameElements"), 2);
  EXPECT_EQ(Filled(u"NameElements", 1),
            (Texts{"ElementNumber=1", "Text=1.ORRIN/HALE MR (ADT+SRC/P4471902) EXST", "LastName=ORRIN",
                   "Initial=HALE MR", "PassengerType=ADTSRC", "ExtraSeat=EXST", "IdNumber=P4471902"}));
  EXPECT_EQ(Filled(u"NameElements", 2), (Texts{"ElementNumber=2", "Text=2.ORRIN/TESS (CHD) CBBG", "LastName=ORRIN",
                                               "Initial=TESS", "PassengerType=CHD", "CabinBaggage=CBBG"}));
}

TEST_F(ElementLinesEndToEnd, APassengerThatIsPartlyUnderstood) {
  EXPECT_EQ(Retrieve({u"NAMES 1.ORRIN/H 2.ORRIN"}), 1005);
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"NameElements", 1), u"ErrorText"), u"");
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"NameElements", 2), u"ErrorText"), u"column 24: first name or initial expected");
}

TEST_F(ElementLinesEndToEnd, AirSegments) {
  const std::string line = "AIR 1 X LON QX 0341 Y B 12NOV 0930 OK FB/YLE6M/ADT NV/12NOV/12MAY BG/20K";
  EXPECT_EQ(Retrieve({std::u16string(line.begin(), line.end()), u"AIR 2 PAR QX 7 Y 13NOV 0930 OK"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"AirSegments"), 2);
  EXPECT_EQ(Filled(u"AirSegments", 1),
            (Texts{"PassengerType=ADT", "FlightNumber=0341", "ElementNumber=1", "Text=" + line, "ConnectId=X",
                   "BoardPoint=LON", "AirLine=QX", "Class=Y", "RBDId=B", "DepartureDate=12NOV", "DepartureTime=0930",
                   "ReservationStatus=OK", "FareBasisId=YLE6M", "NotValidBefore=12NOV", "NotValidAfter=12MAY",
                   "BaggageAllowance=20K"}));
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"AirSegments", 2), u"BoardPoint"), u"PAR");
}

TEST_F(ElementLinesEndToEnd, AnOpenSegment) {
  const std::string line = "OPEN 3 O PAR QX Y 12NOV FB/YLE6M/ADT NV/12NOV/12MAY BG/1PC";
  EXPECT_EQ(Retrieve({std::u16string(line.begin(), line.end())}), 0);
  ASSERT_EQ(CountOf(*tst_, u"AirOpenSegments"), 1);
  EXPECT_EQ(Filled(u"AirOpenSegments", 1),
            (Texts{"ElementNumber=3", "Text=" + line, "ConnectId=O", "BoardPoint=PAR", "AirLine=QX",
                   "DepartureDate=12NOV", "FareBasisId=YLE6M", "PassengerType=ADT", "BaggageAllowance=1PC", "Class=Y",
                   "NotValidBefore=12NOV", "NotValidAfter=12MAY"}));
}

TEST_F(ElementLinesEndToEnd, ASurfaceSegment) {
  EXPECT_EQ(Retrieve({u"ARNK 2 PAR"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"ARNKSegments"), 1);
  EXPECT_EQ(Filled(u"ARNKSegments", 1), (Texts{"ElementNumber=2", "Text=ARNK 2 PAR", "BoardPoint=PAR"}));
}

TEST_F(ElementLinesEndToEnd, TheDestination) {
  EXPECT_EQ(Retrieve({u"DEST LON 1755"}), 0);
  EXPECT_EQ(FilledTexts(*ObjectOf(*tst_, u"ItineraryLastLine")), Texts{"DestinationCode=LON"});
}

TEST_F(ElementLinesEndToEnd, TheErrorTextOfTheLastThingBehindTheDestination) {
  EXPECT_EQ(Retrieve({u"DEST LON 2460"}), 1005);
  EXPECT_EQ(FilledTexts(*ObjectOf(*tst_, u"ItineraryLastLine")),
            (Texts{"ErrorText=column 10: time expected", "DestinationCode=LON"}));
}

TEST_F(ElementLinesEndToEnd, TaxesOfBothLinesInOneCollection) {
  EXPECT_EQ(Retrieve({u"TAX X/EUR/22.40/GB/AD", u" O/EUR/7.10/FR", u"XTAX X/EUR/31.60/HB/CO"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"TaxElements"), 3);
  EXPECT_EQ(Filled(u"TaxElements", 1), (Texts{"Text=X/EUR/22.40/GB/AD", "TaxId=X", "CurrencyCode=EUR", "Amount=22.40",
                                              "ISOType=GB", "NatureType=AD"}));
  EXPECT_EQ(Filled(u"TaxElements", 2),
            (Texts{"Text=O/EUR/7.10/FR", "TaxId=O", "CurrencyCode=EUR", "Amount=7.10", "ISOType=FR"}));
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"TaxElements", 3), u"ISOType"), u"HB");
}

TEST_F(ElementLinesEndToEnd, ATaxThatIsPartlyUnderstood) {
  EXPECT_EQ(Retrieve({u"TAX X/EUR/22,40/GB X/EUR/7.10/FR"}), 1005);
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"TaxElements", 1), u"ErrorText"), u"column 11: amount expected");
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"TaxElements", 1), u"Amount"), u"22,40");
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"TaxElements", 2), u"ErrorText"), u"");
}

TEST_F(ElementLinesEndToEnd, PublishedAndNetFares) {
  EXPECT_EQ(Retrieve({u"PUBNET P/GBP/845.00 N/GBP/790.50"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"PublishedAndNetFares"), 2);
  EXPECT_EQ(Filled(u"PublishedAndNetFares", 1), (Texts{"PubAndNetFaresBase=845.00", "PubAndNetFaresCurrencyCode=GBP",
                                                       "PubAndNetFaresId=P", "Text=P/GBP/845.00"}));
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"PublishedAndNetFares", 2), u"PubAndNetFaresBase"), u"790.50");
}

TEST_F(ElementLinesEndToEnd, CommissionsAsAmountAndAsPercentage) {
  EXPECT_EQ(Retrieve({u"COMM 7 NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80", u"COMM 8 NEW/10 OLD/12.50A"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"FMElements"), 2);
  EXPECT_EQ(Filled(u"FMElements", 1),
            (Texts{"CommisionId=XP", "CommissionFlatAmount=25.00", "ElementNumber=7",
                   "Text=COMM 7 NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80", "CommissionCAP=50.00",
                   "OldCommissionPercent=9", "OldCommissionVAT=1.80", "CommissionVAT=2.00"}));
  EXPECT_EQ(Filled(u"FMElements", 2), (Texts{"ElementNumber=8", "Text=COMM 8 NEW/10 OLD/12.50A", "CommissionPercent=10",
                                             "OldCommissionFlatAmount=12.50"}));
}

TEST_F(ElementLinesEndToEnd, AFormOfPayment) {
  EXPECT_EQ(Retrieve({u"FOP 8 NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE/INV+MISC"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"FPElements"), 1);
  EXPECT_EQ(Filled(u"FPElements", 1),
            (Texts{"AccountId=ACME77", "ElementNumber=8", "Text=FOP 8 NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE/INV+MISC",
                   "NewFOP=CASH+CCZZ0001+INV+MISC", "OldFOP=CHEQUE"}));
}

TEST_F(ElementLinesEndToEnd, AValidatingCarrier) {
  EXPECT_EQ(Retrieve({u"CARRIER 9 QX"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"FVElements"), 1);
  EXPECT_EQ(Filled(u"FVElements", 1), (Texts{"ElementNumber=9", "Text=CARRIER 9 QX", "Carrier=QX"}));
}

TEST_F(ElementLinesEndToEnd, AnEndorsement) {
  EXPECT_EQ(Retrieve({u"ENDORSE 10 ID/M NON REFUNDABLE"}), 0);
  EXPECT_EQ(
      FilledTexts(*ObjectOf(*tst_, u"FEElement")),
      (Texts{"ElementNumber=10", "Text=ENDORSE 10 ID/M NON REFUNDABLE", "ManualId=M", "FreeFlowText=NON REFUNDABLE"}));
}

TEST_F(ElementLinesEndToEnd, TourCodesWithEachKindOfFreeText) {
  EXPECT_EQ(Retrieve({u"TOUR 11 TC/N/IT27QX9 TX/LAND PART", u"TOUR 12 SF/NET/BT27", u"TOUR 13 RM/GROUP"}), 0);
  ASSERT_EQ(CountOf(*tst_, u"FTElements"), 3);
  EXPECT_EQ(Filled(u"FTElements", 1), (Texts{"ElementNumber=11", "TourType=N", "TourCode=IT27QX9",
                                             "FreeFlowText=LAND PART", "Text=TOUR 11 TC/N/IT27QX9 TX/LAND PART"}));
  EXPECT_EQ(Filled(u"FTElements", 2), (Texts{"ElementNumber=12", "FreeFlowText= BT27", "Text=TOUR 12 SF/NET/BT27"}));
  EXPECT_EQ(Filled(u"FTElements", 3), (Texts{"ElementNumber=13", "FreeFlowText=GROUP", "Text=TOUR 13 RM/GROUP"}));
}

TEST_F(ElementLinesEndToEnd, ATourCodeWithoutItsSecondSubFieldDoesNotEndTheRetrieval) {
  EXPECT_EQ(Retrieve({u"TOUR 12 SF/NET", u"DEST LON"}), 1005);
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"ItineraryLastLine"), u"DestinationCode"), u"LON");
}

TEST_F(ElementLinesEndToEnd, TheOriginalDocumentOfAnExchange) {
  const std::string line = "EXCH 14 OI/990-4700108801-2/C34/LON/28OCT26/91200015/V6K/4700108802-3-C12";
  EXPECT_EQ(Retrieve({std::u16string(line.begin(), line.end())}), 0);
  ASSERT_EQ(CountOf(*tst_, u"FOElements"), 1);
  EXPECT_EQ(Filled(u"FOElements", 1),
            (Texts{"OriginalIssueVoucherCode=V6K", "ElementNumber=14", "Text=" + line,
                   "OriginalIssueDocumentNumber=4700108801", "OriginalIssueCheckDigit=2", "OriginalIssueCoupon=34",
                   "OriginalIssueConjuctedTicketNumber=4700108802", "OriginalIssuedConjunctedCheckDigit=3",
                   "OriginalIssuedConjunctedTicketCoupon=12", "OriginalIssueCity=LON", "OriginalIssueDate=28OCT26",
                   "OriginalIssueIata=91200015", "OriginalIssueNumAirline=990"}));
}

TEST_F(ElementLinesEndToEnd, TwoDocumentsIssuedInExchange) {
  EXPECT_EQ(Retrieve({u"EXCH 14 IX/990-4700112233-4/C12/LON/12NOV26/91200015//4700112234-5-C3",
                      u" IX/991-4700110077-6/C4/PAR/02NOV26/91200042/V7Q/4700110078-7-C1"}),
            0);
  Texts filled = Filled(u"FOElements", 1);
  std::erase_if(filled, [](const std::string& text) { return text.starts_with("Text="); });
  EXPECT_EQ(filled, (Texts{"ElementNumber=14",
                           "SecIssuedInExchangeIata=91200042",
                           "SecIssuedInExchangeDate=02NOV26",
                           "SecIssuedInExchangeCoupon=4",
                           "SecIssuedInExchangeConjunctedTicketNo=4700110078",
                           "SecIssuedInExchangeConjunctedTicketCoupon=1",
                           "SecIssuedInExchangeConjunctedCheckDigit=7",
                           "SecIssuedInExchangeCity=PAR",
                           "SecIssuedInExchangeCheckDigit=6",
                           "SecIssuedInExchangeDocumentNumber=4700110077",
                           "SecIssuedInExchangeVoucherCode=V7Q",
                           "SecIssuedInExchangeNumAirline=991",
                           "IssuedInExchangeIata=91200015",
                           "IssuedInExchangeDate=12NOV26",
                           "IssuedInExchangeCoupon=12",
                           "IssuedInExchangeConjunctedTicketNo=4700112234",
                           "IssuedInExchangeConjunctedTicketCoupon=3",
                           "IssuedInExchangeConjunctedCheckDigit=5",
                           "IssuedInExchangeCity=LON",
                           "IssuedInExchangeCheckDigit=4",
                           "IssuedInExchangeDocumentNumber=4700112233",
                           "IssuedInExchangeNumAirline=990"}));
}

TEST_F(ElementLinesEndToEnd, TheMoneyAndTheFreeTextsOfAnExchange) {
  EXPECT_EQ(Retrieve({u"EXCH 14 AM/EUR/120.00 TP/840.00/T20.00/P50.00 RF/REISSUE RM/OF TICKET"}), 0);
  EXPECT_EQ(Filled(u"FOElements", 1),
            (Texts{"ElementNumber=14", "Text=EXCH 14 AM/EUR/120.00 TP/840.00/T20.00/P50.00 RF/REISSUE RM/OF TICKET",
                   "FreeFlow=REISSUEOF TICKET", "BaseFare=840.00", "CurrencyCode=EUR", "Amount=120.00", "Tax=20.00",
                   "Penalty=50.00"}));
}

TEST_F(ElementLinesEndToEnd, AnExchangeThatIsPartlyUnderstoodDoesNotEndTheRetrieval) {
  EXPECT_EQ(Retrieve({u"EXCH 14 OI/990-4700108801/12 TP//20.00/P", u"DEST LON"}), 1005);
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"FOElements", 1), u"OriginalIssueCoupon"), u"12");
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"FOElements", 1), u"Tax"), u"20.00");
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"ItineraryLastLine"), u"DestinationCode"), u"LON");
}

TEST_F(ElementLinesEndToEnd, ARichBookingOnTwoScreens) {
  const auto session = RecordedSession::Load(SourceFolder() / "examples/displays/rich.txt");
  EXPECT_EQ(tst_->RetrieveCurrentTst(session.Get()), 0);
  EXPECT_EQ(session->Commands(), (std::vector<RecordedSession::Command>{{u"TQT", true}, {u"MD", true}}));
  std::vector<std::int32_t> counts;
  for (const auto* const collection :
       {u"NameElements", u"AirSegments", u"ARNKSegments", u"AirOpenSegments", u"TaxElements", u"PublishedAndNetFares",
        u"FMElements", u"FPElements", u"FVElements", u"FTElements", u"FOElements"}) {
    counts.push_back(CountOf(*tst_, collection));
  }
  EXPECT_EQ(counts, (std::vector{4, 3, 1, 1, 6, 2, 2, 1, 1, 3, 1}));
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"TSTHeader"), u"ElementNumber"), u"00021");
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"FEElement"), u"FreeFlowText"),
            u"NON REFUNDABLE - VALID ON QX AND ZZ ONLY NO CHANGE AFTER DEPARTURE");
  EXPECT_EQ(TextOf(ItemOf(*tst_, u"FOElements", 1), u"FreeFlow"), u"REISSUEUPGRADE REQUESTED BY PASSENGER");
  EXPECT_EQ(TextOf(*tst_, u"TotalCollection"), u"1070.55");
}

}  // namespace
}  // namespace qorltst::simulator
