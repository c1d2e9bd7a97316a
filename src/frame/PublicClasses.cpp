// See PublicClasses.h.
#include "frame/PublicClasses.h"

#include <array>

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
#include "frame/Collection.h"
#include "frame/EtLog.h"
#include "frame/TST.h"

namespace qorltst {
namespace {

constexpr std::array kPublicClasses{
    &TST::kDescription,
    &EtLog::kDescription,
    &Collection::kDescription,
    &TSTHeader::kDescription,
    &NameElement::kDescription,
    &AirSegment::kDescription,
    &AirOpenSegment::kDescription,
    &ARNKSegment::kDescription,
    &ItineraryLastLine::kDescription,
    &TaxElement::kDescription,
    &FMElement::kDescription,
    &FPElement::kDescription,
    &FVElement::kDescription,
    &FEElement::kDescription,
    &FTElement::kDescription,
    &PublishedAndNetFares::kDescription,
    &FOElement::kDescription,
    &FareCalculation::kDescription,
    &Itinerary::kDescription,
    &ItineraryCompositeElement::kDescription,
    &Fare::kDescription,
    &DepartureRoutingPoint::kDescription,
    &EndLine::kDescription,
    &AnyPFC::kDescription,
    &CityDigit::kDescription,
    &HigherClassDifferential::kDescription,
    &FareHigherIntermediate::kDescription,
    &FareMinimun::kDescription,
    &ExtraSeat::kDescription,
    &StopOverCharge::kDescription,
    &MileageEqualizationRule::kDescription,
    &AnySymbol::kDescription,
    &OtherSurcharge::kDescription,
};

}  // namespace

std::span<const ClassDescription* const> PublicClasses() noexcept { return kPublicClasses; }

}  // namespace qorltst
