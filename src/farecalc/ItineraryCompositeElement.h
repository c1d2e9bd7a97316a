// An item of a composite element of a fare calculation. It mirrors the fare component, Itinerary.
#pragma once

#include <string>

#include "farecalc/RoutingElement.h"

namespace qorltst {

/// An item of a composite element: a city with its carrier, fare, mileage and stop-overs.
class ItineraryCompositeElement final : public RoutingElement {
 public:
  static const ClassDescription kDescription;

  explicit ItineraryCompositeElement(toolkit::Toolkit& toolkit) : RoutingElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildOtherSurcharge(toolkit::ParseNode& node, Gathering& surcharges);

  struct Texts;

  std::u16string fareLessId_;
  std::u16string itinerarySymbol_;
};

}  // namespace qorltst
