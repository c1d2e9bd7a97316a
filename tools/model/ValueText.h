// Values as exact text: amounts, dates, and strings made fit for a terminal.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/Value.h"

namespace qorltst::model {

/// The amount with its four decimals, such as "845.0000".
[[nodiscard]] std::string AmountText(Currency amount);

/// The day as "2026-12-20", with a time of day to the millisecond ("T09:30:00.000") where it has one. Nothing outside
/// the years 1 to 9999.
[[nodiscard]] std::optional<std::string> IsoDate(Date date);

/// UTF-8 on one line that leaves a terminal as it is: control characters, marks that turn the direction of writing and
/// lone surrogates are written as "\u000a".
[[nodiscard]] std::string PrintableText(std::u16string_view text);

/// The same for a text that is UTF-8 already; bytes that are not are written as "\xff".
[[nodiscard]] std::string PrintableText(std::string_view text);

/// The lowest hexadecimal digits of the number, so many of them.
[[nodiscard]] std::string Hexadecimal(unsigned number, std::size_t digits);

/// A name of the tables, which are ASCII.
[[nodiscard]] std::string NameText(std::u16string_view name);

}  // namespace qorltst::model
