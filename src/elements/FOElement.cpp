// The fill of the original issue line, group by group. Its public table is in FOElementTable.cpp.
#include "elements/FOElement.h"

#include <limits>

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

void FOElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"FOElement">, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::ElementNumber, Text(elementNumber_)),
         On(NodeTypeId::OriginalIssueBody, [this](ParseNode& body) { FillTheRest(body); }));
  });
}

void FOElement::FillTheRest(ParseNode& node) {
  Traced(kUsualTexts<u"FillTheRest", u"FOElement">, [&] {
    Walk(node, On(NodeTypeId::FreeFlow, AppendText(freeFlow_)),
         On(NodeTypeId::DocumentGroups,
            Children(On(NodeTypeId::IssuedInExchange, [this](ParseNode& group) { FillIssued(group); }),
                     On(NodeTypeId::OriginalIssue, [this](ParseNode& group) { FillOriginIssue(group); }),
                     On(NodeTypeId::ExchangeAmount, [this](ParseNode& group) { FillAmout(group); }),
                     On(NodeTypeId::TaxAndPenalty, [this](ParseNode& group) { FillTaxPenalty(group); }))),
         On(NodeTypeId::FreeFlowGroup, Children(On(NodeTypeId::FreeFlow, AppendText(freeFlow_)))));
  });
}

void FOElement::FillOriginIssue(ParseNode& node) {
  Traced(kUsualTexts<u"FillOriginIssue", u"FOElement">,
         [&] { WalkDocument(node, original_, [this](ParseNode& group) { FillConjunctedTicket(group); }); });
}

void FOElement::FillConjunctedTicket(ParseNode& node) {
  Traced(kUsualTexts<u"FillConjunctedTicket", u"FOElement">, [&] { WalkConjunction(node, original_); });
}

void FOElement::FillIssued(ParseNode& node) {
  Traced(kUsualTexts<u"FillIssued", u"FOElement">, [&] {
    Position position = 0;
    ForEachChild(node, [&](ParseNode& child) {
      if (position == std::numeric_limits<Position>::max()) {
        throw RuntimeError(toolkit::kOverflow);
      }
      ++position;  // for every child, whatever its type
      const auto fillDocument = [this, position](ParseNode& group) {
        WalkDocument(group, DocumentAt(position),
                     [this, position](ParseNode& tickets) { FillIssuedConjunctedTicket(tickets, position); });
      };
      Choose(child, On(NodeTypeId::ExchangeDocument, fillDocument));
    });
  });
}

void FOElement::FillIssuedConjunctedTicket(ParseNode& node, Position position) {
  Traced(kUsualTexts<u"FillIssuedConjunctedTicket", u"FOElement">,
         [&] { WalkConjunction(node, DocumentAt(position)); });
}

void FOElement::FillAmout(ParseNode& node) {
  Traced(kUsualTexts<u"FillAmout", u"FOElement">,
         [&] { Walk(node, On(NodeTypeId::CurrencyCode, Text(currencyCode_)), On(NodeTypeId::Amount, Text(amount_))); });
}

/// No trace and no trap of its own; and an item that is not there fails here, unlike a coupon's.
void FOElement::FillTaxPenalty(ParseNode& node) {
  Walk(node, On(NodeTypeId::ExchangeTax, ItemBuffer(tax_)), On(NodeTypeId::ExchangePenalty, ItemBuffer(penalty_)),
       On(NodeTypeId::Amount, Text(baseFare_)));
}

template <class Action>
void FOElement::WalkDocument(ParseNode& node, Document& document, Action conjunction) {
  Walk(node, On(NodeTypeId::CheckDigit, Text(document.checkDigit)),
       On(NodeTypeId::DocumentNumber, Text(document.documentNumber)),
       On(NodeTypeId::NumericAirline, Text(document.numericAirline)), On(NodeTypeId::City, Text(document.city)),
       On(NodeTypeId::IssueDate, Text(document.date)), On(NodeTypeId::VoucherCode, Text(document.voucherCode)),
       On(NodeTypeId::Coupon, ItemBufferIfPresent(document.coupon)), On(NodeTypeId::Conjunction, conjunction),
       On(NodeTypeId::IataGroup, Children(On(NodeTypeId::IataNumber, Text(document.iata)))));
}

void FOElement::WalkConjunction(ParseNode& node, Document& document) {
  Walk(node, On(NodeTypeId::ConjunctedTicketNumber, Text(document.conjunctedTicketNumber)),
       On(NodeTypeId::CheckDigit, Text(document.conjunctedCheckDigit)),
       On(NodeTypeId::ConjunctionCoupon, ItemBufferIfPresent(document.conjunctedTicketCoupon)));
}

}  // namespace qorltst
