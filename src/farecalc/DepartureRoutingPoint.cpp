// The public table and the fill. See DepartureRoutingPoint.h.
#include "farecalc/DepartureRoutingPoint.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// There is no begin line, and that is meant.
constexpr TraceTexts kFillTexts{
    .begin = {},
    .end = {u"End of FillWithData (in DepartureRoutingPoint) Function", u"DepartureRoutingPoint.FillWithData"},
    .errorEnd = {u"End of FillWithData (in DepartureRoutingPoint) Function with error",
                 u"DepartureRoutingPoint.FillWithData"}};

}  // namespace

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

void DepartureRoutingPoint::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    const auto rerouting = [this](ParseNode& group) {
      involuntaryRerouting_ = false;
      Walk(group, On(NodeTypeId::InvoluntaryRerouting, Mark(involuntaryRerouting_)),
           On(NodeTypeId::ReroutingDate, Text(departureRoutingDate_)), On(NodeTypeId::ReroutingCity, Text(cityCode_)));
    };
    Walk(node, On(NodeTypeId::DepartureCity, Text(cityCode_)),
         On(NodeTypeId::DepartureGroup, Children(On(NodeTypeId::RoutingDate, Text(departureRoutingDate_)),
                                                 On(NodeTypeId::ReroutingCity, Text(cityCode_)))),
         On(NodeTypeId::ReroutingGroup, rerouting));
  });
}

}  // namespace qorltst
