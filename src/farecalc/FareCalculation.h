// The root of the fare calculation.
#pragma once

#include <string>

#include "frame/Collection.h"
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

 private:
  struct Table;

  std::u16string fareCommonStopOverChargeValue_;
  std::u16string fareCommonNumberStopAllowed_;
  std::u16string fareCommonLessId_;
  std::u16string fareCommonId_;
  Ref<Collection> itineraries_;
  Ref<Collection> extraSeats_;
  Ref<Collection> fareMinimums_;
  Ref<Collection> itineraryCompositeElements_;
  Ref<EndLine> endLine_;
  Ref<DepartureRoutingPoint> departureRoutingPoint_;
  Ref<Collection> higherClassDifferentials_;
  std::u16string fareCommonCurrencyCode_;
  std::u16string fareCommonAmountToSub_;
  std::u16string fareCommonAmount_;
  std::u16string fareCommonCityCode_;
};

}  // namespace qorltst
