// The end of a fare calculation line.
#pragma once

#include <string>

#include "frame/Gathering.h"
#include "frame/LineElement.h"

namespace qorltst {

/// The end of a fare calculation: end marker, total fare, rate of exchange, facility charges.
class EndLine final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit EndLine(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  void BuildAnyPFC(toolkit::ParseNode& node, Gathering& items);
  void BuildFreeFlow(toolkit::ParseNode& node);

  std::u16string freeFlowText_;  // shown to nobody, and that is meant

  bool endId_ = false;
  CollectionProperty anyPFCs_;
  std::u16string fareAfterNucLowCombCityCode_;
  std::u16string fareAfterNucCurrencyCode_;
  std::u16string fareAfterNucAmount_;
  std::u16string fareAfterNucCityPair2_;
  std::u16string fareAfterNucCityPair1_;
  std::u16string fareAfterNucFareBasis_;
  std::u16string rateOfExchange_;
  std::u16string totalFareCurrencyCode_;
  std::u16string totalFareAmount_;
};

}  // namespace qorltst
