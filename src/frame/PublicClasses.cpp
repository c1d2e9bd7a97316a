// See PublicClasses.h.
#include "frame/PublicClasses.h"

#include <array>

#include "elements/FEElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/TSTHeader.h"
#include "farecalc/DepartureRoutingPoint.h"
#include "farecalc/EndLine.h"
#include "farecalc/FareCalculation.h"
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
    &ItineraryLastLine::kDescription,
    &FEElement::kDescription,
    &FareCalculation::kDescription,
    &DepartureRoutingPoint::kDescription,
    &EndLine::kDescription,
};

}  // namespace

std::span<const ClassDescription* const> PublicClasses() noexcept { return kPublicClasses; }

}  // namespace qorltst
