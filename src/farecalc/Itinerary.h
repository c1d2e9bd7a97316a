// A fare component of a fare calculation. The items of its composite elements are ItineraryCompositeElement.
#pragma once

#include "farecalc/RoutingElement.h"

namespace qorltst {

/// A fare component: the carrier and city that end it, its fare, mileage and stop-overs.
class Itinerary final : public RoutingElement {
 public:
  static const ClassDescription kDescription;

  explicit Itinerary(toolkit::Toolkit& toolkit) : RoutingElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildAnySymbolList(toolkit::ParseNode& node, Gathering& symbols);
  void BuildOtherSurcharges(toolkit::ParseNode& node, Gathering& surcharges);
  void BuildCompositeElement(toolkit::ParseNode& node, Gathering& elements);

  struct Texts;

  bool fareLessId_ = false;
  CollectionProperty anySymbols_;
  CollectionProperty itineraryCompositeElements_;
};

}  // namespace qorltst
