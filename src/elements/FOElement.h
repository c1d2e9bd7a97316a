// The original issue line of a TST.
#pragma once

#include <cstdint>
#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// The original document, the documents issued in exchange, and the money of the exchange.
class FOElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FOElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  /// What the line says of a document, the original one or one issued in exchange.
  struct Document {
    std::u16string iata;
    std::u16string date;
    std::u16string coupon;
    std::u16string conjunctedTicketNumber;
    std::u16string conjunctedTicketCoupon;
    std::u16string conjunctedCheckDigit;
    std::u16string city;
    std::u16string checkDigit;
    std::u16string documentNumber;
    std::u16string voucherCode;
    std::u16string numericAirline;
  };

  /// The place of a document in its group, counted over all of the group's children. 16 bits wide, and that is meant.
  using Position = std::int16_t;

  void FillTheRest(toolkit::ParseNode& node);
  void FillOriginIssue(toolkit::ParseNode& node);
  void FillConjunctedTicket(toolkit::ParseNode& node);
  void FillIssued(toolkit::ParseNode& node);
  void FillIssuedConjunctedTicket(toolkit::ParseNode& node, Position position);
  void FillAmout(toolkit::ParseNode& node);
  void FillTaxPenalty(toolkit::ParseNode& node);

  /// Only a document in the first place is the first; any other fills the second set, a third overwrites it.
  [[nodiscard]] Document& DocumentAt(Position position) noexcept { return position == 1 ? first_ : second_; }

  template <class Action>
  static void WalkDocument(toolkit::ParseNode& node, Document& document, Action conjunction);
  static void WalkConjunction(toolkit::ParseNode& node, Document& document);

  Document original_;
  Document first_;
  Document second_;
  std::u16string elementNumber_;
  std::u16string freeFlow_;
  std::u16string baseFare_;
  std::u16string currencyCode_;
  std::u16string amount_;
  std::u16string tax_;
  std::u16string penalty_;
};

}  // namespace qorltst
