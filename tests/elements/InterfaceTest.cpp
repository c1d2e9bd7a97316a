// The public face of the elements: names, types and order of their properties.
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

using Names = std::vector<std::string>;

std::string TypeOf(const Member& row) {
  if (std::holds_alternative<StringField>(row.access)) {
    return "";
  }
  if (std::holds_alternative<LongField>(row.access)) {
    return ": long";
  }
  return std::holds_alternative<DateField>(row.access) ? ": date" : ": something else";
}

/// The properties in the order of their dispatch ids, a type behind those that are not strings.
Names FaceOf(const ClassDescription& description) {
  Names face;
  for (const Member& row : description.members) {
    face.push_back(testing::Readable(row.name) + TypeOf(row));
    EXPECT_EQ(description.DispatchIdOf(row), static_cast<std::int32_t>(face.size()));
    EXPECT_EQ(row.put.call, nullptr) << "callers only read";
  }
  return face;
}

TEST(ElementInterface, OfTheHeader) {
  EXPECT_EQ(TSTHeader::kDescription.name, u"TSTHeader");
  EXPECT_EQ(FaceOf(TSTHeader::kDescription),
            (Names{"ErrorText", "InternationalSalesId", "OriginDestinationId", "PricingId", "FareCalculationType",
                   "LastModifDate", "ClassDebugID: long", "OriginDestinationData", "AgentDutyCode", "OfficeId",
                   "PNRChangeFlag", "Text", "ElementNumber", "FareCalculationModeIndicator", "LastDateFromTst: date"}));
}

TEST(ElementInterface, OfANameElement) {
  EXPECT_EQ(NameElement::kDescription.name, u"NameElement");
  EXPECT_EQ(FaceOf(NameElement::kDescription),
            (Names{"ErrorText", "ElementNumber", "Text", "LastName", "Initial", "PassengerType", "ExtraSeat",
                   "ClassDebugID: long", "CabinBaggage", "IdNumber"}));
}

TEST(ElementInterface, OfAnAirSegment) {
  EXPECT_EQ(AirSegment::kDescription.name, u"AirSegment");
  EXPECT_EQ(FaceOf(AirSegment::kDescription),
            (Names{"ErrorText", "PassengerType", "FlightNumber", "ElementNumber", "Text", "ConnectId", "BoardPoint",
                   "AirLine", "Class", "RBDId", "DepartureDate", "DepartureTime", "ReservationStatus", "FareBasisId",
                   "NotValidBefore", "NotValidAfter", "BaggageAllowance", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfAnOpenSegment) {
  EXPECT_EQ(AirOpenSegment::kDescription.name, u"AirOpenSegment");
  EXPECT_EQ(FaceOf(AirOpenSegment::kDescription),
            (Names{"ElementNumber", "Text", "ConnectId", "BoardPoint", "AirLine", "DepartureDate", "FareBasisId",
                   "PassengerType", "BaggageAllowance", "ClassDebugID: long", "Class", "ErrorText", "NotValidBefore",
                   "NotValidAfter"}));
}

TEST(ElementInterface, OfASurfaceSegment) {
  EXPECT_EQ(ARNKSegment::kDescription.name, u"ARNKSegment");
  EXPECT_EQ(FaceOf(ARNKSegment::kDescription),
            (Names{"ElementNumber", "Text", "BoardPoint", "ErrorText", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfTheLastLine) {
  EXPECT_EQ(ItineraryLastLine::kDescription.name, u"ItineraryLastLine");
  EXPECT_EQ(FaceOf(ItineraryLastLine::kDescription), (Names{"ErrorText", "DestinationCode", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfATax) {
  EXPECT_EQ(TaxElement::kDescription.name, u"TaxElement");
  EXPECT_EQ(FaceOf(TaxElement::kDescription), (Names{"Text", "TaxId", "CurrencyCode", "Amount", "ISOType", "NatureType",
                                                     "ErrorText", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfACommission) {
  EXPECT_EQ(FMElement::kDescription.name, u"FMElement");
  EXPECT_EQ(FaceOf(FMElement::kDescription),
            (Names{"CommisionId", "CommissionFlatAmount", "ElementNumber", "Text", "CommissionPercent", "CommissionCAP",
                   "OldCommissionPercent", "OldCommissionFlatAmount", "ClassDebugID: long", "OldCommissionVAT",
                   "CommissionVAT", "ErrorText"}));
}

TEST(ElementInterface, OfAFormOfPayment) {
  EXPECT_EQ(FPElement::kDescription.name, u"FPElement");
  EXPECT_EQ(FaceOf(FPElement::kDescription),
            (Names{"AccountId", "ElementNumber", "Text", "ClassDebugID: long", "NewFOP", "OldFOP", "ErrorText"}));
}

TEST(ElementInterface, OfAValidatingCarrier) {
  EXPECT_EQ(FVElement::kDescription.name, u"FVElement");
  EXPECT_EQ(FaceOf(FVElement::kDescription),
            (Names{"ElementNumber", "Text", "Carrier", "ErrorText", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfTheEndorsement) {
  EXPECT_EQ(FEElement::kDescription.name, u"FEElement");
  EXPECT_EQ(FaceOf(FEElement::kDescription),
            (Names{"ElementNumber", "Text", "ManualId", "FreeFlowText", "ErrorText", "ClassDebugID: long"}));
}

TEST(ElementInterface, OfATourCode) {
  EXPECT_EQ(FTElement::kDescription.name, u"FTElement");
  EXPECT_EQ(FaceOf(FTElement::kDescription), (Names{"ElementNumber", "ClassDebugID: long", "TourType", "TourCode",
                                                    "PassengerExeption", "FreeFlowText", "Text", "ErrorText"}));
}

TEST(ElementInterface, OfAPublishedOrNetFare) {
  EXPECT_EQ(PublishedAndNetFares::kDescription.name, u"PublishedAndNetFares");
  EXPECT_EQ(FaceOf(PublishedAndNetFares::kDescription),
            (Names{"ClassDebugID: long", "PubAndNetFaresBase", "PubAndNetFaresCurrencyCode", "PubAndNetFaresId",
                   "ErrorText", "Text"}));
}

TEST(ElementInterface, OfAnOriginalIssue) {
  EXPECT_EQ(FOElement::kDescription.name, u"FOElement");
  EXPECT_EQ(FaceOf(FOElement::kDescription), (Names{"OriginalIssueVoucherCode",
                                                    "ElementNumber",
                                                    "Text",
                                                    "FreeFlow",
                                                    "OriginalIssueDocumentNumber",
                                                    "OriginalIssueCheckDigit",
                                                    "OriginalIssueCoupon",
                                                    "OriginalIssueConjuctedTicketNumber",
                                                    "OriginalIssuedConjunctedCheckDigit",
                                                    "OriginalIssuedConjunctedTicketCoupon",
                                                    "OriginalIssueCity",
                                                    "OriginalIssueDate",
                                                    "OriginalIssueIata",
                                                    "ClassDebugID: long",
                                                    "SecIssuedInExchangeIata",
                                                    "SecIssuedInExchangeDate",
                                                    "SecIssuedInExchangeCoupon",
                                                    "SecIssuedInExchangeConjunctedTicketNo",
                                                    "SecIssuedInExchangeConjunctedTicketCoupon",
                                                    "SecIssuedInExchangeConjunctedCheckDigit",
                                                    "SecIssuedInExchangeCity",
                                                    "SecIssuedInExchangeCheckDigit",
                                                    "SecIssuedInExchangeDocumentNumber",
                                                    "SecIssuedInExchangeVoucherCode",
                                                    "SecIssuedInExchangeNumAirline",
                                                    "IssuedInExchangeIata",
                                                    "IssuedInExchangeDate",
                                                    "IssuedInExchangeCoupon",
                                                    "IssuedInExchangeConjunctedTicketNo",
                                                    "IssuedInExchangeConjunctedTicketCoupon",
                                                    "IssuedInExchangeConjunctedCheckDigit",
                                                    "IssuedInExchangeCity",
                                                    "IssuedInExchangeCheckDigit",
                                                    "IssuedInExchangeDocumentNumber",
                                                    "IssuedInExchangeVoucherCode",
                                                    "IssuedInExchangeNumAirline",
                                                    "OriginalIssueNumAirline",
                                                    "BaseFare",
                                                    "CurrencyCode",
                                                    "Amount",
                                                    "ErrorText",
                                                    "Tax",
                                                    "Penalty"}));
}

}  // namespace
}  // namespace qorltst
