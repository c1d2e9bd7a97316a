// The public table and the fill. See FEElement.h.
#include "elements/FEElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct FEElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ElementNumber",
       .access = Field<&FEElement::elementNumber_>(),
       .getGuard = u"FEElement:ElementNumber Property Get",
       .letGuard = u"FEElement:ElementNumber Property Let",
       .help = u"The number of the element."},
      {.name = u"Text",
       .access = Field<&FEElement::text_>(),
       .getGuard = u"FEElement:Text Property Get",
       .letGuard = u"FEElement:Text Property Let",
       .help = u"The endorsement line as displayed."},
      {.name = u"ManualId",
       .access = Field<&FEElement::manualId_>(),
       .getGuard = u"FEElement:ManualIndicator Property Get",
       .letGuard = u"FEElement:ManualId Property Let",
       .help = u"The indicator of a manual endorsement."},
      {.name = u"FreeFlowText",
       .access = Field<&FEElement::freeFlowText_>(),
       .getGuard = u"FEElement:FreeFlowText Property Get",
       .letGuard = u"FEElement:FreeFlowText Property Let",
       .help = u"The endorsement's free text."},
      {.name = u"ErrorText",
       .access = Field<&FEElement::errorText_>(),
       .help = u"The parser's error text for the endorsement line."},
      ClassDebugIdMember(),
  }};
};

constinit const ClassDescription FEElement::kDescription = Table::kMembers.Describe(
    u"FEElement", u"The endorsement line: its manual indicator and its free text.", &CreateObject<FEElement>);

void FEElement::FillUpLevelData(ParseNode& node) {
  Traced(kUsualTexts<u"FillUpLevelData", u"FEElement">, [&] { TakeTexts(node); });
}

void FEElement::FillWithData(ParseNode& child) {
  Traced(kUsualTexts<u"FillWithData", u"FEElement">, [&] {
    Choose(child, On(NodeTypeId::ElementNumber, Text(elementNumber_)),
           On(NodeTypeId::EndorsementData, Children(On(NodeTypeId::EndorsementManualId, Text(manualId_)),
                                                    On(NodeTypeId::EndorsementFreeFlow, Text(freeFlowText_)))));
  });
}

}  // namespace qorltst
