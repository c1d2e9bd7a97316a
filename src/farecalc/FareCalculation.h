// The root of the fare calculation.
#pragma once

#include <string>

#include "frame/Gathering.h"
#include "frame/LineElement.h"

namespace qorltst {

class DepartureRoutingPoint;
class EndLine;

/// The fare calculation: departure point, fare components, checks and the end of the line.
class FareCalculation final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit FareCalculation(toolkit::Toolkit& toolkit);
  ~FareCalculation() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildDeparturePoint(toolkit::ParseNode& node);
  void BuildEndLine(toolkit::ParseNode& node);
  void BuildItineraryAndTheRest(toolkit::ParseNode& node);
  void BuildCompositeElement(toolkit::ParseNode& node, Gathering& elements);
  void BuildFareCommon(toolkit::ParseNode& node);
  void BuildFareWithStopOver(toolkit::ParseNode& node);

  /// Makes an item, fills it under the texts of its builder and adds it.
  template <class Item>
  void BuildItem(const TraceTexts& texts, toolkit::ParseNode& node, Gathering& items);

  std::u16string fareCommonStopOverChargeValue_;
  std::u16string fareCommonNumberStopAllowed_;
  std::u16string fareCommonLessId_;
  std::u16string fareCommonId_;
  CollectionProperty itineraries_;
  CollectionProperty extraSeats_;
  CollectionProperty fareMinimums_;
  CollectionProperty itineraryCompositeElements_;
  CollectionProperty higherClassDifferentials_;
  // In this order: each takes the next debug ids.
  Ref<DepartureRoutingPoint> departureRoutingPoint_;
  Ref<EndLine> endLine_;
  std::u16string fareCommonCurrencyCode_;
  std::u16string fareCommonAmountToSub_;
  std::u16string fareCommonAmount_;
  std::u16string fareCommonCityCode_;
};

}  // namespace qorltst
