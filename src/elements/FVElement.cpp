// The public table and the fill. See FVElement.h.
#include "elements/FVElement.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct FVElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ElementNumber",
       .access = Field<&FVElement::elementNumber_>(),
       .node = NodeTypeId::ElementNumber,
       .getGuard = u"FVElement:ElementNumber Property Get",
       .letGuard = u"FVElement:ElementNumber Property Let",
       .help = u"The number of the element."},
      {.name = u"Text",
       .access = Field<&FVElement::text_>(),
       .getGuard = u"FVElement:Text Property Get",
       .letGuard = u"FVElement:Text Property Let",
       .help = u"The validating carrier line as displayed."},
      {.name = u"Carrier",
       .access = Field<&FVElement::carrier_>(),
       .node = NodeTypeId::ValidatingCarrier,
       .getGuard = u"FVElement:Carrier Property Get",
       .letGuard = u"FVElement:Carrier Property Let",
       .help = u"The validating carrier."},
      {.name = u"ErrorText",
       .access = Field<&FVElement::errorText_>(),
       .help = u"The parser's error text for the validating carrier line."},
      ClassDebugIdMember(),
  }};
};

constinit const ClassDescription FVElement::kDescription =
    Table::kMembers.Describe(u"FVElement", u"The validating carrier.", &CreateObject<FVElement>);

void FVElement::FillWithData(ParseNode& node) { FillFromTable(kUsualTexts<u"FillWithData", u"FVElement">, node); }

}  // namespace qorltst
