// The public table and the fill. See NameElement.h.
#include "elements/NameElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct NameElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ErrorText",
       .access = Field<&NameElement::errorText_>(),
       .help = u"The parser's error text for the name line."},
      {.name = u"ElementNumber",
       .access = Field<&NameElement::elementNumber_>(),
       .getGuard = u"NameElement:ElementNumber Property Get",
       .letGuard = u"NameElement:ElementNumber Property Let",
       .help = u"The number of the passenger."},
      {.name = u"Text",
       .access = Field<&NameElement::text_>(),
       .getGuard = u"NameElement:Text Property Get",
       .letGuard = u"NameElement:Text Property Let",
       .help = u"The name line as displayed."},
      {.name = u"LastName",
       .access = Field<&NameElement::lastName_>(),
       .getGuard = u"NameElement:LastName Property Get",
       .letGuard = u"NameElement:LastName Property Let",
       .help = u"The surname."},
      {.name = u"Initial",
       .access = Field<&NameElement::initial_>(),
       .getGuard = u"NameElement:Initial Property Get",
       .letGuard = u"NameElement:Initial Property Let",
       .help = u"The initial or first name."},
      {.name = u"PassengerType",
       .access = Field<&NameElement::passengerType_>(),
       .getGuard = u"NameElement:PassengerType Property Get",
       .letGuard = u"NameElement:PassengerType Property Let",
       .help = u"The passenger types, one after another."},
      {.name = u"ExtraSeat",
       .access = Field<&NameElement::extraSeat_>(),
       .getGuard = u"NameElement:ExtraSeat Property Get",
       .letGuard = u"NameElement:ExtraSeat Property Let",
       .help = u"The extra seat marker."},
      ClassDebugIdMember(),
      {.name = u"CabinBaggage", .access = Field<&NameElement::cabinBaggage_>(), .help = u"The cabin baggage marker."},
      {.name = u"IdNumber", .access = Field<&NameElement::idNumber_>(), .help = u"The identity number."},
  }};
};

constinit const ClassDescription NameElement::kDescription = Table::kMembers.Describe(
    u"NameElement", u"A passenger: name, type, identity, extra seat and cabin baggage.", &CreateObject<NameElement>);

void NameElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"NameElement">, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::Initial, Text(initial_)), On(NodeTypeId::LastName, Text(lastName_)),
         On(NodeTypeId::ExtraSeat, Text(extraSeat_)), On(NodeTypeId::CabinBaggage, Text(cabinBaggage_)),
         On(NodeTypeId::NameElementNumber, Text(elementNumber_)),
         On(NodeTypeId::PassengerInformation,
            Children(On(NodeTypeId::PassengerTypeGroup,
                        Children(On(NodeTypeId::NamePassengerType, AppendText(passengerType_)))),
                     On(NodeTypeId::IdentityGroup, Children(On(NodeTypeId::IdNumber, Text(idNumber_)))))));
  });
}

}  // namespace qorltst
