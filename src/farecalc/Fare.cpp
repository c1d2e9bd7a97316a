// The public table and the fill. See Fare.h.
#include "farecalc/Fare.h"

#include "farecalc/FareGroups.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The letter case and spelling of these texts differ on purpose: log readers match them.
constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in Fare) Function", u"Fare.FillWithData"},
    .end = {u"End of FillWithData (in Fare) Function", u"Fare.FillWithData"},
    .errorEnd = {u"End of FillWithData (in Fare) Funciton with Errors", u"Fare.FillWithData"}};
constexpr TraceTexts kCurrencyTexts{
    .begin = {u"Beginning of BuildCurrency (in fare) function", u"Fare.BuildCurrency"},
    .end = {u"End of BuildCurrency (in Fare) Function", u"Fare.BuildCurrency"},
    .errorEnd = {u"End of BuildCurrency (in Fare) Function with Errors", u"Fare.BuildCurrency"}};
constexpr TraceTexts kFareTexts{.begin = {u"Beginning of BuildFare (in fare) function", u"Fare.BuildFare"},
                                .end = {u"End of BuildFare (in Fare) Function", u"Fare.BuildFare"},
                                .errorEnd = {u"End of BuildFare (in Fare) Function with Errors", u"Fare.BuildFare"}};
constexpr TraceTexts kLessFareTexts{
    .begin = {u"Beginning of BuildLessFare (in fare) function", u"Fare.BuildLessFare"},
    .end = {u"End of BuildLessFare (in Fare) function", u"Fare.BuildLessFare"},
    .errorEnd = {u"End of BuildLessFare (in Fare) Function with Errors", u"Fare.BuildLessFare"}};

}  // namespace

struct Fare::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&Fare::text_>(), .help = u"The fare as displayed."},
      {.name = u"ErrorText", .access = Field<&Fare::errorText_>(), .help = u"The parser's error text for the fare."},
      {.name = u"NumberStopAllowed",
       .access = Field<&Fare::numberStopAllowed_>(),
       .help = u"The number of stop-overs allowed."},
      {.name = u"StopOverChargeValue",
       .access = Field<&Fare::stopOverChargeValue_>(),
       .help = u"The stop-over charge."},
      {.name = u"LessId",
       .access = Field<&Fare::lessId_>(),
       .help = u"True as a text when an amount is to be subtracted."},
      {.name = u"CurrencyCode", .access = Field<&Fare::currencyCode_>(), .help = u"The currency code of the fare."},
      {.name = u"AmountToSub", .access = Field<&Fare::amountToSub_>(), .help = u"The amount to subtract."},
      {.name = u"Amount", .access = Field<&Fare::amount_>(), .help = u"The amount as displayed."},
  }};
};

constinit const ClassDescription Fare::kDescription = Table::kMembers.Describe(
    u"Fare", u"A fare: amount, currency, amount to subtract and stop-overs.", &CreateObject<Fare>);

void Fare::FillWithData(ParseNode& node) {
  Trapped(kFillTexts.errorEnd, [&] {
    TakeTexts(node);
    Trace(kFillTexts.begin);  // after the texts, and that is meant
    WalkFareWithStopOver(node, {amount_, amountToSub_, stopOverChargeValue_, numberStopAllowed_},
                         [this] { lessId_ = kLessText; });
  });
  Trace(kFillTexts.end);
}

void Fare::BuildCurrency(ParseNode& node) {
  Traced(kCurrencyTexts, [&] { Walk(node, On(NodeTypeId::CurrencyCode, Text(currencyCode_))); });
}

void Fare::BuildFare(ParseNode& node) {
  Traced(kFareTexts, [&] { amount_ = node.Text(); });
}

void Fare::BuildLessFare(ParseNode& node) {
  Traced(kLessFareTexts, [&] {
    lessId_ = kLessText;
    Walk(node, On(NodeTypeId::AmountToSubtract, Text(amountToSub_)));
  });
}

}  // namespace qorltst
