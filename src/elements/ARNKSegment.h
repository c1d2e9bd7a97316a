// One surface segment of the itinerary.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A surface segment whose arrival is unknown.
class ARNKSegment final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit ARNKSegment(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string elementNumber_;
  std::u16string boardPoint_;
};

}  // namespace qorltst
