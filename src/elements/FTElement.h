// A tour code line of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A tour code: tour type, tour code and free text.
class FTElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FTElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string elementNumber_;
  std::u16string tourType_;
  std::u16string tourCode_;
  std::u16string passengerExeption_;
  std::u16string freeFlowText_;
};

}  // namespace qorltst
