// The texts under which guarded accessors of the elements raise. They stay as they are: older property names, names of
// other classes and a missing space included.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "elements/ARNKSegment.h"
#include "elements/AirOpenSegment.h"
#include "elements/AirSegment.h"
#include "elements/FEElement.h"
#include "elements/FMElement.h"
#include "elements/FOElement.h"
#include "elements/FPElement.h"
#include "elements/FTElement.h"
#include "elements/FVElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/NameElement.h"
#include "elements/PublishedAndNetFares.h"
#include "elements/TSTHeader.h"
#include "elements/TaxElement.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using Guards = std::vector<std::string>;

/// "Property: guard of the getter / guard of the setter" for each row that has a guard, in interface order.
Guards GuardsOf(const ClassDescription& description) {
  Guards guards;
  for (const Member& row : description.members) {
    if (!row.getGuard.empty() || !row.letGuard.empty()) {
      guards.push_back(testing::Readable(row.name) + ": " + testing::Readable(row.getGuard) + " / " +
                       testing::Readable(row.letGuard));
    }
  }
  return guards;
}

TEST(GuardTexts, TheHeaderHasNone) { EXPECT_EQ(GuardsOf(TSTHeader::kDescription), Guards()); }

TEST(GuardTexts, ANameElementHasThese) {
  EXPECT_EQ(GuardsOf(NameElement::kDescription),
            (Guards{"ElementNumber: NameElement:ElementNumber Property Get / NameElement:ElementNumber Property Let",
                    "Text: NameElement:Text Property Get / NameElement:Text Property Let",
                    "LastName: NameElement:LastName Property Get / NameElement:LastName Property Let",
                    "Initial: NameElement:Initial Property Get / NameElement:Initial Property Let",
                    "PassengerType: NameElement:PassengerType Property Get / NameElement:PassengerType Property Let",
                    "ExtraSeat: NameElement:ExtraSeat Property Get / NameElement:ExtraSeat Property Let"}));
}

TEST(GuardTexts, AnAirSegmentHasThese) {
  EXPECT_EQ(
      GuardsOf(AirSegment::kDescription),
      (Guards{
          "ElementNumber: AirSegment:ElementNumber Property Get / AirSegment:ElementNumber Property Let",
          "Text: AirSegment:Text Property Get / AirSegment:Text Property Let",
          "ConnectId: AirSegment:ConnectIndicator Property Get / AirSegment:ConnectId Property Let",
          "BoardPoint: AirSegment:BoardPoint Property Get / AirSegment:BoardPoint Property Let",
          "AirLine: AirSegment:AirLine Property Get / AirSegment:AirLine Property Let",
          "Class: AirSegment:Class Property Get / AirSegment:Class Property Let",
          "RBDId: AirSegment:RBDIndicator Property Get / AirSegment:RBDId Property Let",
          "DepartureDate: AirSegment:DepartureDate Property Get / AirSegment:DepartureDate Property Let",
          "DepartureTime: AirSegment:DepartureTime Property Get / AirSegment:DepartureTime Property Let",
          "ReservationStatus: AirSegment:ReservationStatus Property Get / AirSegment:ReservationStatus Property Let",
          "FareBasisId: AirSegment:FareBasisIndicator Property Get / AirSegment:FareBasisId Property Let",
          "NotValidBefore: AirSegment:NotValidBefore Property Get / AirSegment:NotValidBefore Property Let",
          "NotValidAfter: AirSegment:NotValidAfter Property Get / AirSegment:NotValidAfter Property Let",
          "BaggageAllowance: AirSegment:BaggageAllowance Property Get / AirSegment:BaggageAllowance Property Let"}));
}

TEST(GuardTexts, AnOpenSegmentHasTheseAndTwoOfTheFlownSegment) {
  EXPECT_EQ(
      GuardsOf(AirOpenSegment::kDescription),
      (Guards{"ElementNumber: AirOpenSegment:ElementNumber Property Get / AirOpenSegment:ElementNumber Property Let",
              "Text: AirOpenSegment:Text Property Get / AirOpenSegment:Text Property Let",
              "ConnectId: AirOpenSegment:ConnectIndicator Property Get / AirOpenSegment:ConnectId Property Let",
              "BoardPoint: AirOpenSegment:BoardPoint Property Get / AirOpenSegment:BoardPoint Property Let",
              "AirLine: AirOpenSegment:AirLine Property Get / AirOpenSegment:AirLine Property Let",
              "DepartureDate: AirOpenSegment:DepartureDate Property Get / AirOpenSegment:DepartureDate Property Let",
              "FareBasisId: AirOpenSegment:FareBasisIndicator Property Get / AirOpenSegment:FareBasisId Property Let",
              "PassengerType: AirOpenSegment:PassengerType Property Get / AirOpenSegment:PassengerType Property Let",
              "BaggageAllowance: AirOpenSegment:BaggageAllowance Property Get / AirOpenSegment:BaggageAllowance "
              "Property Let",
              "NotValidBefore: AirSegment:NotValidBefore Property Get / AirSegment:NotValidBefore Property Let",
              "NotValidAfter: AirSegment:NotValidAfter Property Get / AirSegment:NotValidAfter Property Let"}));
}

TEST(GuardTexts, ASurfaceSegmentHasThese) {
  EXPECT_EQ(GuardsOf(ARNKSegment::kDescription),
            (Guards{"ElementNumber: ARNKSegment:ElementNumber Property Get / ARNKSegment:ElementNumber Property Let",
                    "Text: ARNKSegment:Text Property Get / ARNKSegment:Text Property Let",
                    "BoardPoint: ARNKSegment:BoardPoint Property Get / ARNKSegment:BoardPoint Property Let",
                    "ErrorText: ARNKSegment:ErrorText Property Get / ARNKSegment:ErrorText Property Let"}));
}

TEST(GuardTexts, TheLastLineHasThis) {
  EXPECT_EQ(GuardsOf(ItineraryLastLine::kDescription),
            Guards{"DestinationCode: ItineraryLastLine:DestinationCode Property Get / "
                   "ItineraryLastLine:DestinationCode Property Let"});
}

TEST(GuardTexts, ATaxHasThese) {
  EXPECT_EQ(GuardsOf(TaxElement::kDescription),
            (Guards{"Text: TaxElement:Text Property Get / TaxElement:Text Property Let",
                    "TaxId: TaxElement:TaxIndicator Property Get / TaxElement:TaxId Property Let",
                    "CurrencyCode: TaxElement:CurrencyCode Property Get / TaxElement:CurrencyCode Property Let",
                    "Amount: TaxElement:Amount Property Get / TaxElement:Amount Property Let",
                    "ISOType: TaxElement:ISOType Property Get / TaxElement:ISOType Property Let",
                    "NatureType: TaxElement:NatureType Property Get / TaxElement:NatureType Property Let",
                    "ErrorText: TaxElement:ErrorText Property Get / TaxElement:ErrorTextProperty Let"}));
}

TEST(GuardTexts, ACommissionHasThese) {
  EXPECT_EQ(
      GuardsOf(FMElement::kDescription),
      (Guards{"ElementNumber: FMElement:ElementNumber Property Get / FMElement:ElementNumber Property Let",
              "Text: FMElement:Text Property Get / FMElement:Text Property Let",
              "CommissionPercent: FMElement:CommissionPercent Property Get / FMElement:CommissionPercent Property Let",
              "CommissionCAP: FMElement:CommissionCAP Property Get / FMElement:CommissionCAP Property Let",
              "OldCommissionPercent: FMElement:OldCommissionPercent Property Get / "
              "FMElement:OldCommissionPercent Property Let",
              "OldCommissionFlatAmount: FMElement:OldCommissionFlatAmount Property Get / "
              "FMElement:OldCommissionFlatAmount Property Let"}));
}

TEST(GuardTexts, AFormOfPaymentHasThese) {
  EXPECT_EQ(GuardsOf(FPElement::kDescription),
            (Guards{"ElementNumber: FPElement:ElementNumber Property Get / FPElement:ElementNumber Property Let",
                    "Text: FPElement:Text Property Get / FPElement:Text Property Let"}));
}

TEST(GuardTexts, AValidatingCarrierHasThese) {
  EXPECT_EQ(GuardsOf(FVElement::kDescription),
            (Guards{"ElementNumber: FVElement:ElementNumber Property Get / FVElement:ElementNumber Property Let",
                    "Text: FVElement:Text Property Get / FVElement:Text Property Let",
                    "Carrier: FVElement:Carrier Property Get / FVElement:Carrier Property Let"}));
}

TEST(GuardTexts, AnEndorsementHasThese) {
  EXPECT_EQ(GuardsOf(FEElement::kDescription),
            (Guards{"ElementNumber: FEElement:ElementNumber Property Get / FEElement:ElementNumber Property Let",
                    "Text: FEElement:Text Property Get / FEElement:Text Property Let",
                    "ManualId: FEElement:ManualIndicator Property Get / FEElement:ManualId Property Let",
                    "FreeFlowText: FEElement:FreeFlowText Property Get / FEElement:FreeFlowText Property Let"}));
}

TEST(GuardTexts, ATourCodeHasNone) { EXPECT_EQ(GuardsOf(FTElement::kDescription), Guards()); }

TEST(GuardTexts, APublishedOrNetFareHasNone) { EXPECT_EQ(GuardsOf(PublishedAndNetFares::kDescription), Guards()); }

TEST(GuardTexts, AnOriginalIssueHasThese) {
  EXPECT_EQ(
      GuardsOf(FOElement::kDescription),
      (Guards{"ElementNumber: FOElement:ElementNumber Property Get / FOElement:ElementNumber Property Let",
              "Text: FOElement:Text Property Get / FOElement:Text Property Let",
              "FreeFlow: FOElement:FreeFlow Property Get / FOElement:FreeFlow Property Let",
              "OriginalIssueDocumentNumber: FOElement:OriginalIssueDocument Property Get / "
              "FOElement:OriginalIssueDocumentNumber Property Let",
              "OriginalIssueCheckDigit: FOElement:OriginalIssueCheckDigit Property Get / "
              "FOElement:OriginalIssueCheckDigit Property Let",
              "OriginalIssueCoupon: FOElement:OriginalIssueCoupon Property Get / "
              "FOElement:OriginalIssueCoupon Property Let",
              "OriginalIssueConjuctedTicketNumber: FOElement:OriginalIssueConjuctedTicketNumber Property Get / "
              "FOElement:OriginalIssueConjuctedTicketNumber Property Let",
              "OriginalIssuedConjunctedCheckDigit: FOElement:OriginalIssuedConjunctedCheckDigit Property Get / "
              "FOElement:OriginalIssuedConjunctedCheckDigit Property Let",
              "OriginalIssuedConjunctedTicketCoupon: FOElement:OriginalIssuedConjunctedTicketCoupon Property Get / "
              "FOElement:OriginalIssuedConjunctedTicketCoupon Property Let",
              "OriginalIssueCity: FOElement:OriginalIssueCity Property Get / FOElement:OriginalIssueCity Property Let",
              "OriginalIssueDate: FOElement:OriginalIssueDate Property Get / FOElement:OriginalIssueDate Property Let",
              "OriginalIssueIata: FOElement:OriginalIssueIata Property Get / "
              "FOElement:OriginalIssueIata Property Let"}));
}

}  // namespace
}  // namespace qorltst
