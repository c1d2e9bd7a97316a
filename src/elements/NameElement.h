// One passenger name line of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A passenger: name, type, identity, extra seat and cabin baggage.
class NameElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit NameElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string elementNumber_;
  std::u16string lastName_;
  std::u16string initial_;
  std::u16string passengerType_;
  std::u16string extraSeat_;
  std::u16string cabinBaggage_;
  std::u16string idNumber_;
};

}  // namespace qorltst
