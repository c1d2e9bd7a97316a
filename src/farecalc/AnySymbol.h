// The symbols at a point of a fare calculation.
#pragma once

#include <string>

#include "frame/Element.h"

namespace qorltst {

/// The routing and stop-over symbols attached to a point.
class AnySymbol final : public Element {
 public:
  static const ClassDescription kDescription;

  explicit AnySymbol(toolkit::Toolkit& toolkit) : Element(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string otherSymbol_;
  std::u16string gapInRoutingIncludedInMileage_;
  std::u16string gapInRoutinNotInMileage_;
  std::u16string ticketedPointNotInMileage_;
  std::u16string reducedMileageRoutingPoint_;
  std::u16string stopOverNotAllowed_;
  std::u16string extraMileageRoutingPoint_;
};

}  // namespace qorltst
