// The public table and the fill. See PublishedAndNetFares.h.
#include "elements/PublishedAndNetFares.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct PublishedAndNetFares::Table {
  static constexpr MemberTable kMembers{{
      ClassDebugIdMember(),
      {.name = u"PubAndNetFaresBase",
       .access = Field<&PublishedAndNetFares::pubAndNetFaresBase_>(),
       .node = NodeTypeId::FareAmount,
       .help = u"The fare as displayed."},
      {.name = u"PubAndNetFaresCurrencyCode",
       .access = Field<&PublishedAndNetFares::pubAndNetFaresCurrencyCode_>(),
       .node = NodeTypeId::CurrencyCode,
       .help = u"The currency code of the fare."},
      {.name = u"PubAndNetFaresId",
       .access = Field<&PublishedAndNetFares::pubAndNetFaresId_>(),
       .node = NodeTypeId::FareId,
       .help = u"The identifier of the line."},
      {.name = u"ErrorText",
       .access = Field<&PublishedAndNetFares::errorText_>(),
       .help = u"The parser's error text for the line."},
      {.name = u"Text", .access = Field<&PublishedAndNetFares::text_>(), .help = u"The line as displayed."},
  }};
};

constinit const ClassDescription PublishedAndNetFares::kDescription =
    Table::kMembers.Describe(u"PublishedAndNetFares", u"A published or net fare: identifier, amount and currency.",
                             &CreateObject<PublishedAndNetFares>);

void PublishedAndNetFares::FillWithData(ParseNode& node) {
  FillFromTable(kUsualTexts<u"FillWithData", u"PublishedAndNetFares">, node);
}

}  // namespace qorltst
