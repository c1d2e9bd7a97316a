// The public table. See DepartureRoutingPoint.h.
#include "farecalc/DepartureRoutingPoint.h"

namespace qorltst {

struct DepartureRoutingPoint::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&DepartureRoutingPoint::text_>(), .help = u"The departure point as displayed."},
      {.name = u"ErrorText",
       .access = Field<&DepartureRoutingPoint::errorText_>(),
       .help = u"The parser's error text for the departure point."},
      {.name = u"InvoluntaryRerouting",
       .access = Field<&DepartureRoutingPoint::involuntaryRerouting_>(),
       .help = u"Whether the point follows an involuntary rerouting."},
      {.name = u"CityCode", .access = Field<&DepartureRoutingPoint::cityCode_>(), .help = u"The city of departure."},
      {.name = u"DepartureRoutingDate",
       .access = Field<&DepartureRoutingPoint::departureRoutingDate_>(),
       .help = u"The date of departure as displayed."},
  }};
};

constinit const ClassDescription DepartureRoutingPoint::kDescription = Table::kMembers.Describe(
    u"DepartureRoutingPoint", u"The departure point of a fare calculation that was reissued or rerouted.",
    &CreateObject<DepartureRoutingPoint>);

}  // namespace qorltst
