// The public table and the fill. See OtherSurcharge.h.
#include "farecalc/OtherSurcharge.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"},
    .end = {u"End of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"},
    .errorEnd = {u"End of FillWithData (in OtherSurcharge) Function with Error", u"OtherSurcharge.FillWithData"}};

}  // namespace

struct OtherSurcharge::Table {
  static constexpr MemberTable kMembers{{
      ClassDebugIdMember(),
      {.name = u"OtherSurchargeValue",
       .access = Field<&OtherSurcharge::otherSurchargeValue_>(),
       .node = NodeTypeId::StopOverValue,
       .help = u"The amount of the surcharge."},
      {.name = u"Text", .access = Field<&OtherSurcharge::text_>(), .help = u"The surcharge as displayed."},
      {.name = u"ErrorText",
       .access = Field<&OtherSurcharge::errorText_>(),
       .help = u"The parser's error text for the surcharge."},
  }};
};

constinit const ClassDescription OtherSurcharge::kDescription = Table::kMembers.Describe(
    u"OtherSurcharge", u"A surcharge other than a stop-over charge.", &CreateObject<OtherSurcharge>);

void OtherSurcharge::FillWithData(ParseNode& node) { FillFromTable(kFillTexts, node); }

}  // namespace qorltst
