// The endorsement line of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// The endorsement line: its manual indicator and its free text.
class FEElement final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FEElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Takes the endorsement node's text and error text; called once, before its children.
  void FillUpLevelData(toolkit::ParseNode& node);

  /// Takes one child of the endorsement node; called for each child in display order.
  void FillWithData(toolkit::ParseNode& child);

 private:
  struct Table;

  std::u16string elementNumber_;
  std::u16string manualId_;
  std::u16string freeFlowText_;
};

}  // namespace qorltst
