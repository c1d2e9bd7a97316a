// The departure point at the head of a fare calculation.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// The departure point of a fare calculation that was reissued or rerouted.
class DepartureRoutingPoint final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit DepartureRoutingPoint(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  bool involuntaryRerouting_ = false;
  std::u16string cityCode_;
  std::u16string departureRoutingDate_;
};

}  // namespace qorltst
