// The closing line of the itinerary.
#pragma once

#include <string>

#include "frame/Element.h"

namespace qorltst {

/// The closing line of the itinerary, which names the final destination.
class ItineraryLastLine final : public Element {
 public:
  static const ClassDescription kDescription;

  explicit ItineraryLastLine(toolkit::Toolkit& toolkit) : Element(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Takes one child of the line's node; called for each child in display order.
  void FillWithData(toolkit::ParseNode& child);

 private:
  struct Table;

  std::u16string errorText_;
  std::u16string destinationCode_;
};

}  // namespace qorltst
