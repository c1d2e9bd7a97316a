// The public table and the fill. See AnySymbol.h.
#include "farecalc/AnySymbol.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData"},
    .end = {u"End of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData"},
    .errorEnd = {u"End of FillWithData (in AnySymbol) Function with Errors", u"AnySymbol.FillWithData"}};

}  // namespace

struct AnySymbol::Table {
  static constexpr MemberTable kMembers{{
      ClassDebugIdMember(),
      {.name = u"OtherSymbol",
       .access = Field<&AnySymbol::otherSymbol_>(),
       .node = NodeTypeId::OtherSymbol,
       .help = u"Any other symbol."},
      {.name = u"GapInRoutingIncludedInMileage",
       .access = Field<&AnySymbol::gapInRoutingIncludedInMileage_>(),
       .node = NodeTypeId::GapIncludedInMileage,
       .help = u"A gap in the routing whose mileage is included."},
      {.name = u"GapInRoutinNotInMileage",
       .access = Field<&AnySymbol::gapInRoutinNotInMileage_>(),
       .node = NodeTypeId::GapNotInMileage,
       .help = u"A gap in the routing that is not counted in the mileage."},
      {.name = u"TicketedPointNotInMileage",
       .access = Field<&AnySymbol::ticketedPointNotInMileage_>(),
       .node = NodeTypeId::TicketedPointNotInMileage,
       .help = u"A ticketed point that is not included in the mileage."},
      {.name = u"ReducedMileageRoutingPoint",
       .access = Field<&AnySymbol::reducedMileageRoutingPoint_>(),
       .node = NodeTypeId::ReducedMileagePoint,
       .help = u"A routing point with reduced mileage."},
      {.name = u"StopOverNotAllowed",
       .access = Field<&AnySymbol::stopOverNotAllowed_>(),
       .node = NodeTypeId::StopOverNotAllowed,
       .help = u"No stop-over is allowed at the point."},
      {.name = u"ExtraMileageRoutingPoint",
       .access = Field<&AnySymbol::extraMileageRoutingPoint_>(),
       .node = NodeTypeId::ExtraMileagePoint,
       .help = u"A routing point with extra mileage."},
  }};
};

constinit const ClassDescription AnySymbol::kDescription = Table::kMembers.Describe(
    u"AnySymbol", u"The routing and stop-over symbols attached to a point.", &CreateObject<AnySymbol>);

void AnySymbol::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] { ForEachChild(node, [this](ParseNode& child) { FillFromChild(child); }); });
}

}  // namespace qorltst
