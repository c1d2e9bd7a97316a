// What callers see of the fare calculation classes: the names in their order and the types.
#include <gtest/gtest.h>

#include "farecalc/AnyPFC.h"
#include "farecalc/AnySymbol.h"
#include "farecalc/CityDigit.h"
#include "farecalc/DepartureRoutingPoint.h"
#include "farecalc/EndLine.h"
#include "farecalc/ExtraSeat.h"
#include "farecalc/Fare.h"
#include "farecalc/FareCalculation.h"
#include "farecalc/FareHigherIntermediate.h"
#include "farecalc/FareMinimun.h"
#include "farecalc/HigherClassDifferential.h"
#include "farecalc/Itinerary.h"
#include "farecalc/ItineraryCompositeElement.h"
#include "farecalc/MileageEqualizationRule.h"
#include "farecalc/OtherSurcharge.h"
#include "farecalc/StopOverCharge.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using Rows = std::vector<std::string>;

std::string TypeOf(const Member& row) {
  if (const auto* const object = std::get_if<ObjectField>(&row.access)) {
    return testing::Readable(object->type()->name);
  }
  if (std::holds_alternative<StringField>(row.access)) {
    return "String";
  }
  if (std::holds_alternative<BooleanField>(row.access)) {
    return "Boolean";
  }
  return std::holds_alternative<LongField>(row.access) ? "Long" : "?";
}

/// "Amount String" for each member; one that callers may set says so.
template <class Record>
Rows InterfaceOf() {
  Rows rows;
  for (const Member& row : Record::kDescription.members) {
    rows.push_back(testing::Readable(row.name) + " " + TypeOf(row) +
                   (row.put.type == ValueType::Nothing ? "" : " settable"));
    EXPECT_TRUE(row.getGuard.empty() && row.letGuard.empty()) << rows.back();
    EXPECT_FALSE(row.dispatchId.has_value()) << rows.back();
  }
  return rows;
}

TEST(FareCalculationInterfaceTest, OfFareCalculation) {
  EXPECT_EQ(
      InterfaceOf<FareCalculation>(),
      (Rows{"FareCommonStopOverChargeValue String", "FareCommonNumberStopAllowed String", "Text String",
            "ErrorText String", "FareCommonLessId String", "FareCommonId String", "Itineraries Collection",
            "ExtraSeats Collection", "FareMinimums Collection", "ClassDebugID Long",
            "ItineraryCompositeElements Collection", "EndLine EndLine", "DepartureRoutingPoint DepartureRoutingPoint",
            "HigherClassDifferentials Collection", "FareCommonCurrencyCode String", "FareCommonAmountToSub String",
            "FareCommonAmount String", "FareCommonCityCode String"}));
}

TEST(FareCalculationInterfaceTest, OfItinerary) {
  EXPECT_EQ(InterfaceOf<Itinerary>(), (Rows{"Text String",
                                            "ErrorText String",
                                            "FareStopOverChargeValue String",
                                            "FareNumberStopAllowed String",
                                            "InclusiveTourFare Boolean",
                                            "BulkTourFare Boolean",
                                            "MileageItemId Boolean",
                                            "FictitiousCode String",
                                            "ExtraMileageAllowanceId String",
                                            "FareLessId Boolean",
                                            "GlobalRoutingId String",
                                            "AnySymbols Collection",
                                            "ItineraryCompositeElements Collection",
                                            "OtherSurcharges Collection",
                                            "MileageEqualizationRules Collection",
                                            "FareHigherClass String",
                                            "FareHigherCityPair String",
                                            "ItineraryCarrierCode String",
                                            "StopOverNumberStopAllowed String",
                                            "StopOverChargeValue String",
                                            "FareCurrencyCode String",
                                            "FareAmountToSub String",
                                            "FareAmount String",
                                            "LowestCombinationCityCode String",
                                            "MileagePercentage String",
                                            "CityCode String"}));
}

TEST(FareCalculationInterfaceTest, OfItineraryCompositeElement) {
  EXPECT_EQ(InterfaceOf<ItineraryCompositeElement>(), (Rows{"Text String",
                                                            "ErrorText String",
                                                            "MileageId Boolean",
                                                            "FareStopOverChargeValue String",
                                                            "FareNumberStopAllowed String",
                                                            "LowestCombinationCityCode String",
                                                            "FareLessId String",
                                                            "ExtraMileageAllowanceId String",
                                                            "GlobalRoutingId String",
                                                            "OtherSurcharges Collection",
                                                            "MileageEqualizationRules Collection",
                                                            "NumberStopAllowed String",
                                                            "StopOverChargeValue String",
                                                            "FareCurrencyCode String",
                                                            "FareAmountToSub String",
                                                            "FareAmount String",
                                                            "MileageItemPercent String",
                                                            "FareHigherCityPair String",
                                                            "FareHigherClass String",
                                                            "CarrierCode String",
                                                            "ItinerarySymbol String",
                                                            "FictitiousCode String",
                                                            "CityCode String",
                                                            "InclusiveTourFare Boolean",
                                                            "BulkTourFare Boolean"}));
}

TEST(FareCalculationInterfaceTest, OfFare) {
  EXPECT_EQ(InterfaceOf<Fare>(),
            (Rows{"Text String", "ErrorText String", "NumberStopAllowed String", "StopOverChargeValue String",
                  "LessId String", "CurrencyCode String", "AmountToSub String", "Amount String"}));
}

TEST(FareCalculationInterfaceTest, OfDepartureRoutingPoint) {
  EXPECT_EQ(InterfaceOf<DepartureRoutingPoint>(),
            (Rows{"Text String", "ErrorText String", "InvoluntaryRerouting Boolean", "CityCode String",
                  "DepartureRoutingDate String"}));
}

TEST(FareCalculationInterfaceTest, OfEndLine) {
  EXPECT_EQ(InterfaceOf<EndLine>(),
            (Rows{"EndId Boolean", "AnyPFCs Collection", "FareAfterNucLowCombCityCode String",
                  "FareAfterNucCurrencyCode String", "FareAfterNucAmount String", "FareAfterNucCityPair2 String",
                  "FareAfterNucCityPair1 String", "FareAfterNucFareBasis String", "RateOfExchange String",
                  "Text String", "ErrorText String", "TotalFareCurrencyCode String", "TotalFareAmount String"}));
}

TEST(FareCalculationInterfaceTest, OfAnyPFC) {
  EXPECT_EQ(InterfaceOf<AnyPFC>(), (Rows{"DomesticUSFlight Boolean settable", "ClassDebugID Long",
                                         "CityDigits Collection", "CombinedTax Boolean", "PaxFacilityCharge Boolean",
                                         "PreviousPaid Boolean", "Text String", "ErrorText String"}));
}

TEST(FareCalculationInterfaceTest, OfCityDigit) {
  EXPECT_EQ(InterfaceOf<CityDigit>(),
            (Rows{"ClassDebugID Long", "CityDigit String", "CityCode String", "Text String", "ErrorText String"}));
}

TEST(FareCalculationInterfaceTest, OfHigherClassDifferential) {
  EXPECT_EQ(
      InterfaceOf<HigherClassDifferential>(),
      (Rows{"Text String", "ErrorText String", "InclusiveTourFare Boolean", "BulkTourFare Boolean", "MileageId Boolean",
            "Fare Fare", "FareHigherIntermediates Collection", "MileagePercentage String", "CityPair String"}));
}

TEST(FareCalculationInterfaceTest, OfFareHigherIntermediate) {
  EXPECT_EQ(InterfaceOf<FareHigherIntermediate>(),
            (Rows{"ClassDebugID Long", "Class String", "CityPair String", "Text String", "ErrorText String"}));
}

TEST(FareCalculationInterfaceTest, OfFareMinimun) {
  EXPECT_EQ(InterfaceOf<FareMinimun>(),
            (Rows{"Text String", "ErrorText String", "FareId String", "Fare Fare", "LowestCombinationCityCode String",
                  "CityPair2 String", "CityPair1 String", "FareBasis String"}));
}

TEST(FareCalculationInterfaceTest, OfExtraSeat) {
  EXPECT_EQ(InterfaceOf<ExtraSeat>(),
            (Rows{"Text String", "ErrorText String", "ExtraSeatId String", "Fare Fare", "CityCode String"}));
}

TEST(FareCalculationInterfaceTest, OfStopOverCharge) {
  EXPECT_EQ(InterfaceOf<StopOverCharge>(),
            (Rows{"NumberStopAllowed String", "StopOverChargeValue String", "Text String", "ErrorText String"}));
}

TEST(FareCalculationInterfaceTest, OfMileageEqualizationRule) {
  EXPECT_EQ(InterfaceOf<MileageEqualizationRule>(),
            (Rows{"Text String", "ErrorText String", "BulkTourFare Boolean", "InclusiveTourFare Boolean",
                  "MileageId Boolean", "ClassDebugID Long", "MileageItemPercentage String", "CityCode String"}));
}

TEST(FareCalculationInterfaceTest, OfAnySymbol) {
  EXPECT_EQ(InterfaceOf<AnySymbol>(), (Rows{"ClassDebugID Long", "OtherSymbol String",
                                            "GapInRoutingIncludedInMileage String", "GapInRoutinNotInMileage String",
                                            "TicketedPointNotInMileage String", "ReducedMileageRoutingPoint String",
                                            "StopOverNotAllowed String", "ExtraMileageRoutingPoint String"}));
}

TEST(FareCalculationInterfaceTest, OfOtherSurcharge) {
  EXPECT_EQ(InterfaceOf<OtherSurcharge>(),
            (Rows{"ClassDebugID Long", "OtherSurchargeValue String", "Text String", "ErrorText String"}));
}

}  // namespace
}  // namespace qorltst
