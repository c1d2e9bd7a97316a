// The public table and the fill. See EndLine.h.
#include "farecalc/EndLine.h"

#include "farecalc/AnyPFC.h"
#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// Every line of this class has the one source, and the two builders have no begin line; log readers match them.
constexpr std::u16string_view kSource = u"FareCalculation.EndLine";
constexpr TraceTexts kFillTexts{.begin = {u"Beginning of FillWithData (in EndLine) Function", kSource},
                                .end = {u"End of FillWithData (in EndLine) Function", kSource},
                                .errorEnd = {u"End of FillWithData (in EndLine) Function with error", kSource}};
constexpr TraceTexts kAnyPFCTexts{.begin = {},
                                  .end = {u"End of BuildAnyPFC (in EndLine) Function", kSource},
                                  .errorEnd = {u"End of BuildAnyPFC (in EndLine) Function with Errors", kSource}};
constexpr TraceTexts kFreeFlowTexts{.begin = {},
                                    .end = {u"End of BuildFreeFlow (in EndLine) Function", kSource},
                                    .errorEnd = {u"End of BuildFreeFlow (in EndLine) Function with Errors", kSource}};

}  // namespace

struct EndLine::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"EndId", .access = Field<&EndLine::endId_>(), .help = u"Whether the end marker was present."},
      {.name = u"AnyPFCs",
       .access = Items<AnyPFC, &EndLine::anyPFCs_>(),
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

void EndLine::FillWithData(ParseNode& node) {
  Trace(kFillTexts.begin);
  Gathering items;
  TakeTexts(node);  // outside the trap: a failure here goes to the caller's, and that is meant
  endId_ = false;
  Trapped(kFillTexts.errorEnd, [&] {
    const auto fareAfterNuc = Children(On(NodeTypeId::FareAfterNucCity1, Text(fareAfterNucCityPair1_)),
                                       On(NodeTypeId::FareAfterNucCity2, Text(fareAfterNucCityPair2_)),
                                       On(NodeTypeId::FareAmount, Text(fareAfterNucAmount_)),
                                       On(NodeTypeId::City, Text(fareAfterNucLowCombCityCode_)),
                                       On(NodeTypeId::CurrencyCode, Text(fareAfterNucCurrencyCode_)),
                                       On(NodeTypeId::FareBasis, Text(fareAfterNucFareBasis_)));
    Walk(node, On(NodeTypeId::EndMarker, Mark(endId_)),
         On(NodeTypeId::FacilityCharges, [&](ParseNode& child) { BuildAnyPFC(child, items); }),
         On(NodeTypeId::EndFreeFlowGroup, [this](ParseNode& child) { BuildFreeFlow(child); }),
         On(NodeTypeId::RateOfExchangeGroup, Children(On(NodeTypeId::RateOfExchange, Text(rateOfExchange_)))),
         On(NodeTypeId::TotalFareGroup,
            Children(On(NodeTypeId::TotalFareCurrency, Text(totalFareCurrencyCode_)),
                     On(NodeTypeId::FareAmount, Text(totalFareAmount_)), On(NodeTypeId::FareAfterNuc, fareAfterNuc))));
    items.InstallIn(anyPFCs_);
  });
  Trace(kFillTexts.end);
}

void EndLine::BuildAnyPFC(ParseNode& node, Gathering& items) {
  Traced(kAnyPFCTexts,
         [&] { ForEachChild(node, [&](ParseNode& child) { items.AddFilled<AnyPFC>(Toolkit(), child); }); });
}

void EndLine::BuildFreeFlow(ParseNode& node) {
  Traced(kFreeFlowTexts, [&] {
    Walk(node, On(NodeTypeId::EndFreeFlow, Children(On(NodeTypeId::EndFreeFlowText, Text(freeFlowText_)))));
  });
}

}  // namespace qorltst
