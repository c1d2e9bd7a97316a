// Cuts and searches in screen texts by 1-based positions, failing where a runtime's own string functions fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qorltst::screen {

/// A position or length in a screen; signed, for the reckoning may go below the first character.
using Position = std::ptrdiff_t;

/// The first `length` characters, all where there are fewer. A negative length is the runtime error 5.
[[nodiscard]] std::u16string_view Left(std::u16string_view text, Position length);

/// Up to `length` characters from `start` on; empty behind the end. A start before 1 is the runtime error 5.
[[nodiscard]] std::u16string_view Middle(std::u16string_view text, Position start, Position length);

/// The characters from `start` on.
[[nodiscard]] std::u16string_view From(std::u16string_view text, Position start);

/// Where `part` first occurs, or 0.
[[nodiscard]] Position Find(std::u16string_view text, std::u16string_view part) noexcept;

/// Whether there is nothing but spaces.
[[nodiscard]] bool IsBlank(std::u16string_view text) noexcept;

[[nodiscard]] std::u16string_view WithoutTrailingSpaces(std::u16string_view text) noexcept;

/// The length of a text as a position.
[[nodiscard]] inline Position Length(std::u16string_view text) noexcept { return static_cast<Position>(text.size()); }

}  // namespace qorltst::screen
