// The public table and the fill. See StopOverCharge.h.
#include "farecalc/StopOverCharge.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The error line is the very same as the end line.
constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in StopOverCharge) Function", u"StopOverCharge.FillWithData"},
    .end = {u"End of FillWithData (in StopOverCharge) Function", u"StopOverCharge.FillWithData"},
    .errorEnd = {u"End of FillWithData (in StopOverCharge) Function", u"StopOverCharge.FillWithData"}};

}  // namespace

struct StopOverCharge::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"NumberStopAllowed",
       .access = Field<&StopOverCharge::numberStopAllowed_>(),
       .help = u"The number of stop-overs allowed."},
      {.name = u"StopOverChargeValue",
       .access = Field<&StopOverCharge::stopOverChargeValue_>(),
       .help = u"The stop-over charge."},
      {.name = u"Text", .access = Field<&StopOverCharge::text_>(), .help = u"Always empty."},
      {.name = u"ErrorText", .access = Field<&StopOverCharge::errorText_>(), .help = u"Always empty."},
  }};
};

constinit const ClassDescription StopOverCharge::kDescription = Table::kMembers.Describe(
    u"StopOverCharge", u"A stop-over charge or a number of stop-overs allowed.", &CreateObject<StopOverCharge>);

void StopOverCharge::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    Choose(node, On(NodeTypeId::StopOverValue, Text(stopOverChargeValue_)),
           On(NodeTypeId::StopsAllowed, Text(numberStopAllowed_)));
  });
}

}  // namespace qorltst
