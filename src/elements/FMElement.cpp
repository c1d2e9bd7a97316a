// The public table and the fill. See FMElement.h.
#include "elements/FMElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

/// Reads a commission group. A marker, whatever it says, makes the value an amount, and its absence a percentage;
/// one of the two is written for each group, the value empty or not.
template <class... Actions>
auto Commission(std::u16string& percent, std::u16string& flatAmount, Rule<Actions>... rules) {
  return [&percent, &flatAmount, rules...](ParseNode& group) {
    std::u16string value;
    std::u16string amountMarker;
    Walk(group, On(NodeTypeId::CommissionValue, Text(value)),
         On(NodeTypeId::CommissionAmountMarker, Text(amountMarker)), rules...);
    (amountMarker.empty() ? percent : flatAmount) = value;
  };
}

}  // namespace

struct FMElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"CommisionId", .access = Field<&FMElement::commisionId_>(), .help = u"The commission identifier."},
      {.name = u"CommissionFlatAmount",
       .access = Field<&FMElement::commissionFlatAmount_>(),
       .help = u"The current commission where it is an amount."},
      {.name = u"ElementNumber",
       .access = Field<&FMElement::elementNumber_>(),
       .getGuard = u"FMElement:ElementNumber Property Get",
       .letGuard = u"FMElement:ElementNumber Property Let",
       .help = u"The number of the element."},
      {.name = u"Text",
       .access = Field<&FMElement::text_>(),
       .getGuard = u"FMElement:Text Property Get",
       .letGuard = u"FMElement:Text Property Let",
       .help = u"The commission line as displayed."},
      {.name = u"CommissionPercent",
       .access = Field<&FMElement::commissionPercent_>(),
       .getGuard = u"FMElement:CommissionPercent Property Get",
       .letGuard = u"FMElement:CommissionPercent Property Let",
       .help = u"The current commission where it is a percentage."},
      {.name = u"CommissionCAP",
       .access = Field<&FMElement::commissionCAP_>(),
       .getGuard = u"FMElement:CommissionCAP Property Get",
       .letGuard = u"FMElement:CommissionCAP Property Let",
       .help = u"The cap of the commission."},
      {.name = u"OldCommissionPercent",
       .access = Field<&FMElement::oldCommissionPercent_>(),
       .getGuard = u"FMElement:OldCommissionPercent Property Get",
       .letGuard = u"FMElement:OldCommissionPercent Property Let",
       .help = u"The old commission where it is a percentage."},
      {.name = u"OldCommissionFlatAmount",
       .access = Field<&FMElement::oldCommissionFlatAmount_>(),
       .getGuard = u"FMElement:OldCommissionFlatAmount Property Get",
       .letGuard = u"FMElement:OldCommissionFlatAmount Property Let",
       .help = u"The old commission where it is an amount."},
      ClassDebugIdMember(),
      {.name = u"OldCommissionVAT",
       .access = Field<&FMElement::oldCommissionVAT_>(),
       .help = u"The VAT of the old commission."},
      {.name = u"CommissionVAT",
       .access = Field<&FMElement::commissionVAT_>(),
       .help = u"The VAT of the current commission."},
      {.name = u"ErrorText",
       .access = Field<&FMElement::errorText_>(),
       .help = u"The parser's error text for the commission line."},
  }};
};

constinit const ClassDescription FMElement::kDescription = Table::kMembers.Describe(
    u"FMElement", u"A commission: the current and the old one, each a percentage or a flat amount.",
    &CreateObject<FMElement>);

void FMElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"FMElement">, [&] {
    TakeTexts(node);
    const auto current =
        Commission(commissionPercent_, commissionFlatAmount_, On(NodeTypeId::CommissionVat, Text(commissionVAT_)),
                   On(NodeTypeId::CommissionId, Text(commisionId_)));
    const auto old = Commission(oldCommissionPercent_, oldCommissionFlatAmount_,
                                On(NodeTypeId::CommissionVat, Text(oldCommissionVAT_)));
    Walk(node, On(NodeTypeId::ElementNumber, Text(elementNumber_)),
         On(NodeTypeId::CommissionData,
            Children(On(NodeTypeId::CurrentCommission, current),
                     On(NodeTypeId::CommissionCapGroup, Children(On(NodeTypeId::CommissionCap, Text(commissionCAP_)))),
                     On(NodeTypeId::OldCommission, old))));
  });
}

}  // namespace qorltst
