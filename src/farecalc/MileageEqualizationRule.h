// A mileage equalization item of a fare calculation.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A mileage equalization: a city with its mileage qualifier and percentage.
class MileageEqualizationRule final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit MileageEqualizationRule(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  bool bulkTourFare_ = false;
  bool inclusiveTourFare_ = false;
  bool mileageId_ = false;
  std::u16string mileageItemPercentage_;
  std::u16string cityCode_;
};

}  // namespace qorltst
