// An input of the display target as text: a display, and how it is cut into screens. It can be written by hand.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qorltst::fuzz {

/// The first byte says how many lines a screen has, counted from the blank: '8' is 24. Below three lines the screens
/// are those that form feeds separate. Behind it stands the display (see `TextOf`); an end of line fills the line up
/// with blanks to 80 characters.
[[nodiscard]] std::vector<std::u16string> ScreensOf(std::span<const std::uint8_t> input);

/// The text with each end of line replaced by the blanks that fill the line up.
[[nodiscard]] std::u16string FilledUp(std::u16string_view text);

/// The input that gives these screens.
[[nodiscard]] std::string DisplayInput(const std::vector<std::u16string>& screens);

}  // namespace qorltst::fuzz
