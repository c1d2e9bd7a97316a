// A facility charge or tax at the end of a fare calculation.
#pragma once

#include "frame/Gathering.h"
#include "frame/LineElement.h"

namespace qorltst {

/// A facility charge, a segment tax, or a combined or previously paid tax.
class AnyPFC final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit AnyPFC(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the item by the type of the node itself. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildCityDigits(toolkit::ParseNode& node, Gathering& digits);

  bool domesticUSFlight_ = false;
  CollectionProperty cityDigits_;
  bool combinedTax_ = false;
  bool paxFacilityCharge_ = false;
  bool previousPaid_ = false;
};

}  // namespace qorltst
