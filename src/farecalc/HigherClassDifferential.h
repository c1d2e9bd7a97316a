// A higher class differential of a fare calculation.
#pragma once

#include <string>

#include "frame/CollectionProperty.h"
#include "frame/LineElement.h"

namespace qorltst {

class Fare;

/// A higher class differential: city pair, amount, intermediate points and mileage.
class HigherClassDifferential final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit HigherClassDifferential(toolkit::Toolkit& toolkit);
  ~HigherClassDifferential() override;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildFareHigherIntPoint(toolkit::ParseNode& node);
  void BuildFare(toolkit::ParseNode& node);
  void BuildMileageItem(toolkit::ParseNode& node);

  bool inclusiveTourFare_ = false;
  bool bulkTourFare_ = false;
  bool mileageId_ = false;
  Ref<Fare> fare_;
  CollectionProperty fareHigherIntermediates_;
  std::u16string mileagePercentage_;
  std::u16string cityPair_;
};

}  // namespace qorltst
