// The commission line of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A commission: the current and the old one, each a percentage or a flat amount.
class FMElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FMElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string commisionId_;
  std::u16string commissionFlatAmount_;
  std::u16string elementNumber_;
  std::u16string commissionPercent_;
  std::u16string commissionCAP_;
  std::u16string oldCommissionPercent_;
  std::u16string oldCommissionFlatAmount_;
  std::u16string oldCommissionVAT_;
  std::u16string commissionVAT_;
};

}  // namespace qorltst
