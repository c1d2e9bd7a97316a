// One tax of the fare lines.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A tax: identifier, amount, currency, ISO code and nature.
class TaxElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit TaxElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string taxId_;
  std::u16string currencyCode_;
  std::u16string amount_;
  std::u16string isoType_;
  std::u16string natureType_;
};

}  // namespace qorltst
