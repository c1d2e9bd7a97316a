// Amounts out of display texts: fixed-point currency, and a number written back as text.
#pragma once

#include <string>
#include <string_view>

#include "frame/Value.h"

namespace qorltst {

/// The leading number of a text: digits with at most one decimal point, from the first character up to the first
/// other character. Empty where the text does not start with a number; there is no sign.
[[nodiscard]] std::u16string_view LeadingNumber(std::u16string_view text) noexcept;

/// The amount that a text starts with, rounded half to even to four decimals; 0 where it starts with none.
/// Raises the overflow error (6) beyond 922,337,203,685,477.5807.
[[nodiscard]] Currency AmountOf(std::u16string_view text);

/// The number that a text starts with, written in the system's number format with up to 15 significant digits and
/// no needless zeros: 00150.00 becomes 150. Raises the overflow error (6) where no double can hold it.
[[nodiscard]] std::u16string NumberTextOf(std::u16string_view text);

/// Tells the user's decimal separator.
using DecimalSeparatorSource = std::u16string (*)();

/// Where `NumberTextOf` asks for the separator, at each call. A full stop until somebody names a source; the
/// automation server names the system's settings when it is loaded.
void SetDecimalSeparatorSource(DecimalSeparatorSource source) noexcept;

}  // namespace qorltst
