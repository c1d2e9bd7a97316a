// Whether the fare and the taxes of a ticket make its total.
#pragma once

#include <optional>
#include <string>

#include "frame/TST.h"

namespace qorltst::report {

struct FareCheck {
  /// Fare and taxes; absent where they cannot be added up.
  std::optional<Currency> sum;
  /// The total of the ticket; absent where it is no amount.
  std::optional<Currency> total;
  /// Why they cannot be added up or compared, for a reader; empty where they can.
  std::string reason;

  [[nodiscard]] bool AddsUp() const { return sum && total && *sum == *total; }
};

/// The fare counts in the currency of the total: the equivalent fare where there is one, else the base fare.
[[nodiscard]] FareCheck CheckFare(TST& ticket);

/// The amount that the whole text is; nothing for any other text.
[[nodiscard]] std::optional<Currency> WholeAmount(std::u16string_view text);

}  // namespace qorltst::report
