// Dates as displays write them, and as automation counts them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/ParseNode.h"

namespace qorltst::simulator {

/// "20DEC26" as a day of this century. Nothing where the text is not of this form or names no such day.
[[nodiscard]] std::optional<toolkit::Date> ReadHostDate(std::u16string_view text);

/// Whether the text is a day and a month such as "12NOV"; "29FEB" is one, "31JUN" is not.
[[nodiscard]] bool IsDayAndMonth(std::u16string_view text);

/// The day as "2026-12-20"; a date with a time of day, or of no calendar year of four digits, as its number.
[[nodiscard]] std::string FormatDate(toolkit::Date date);

}  // namespace qorltst::simulator
