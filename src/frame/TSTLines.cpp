// The display lines that the root object keeps itself. See TST.h.
#include "frame/Amount.h"
#include "frame/TST.h"
#include "frame/Walk.h"

namespace qorltst {
namespace {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

/// Stores a node's text and the amount that it starts with.
auto TextAndAmount(std::u16string& text, Currency& amount) {
  return [&text, &amount](ParseNode& node) {
    text = node.Text();
    amount = AmountOf(text);
  };
}

}  // namespace

void TST::SetTextToParse(std::u16string text) {
  Traced(kUsualTexts<u"SetTextToParse", u"TST">, [&] { text_ = std::move(text); });
}

void TST::FillTotalWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillTotalWithData", u"TST">, [&] {
    totalLineText_ = node.Text();
    totalErrorText_ = node.ErrorText();
    const auto additionalBankers = [this](ParseNode& group) {
      additionalTotalBankersText_ = group.Text();
      Walk(group, On(NodeTypeId::RateOfExchangeOrAmount, Text(additionalTotalBankersAmount_)),
           On(NodeTypeId::AdditionalBankersCurrency, Text(additionalTotalBankersCur_)));
    };
    Walk(node, On(NodeTypeId::CurrencyCode, Text(totalCurrencyCode_)),
         On(NodeTypeId::TotalCollection, TextAndAmount(totalCollection_, totalCollectionAmount_)),
         On(NodeTypeId::BankersRateGroup, Children(On(NodeTypeId::BankersRateId, Text(totalBankersRateId_)),
                                                   On(NodeTypeId::RateOfExchangeOrAmount, Text(totalRateExchange_)),
                                                   On(NodeTypeId::AdditionalBankersGroup, additionalBankers))));
  });
}

void TST::FillFareWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillFareWithData", u"TST">, [&] {
    fareBaseLineText_ = node.Text();
    fareBaseLineErrorText_ = node.ErrorText();
    Walk(node, On(NodeTypeId::CorporateCode, Text(fareBaseLineCorporateCode_)),
         On(NodeTypeId::FareAmount, TextAndAmount(fareBaseLineBase_, fareBaseLineBaseAmount_)),
         On(NodeTypeId::CurrencyCode, Text(fareBaseLineCurrencyCode_)),
         On(NodeTypeId::FareId, Text(fareBaseLineIssueId_)));
  });
}

void TST::FillNetFareLineWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillNetFareLineWithData", u"TST">, [&] {
    netFareBaseLineText_ = node.Text();
    netFareBaseLineErrorText_ = node.ErrorText();
    Walk(node, On(NodeTypeId::CurrencyCode, Text(netFareCurrencyCode_)),
         On(NodeTypeId::FareAmount, [this](ParseNode& amount) { netFareFareAmount_ = NumberTextOf(amount.Text()); }));
  });
}

void TST::FillEquivWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillEquivWithData", u"TST">, [&] {
    equivalentLineText_ = node.Text();
    equivalentLineErrorText_ = node.ErrorText();
    Walk(node, On(NodeTypeId::CurrencyCode, Text(equivalentLineCurrencyCode_)),
         On(NodeTypeId::FareAmount, Text(equivalentLineFareBase_)));
  });
}

void TST::FillPaymentRestrictionLine(ParseNode& node) {
  Traced(kUsualTexts<u"FillPaymentRestrictionLine", u"TST">, [&] {
    paymentRestrictionLineFreeFlowText_ = node.Text();
    paymentRestrictionLineErrorText_ = node.ErrorText();
  });
}

void TST::FillZapOffValue(ParseNode& node) {
  Traced(kUsualTexts<u"FillZapOffValue", u"TST">, [&] { Walk(node, On(NodeTypeId::ZapOffValue, Text(zapOff_))); });
}

}  // namespace qorltst
