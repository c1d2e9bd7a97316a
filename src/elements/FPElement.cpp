// The public table and the fill. See FPElement.h.
#include "elements/FPElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct FPElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"AccountId", .access = Field<&FPElement::accountId_>(), .help = u"The account identifier."},
      {.name = u"ElementNumber",
       .access = Field<&FPElement::elementNumber_>(),
       .getGuard = u"FPElement:ElementNumber Property Get",
       .letGuard = u"FPElement:ElementNumber Property Let",
       .help = u"The number of the element."},
      {.name = u"Text",
       .access = Field<&FPElement::text_>(),
       .getGuard = u"FPElement:Text Property Get",
       .letGuard = u"FPElement:Text Property Let",
       .help = u"The form of payment line as displayed."},
      ClassDebugIdMember(),
      {.name = u"NewFOP",
       .access = Field<&FPElement::newFOP_>(),
       .help = u"The new forms of payment, joined with a plus sign."},
      {.name = u"OldFOP", .access = Field<&FPElement::oldFOP_>(), .help = u"The old form of payment."},
      {.name = u"ErrorText",
       .access = Field<&FPElement::errorText_>(),
       .help = u"The parser's error text for the form of payment line."},
  }};
};

constinit const ClassDescription FPElement::kDescription = Table::kMembers.Describe(
    u"FPElement", u"A form of payment: the new one, the old one and an account.", &CreateObject<FPElement>);

void FPElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"FPElement">, [&] {
    TakeTexts(node);
    const auto addPayment = [this](ParseNode& item) {
      const std::u16string text = item.Text();
      newFOP_ = newFOP_.empty() ? text : newFOP_ + u"+" + text;
    };
    // Items inside the old form's subgroups belong to the new form of payment; this is meant.
    const auto oldForm =
        Children(On(NodeTypeId::OldFormOfPaymentText, Text(oldFOP_)),
                 On(NodeTypeId::OldFormOfPaymentSubgroup, Children(On(NodeTypeId::NewFormOfPayment, addPayment))));
    Walk(node, On(NodeTypeId::ElementNumber, Text(elementNumber_)),
         On(NodeTypeId::FormOfPaymentData,
            Children(On(NodeTypeId::AccountId, Text(accountId_)),
                     On(NodeTypeId::NewFormOfPayment, Children(On(NodeTypeId::FormOfPaymentItem, addPayment))),
                     On(NodeTypeId::OldFormOfPayment, oldForm))));
  });
}

}  // namespace qorltst
