// The amount of a facility charge at one airport.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// The amount of a facility charge or segment tax at one airport.
class CityDigit final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit CityDigit(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string cityDigit_;
  std::u16string cityCode_;
};

}  // namespace qorltst
