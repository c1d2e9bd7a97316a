// The public table and the fill. See TaxElement.h.
#include "elements/TaxElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct TaxElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text",
       .access = Field<&TaxElement::text_>(),
       .getGuard = u"TaxElement:Text Property Get",
       .letGuard = u"TaxElement:Text Property Let",
       .help = u"The tax as displayed."},
      {.name = u"TaxId",
       .access = Field<&TaxElement::taxId_>(),
       .getGuard = u"TaxElement:TaxIndicator Property Get",
       .letGuard = u"TaxElement:TaxId Property Let",
       .help = u"The tax identifier."},
      {.name = u"CurrencyCode",
       .access = Field<&TaxElement::currencyCode_>(),
       .getGuard = u"TaxElement:CurrencyCode Property Get",
       .letGuard = u"TaxElement:CurrencyCode Property Let",
       .help = u"The currency code of the tax."},
      {.name = u"Amount",
       .access = Field<&TaxElement::amount_>(),
       .getGuard = u"TaxElement:Amount Property Get",
       .letGuard = u"TaxElement:Amount Property Let",
       .help = u"The amount of the tax as displayed."},
      {.name = u"ISOType",
       .access = Field<&TaxElement::isoType_>(),
       .getGuard = u"TaxElement:ISOType Property Get",
       .letGuard = u"TaxElement:ISOType Property Let",
       .help = u"The ISO code of the tax."},
      {.name = u"NatureType",
       .access = Field<&TaxElement::natureType_>(),
       .getGuard = u"TaxElement:NatureType Property Get",
       .letGuard = u"TaxElement:NatureType Property Let",
       .help = u"The nature of the tax."},
      {.name = u"ErrorText",
       .access = Field<&TaxElement::errorText_>(),
       .getGuard = u"TaxElement:ErrorText Property Get",
       .letGuard = u"TaxElement:ErrorTextProperty Let",
       .help = u"The parser's error text for the tax."},
      ClassDebugIdMember(),
  }};
};

constinit const ClassDescription TaxElement::kDescription = Table::kMembers.Describe(
    u"TaxElement", u"A tax: identifier, amount, currency, ISO code and nature.", &CreateObject<TaxElement>);

void TaxElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"TaxElement">, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::TaxId, Text(taxId_)),
         On(NodeTypeId::TaxAmountGroup,
            Children(On(NodeTypeId::CurrencyCode, Text(currencyCode_)), On(NodeTypeId::TaxAmount, Text(amount_)),
                     On(NodeTypeId::TaxIsoType, Text(isoType_)), On(NodeTypeId::TaxNatureType, Text(natureType_)))));
  });
}

}  // namespace qorltst
