// One line of the published and net fares of a TST.
#pragma once

#include <string>

#include "frame/LineElement.h"

namespace qorltst {

/// A published or net fare: identifier, amount and currency.
class PublishedAndNetFares final : public LineElement {
 public:
  static const ClassDescription kDescription;

  explicit PublishedAndNetFares(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Fills the record from its line's node. A failure leaves what was set before it.
  void FillWithData(toolkit::ParseNode& node);

 private:
  struct Table;

  std::u16string pubAndNetFaresBase_;
  std::u16string pubAndNetFaresCurrencyCode_;
  std::u16string pubAndNetFaresId_;
};

}  // namespace qorltst
