// One fare amount of a fare calculation.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A fare: amount, currency, amount to subtract and stop-overs.
class Fare final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit Fare(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the fare from a whole fare node. Never sets the currency code.
  void FillWithData(toolkit::ParseNode& node);

  // Where the parts of a fare stand apart, its owner builds it from them one by one.

  /// Takes the currency code from a child of `node`.
  void BuildCurrency(toolkit::ParseNode& node);

  /// Takes the amount from the node itself.
  void BuildFare(toolkit::ParseNode& node);

  /// Marks the fare as less and takes the amount to subtract from a child of `node`.
  void BuildLessFare(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string numberStopAllowed_;
  std::u16string stopOverChargeValue_;
  std::u16string lessId_;
  std::u16string currencyCode_;
  std::u16string amountToSub_;
  std::u16string amount_;
};

}  // namespace qorltst
