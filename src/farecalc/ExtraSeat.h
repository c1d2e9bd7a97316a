// An extra seat or cabin baggage of a fare calculation.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

class Fare;

/// An extra seat or cabin baggage with its own fare.
class ExtraSeat final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit ExtraSeat(toolkit::Toolkit& toolkit);
  ~ExtraSeat() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string extraSeatId_;
  Ref<Fare> fare_;
  std::u16string cityCode_;
};

}  // namespace qorltst
