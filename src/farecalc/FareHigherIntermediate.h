// An intermediate point of a higher class differential.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// An intermediate point: a city pair and a booking class.
class FareHigherIntermediate final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FareHigherIntermediate(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string class_;
  std::u16string cityPair_;
};

}  // namespace qorltst
