// The public table and the creation. See FareCalculation.h.
#include "farecalc/FareCalculation.h"

#include "farecalc/DepartureRoutingPoint.h"
#include "farecalc/EndLine.h"

namespace qorltst {

struct FareCalculation::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"FareCommonStopOverChargeValue",
       .access = Field<&FareCalculation::fareCommonStopOverChargeValue_>(),
       .help = u"The stop-over charge of the common fare."},
      {.name = u"FareCommonNumberStopAllowed",
       .access = Field<&FareCalculation::fareCommonNumberStopAllowed_>(),
       .help = u"The number of stop-overs that the common fare allows."},
      {.name = u"Text", .access = Field<&FareCalculation::text_>(), .help = u"The fare calculation line as displayed."},
      {.name = u"ErrorText",
       .access = Field<&FareCalculation::errorText_>(),
       .help = u"The parser's error text for the fare calculation line."},
      {.name = u"FareCommonLessId",
       .access = Field<&FareCalculation::fareCommonLessId_>(),
       .help = u"True as a text when an amount is to be subtracted from the common fare."},
      {.name = u"FareCommonId", .access = Field<&FareCalculation::fareCommonId_>(), .help = u"Always empty."},
      {.name = u"Itineraries", .access = Field<&FareCalculation::itineraries_>(), .help = u"The fare components."},
      {.name = u"ExtraSeats",
       .access = Field<&FareCalculation::extraSeats_>(),
       .help = u"The extra seats and cabin baggage."},
      {.name = u"FareMinimums",
       .access = Field<&FareCalculation::fareMinimums_>(),
       .help = u"The fare minimum checks."},
      ClassDebugIdMember(),
      {.name = u"ItineraryCompositeElements",
       .access = Field<&FareCalculation::itineraryCompositeElements_>(),
       .help = u"The composite elements outside the fare components."},
      {.name = u"EndLine",
       .access = Field<&FareCalculation::endLine_>(),
       .help = u"The end of the fare calculation: total, rate of exchange, facility charges."},
      {.name = u"DepartureRoutingPoint",
       .access = Field<&FareCalculation::departureRoutingPoint_>(),
       .help = u"The departure point."},
      {.name = u"HigherClassDifferentials",
       .access = Field<&FareCalculation::higherClassDifferentials_>(),
       .help = u"The higher class differentials."},
      {.name = u"FareCommonCurrencyCode",
       .access = Field<&FareCalculation::fareCommonCurrencyCode_>(),
       .help = u"Always empty."},
      {.name = u"FareCommonAmountToSub",
       .access = Field<&FareCalculation::fareCommonAmountToSub_>(),
       .help = u"The amount to subtract from the common fare."},
      {.name = u"FareCommonAmount",
       .access = Field<&FareCalculation::fareCommonAmount_>(),
       .help = u"The amount of the common fare."},
      {.name = u"FareCommonCityCode",
       .access = Field<&FareCalculation::fareCommonCityCode_>(),
       .help = u"The cities of the common fare, one after another."},
  }};
};

constinit const ClassDescription FareCalculation::kDescription = Table::kMembers.Describe(
    u"FareCalculation", u"The fare calculation: departure point, fare components, checks and the end of the line.",
    &CreateObject<FareCalculation>);

FareCalculation::FareCalculation(toolkit::Toolkit& toolkit)
    : LineElement(toolkit),
      itineraries_(Make<Collection>()),
      extraSeats_(Make<Collection>()),
      fareMinimums_(Make<Collection>()),
      itineraryCompositeElements_(Make<Collection>()),
      endLine_(),
      departureRoutingPoint_(Make<DepartureRoutingPoint>(toolkit)),
      higherClassDifferentials_(Make<Collection>()) {
  endLine_ = Make<EndLine>(toolkit);  // after the departure point, whose debug id comes first
}

FareCalculation::~FareCalculation() = default;

}  // namespace qorltst
