// The form of payment line of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A form of payment: the new one, the old one and an account.
class FPElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FPElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string accountId_;
  std::u16string elementNumber_;
  std::u16string newFOP_;
  std::u16string oldFOP_;
};

}  // namespace qorltst
