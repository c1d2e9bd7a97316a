// The public table and the creation. See EndLine.h.
#include "farecalc/EndLine.h"

namespace qorltst {

struct EndLine::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"EndId", .access = Field<&EndLine::endId_>(), .help = u"Whether the end marker was present."},
      {.name = u"AnyPFCs",
       .access = Field<&EndLine::anyPFCs_>(),
       .help = u"The facility charges and taxes at the end of the line."},
      {.name = u"FareAfterNucLowCombCityCode",
       .access = Field<&EndLine::fareAfterNucLowCombCityCode_>(),
       .help = u"The lowest combination city of the fare after the NUC amount."},
      {.name = u"FareAfterNucCurrencyCode",
       .access = Field<&EndLine::fareAfterNucCurrencyCode_>(),
       .help = u"The currency code of the fare after the NUC amount."},
      {.name = u"FareAfterNucAmount",
       .access = Field<&EndLine::fareAfterNucAmount_>(),
       .help = u"The amount of the fare after the NUC amount."},
      {.name = u"FareAfterNucCityPair2",
       .access = Field<&EndLine::fareAfterNucCityPair2_>(),
       .help = u"The second city of the fare after the NUC amount."},
      {.name = u"FareAfterNucCityPair1",
       .access = Field<&EndLine::fareAfterNucCityPair1_>(),
       .help = u"The first city of the fare after the NUC amount."},
      {.name = u"FareAfterNucFareBasis",
       .access = Field<&EndLine::fareAfterNucFareBasis_>(),
       .help = u"The fare basis of the fare after the NUC amount."},
      {.name = u"RateOfExchange",
       .access = Field<&EndLine::rateOfExchange_>(),
       .help = u"The rate of exchange (ROE) as displayed."},
      {.name = u"Text", .access = Field<&EndLine::text_>(), .help = u"The end of the line as displayed."},
      {.name = u"ErrorText",
       .access = Field<&EndLine::errorText_>(),
       .help = u"The parser's error text for the end of the line."},
      {.name = u"TotalFareCurrencyCode",
       .access = Field<&EndLine::totalFareCurrencyCode_>(),
       .help = u"The currency code of the total fare."},
      {.name = u"TotalFareAmount",
       .access = Field<&EndLine::totalFareAmount_>(),
       .help = u"The total fare as displayed."},
  }};
};

constinit const ClassDescription EndLine::kDescription = Table::kMembers.Describe(
    u"EndLine", u"The end of a fare calculation: end marker, total fare, rate of exchange, facility charges.",
    &CreateObject<EndLine>);

EndLine::EndLine(toolkit::Toolkit& toolkit) : LineElement(toolkit), anyPFCs_(Make<Collection>()) {}

}  // namespace qorltst
