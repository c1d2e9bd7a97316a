// A stop-over charge, or the number of stop-overs allowed.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A stop-over charge or a number of stop-overs allowed.
class StopOverCharge final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit StopOverCharge(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Takes the value from the node itself, by the node's own type. Its texts stay empty, and that is meant.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string numberStopAllowed_;
  std::u16string stopOverChargeValue_;
};

}  // namespace qorltst
