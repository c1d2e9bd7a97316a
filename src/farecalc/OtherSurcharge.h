// A surcharge of a fare calculation.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A surcharge other than a stop-over charge.
class OtherSurcharge final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit OtherSurcharge(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string otherSurchargeValue_;
};

}  // namespace qorltst
