// See FareGroups.h.
#include "farecalc/FareGroups.h"

namespace qorltst {

void WalkMileageItem(toolkit::ParseNode& node, const MileageTargets& targets) {
  using toolkit::NodeTypeId;
  Walk(node, On(NodeTypeId::InclusiveTour, Mark(targets.inclusiveTour)),
       On(NodeTypeId::BulkTour, Mark(targets.bulkTour)), On(NodeTypeId::MileagePercentage, Text(targets.percentage)),
       On(NodeTypeId::MileageMarker, Mark(targets.marker)));
}

}  // namespace qorltst
