// Screens as the host sends them: runs of 80-character lines, cut from displays that may be longer than a screen.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace qorltst::simulator {

/// The line that ends a screen which is followed by others.
inline constexpr std::u16string_view kMoreScreensLine = u"-MORE-";

inline constexpr std::size_t kLinesPerScreen = 24;

/// Two lines that the screen before shows too, and one more.
inline constexpr std::size_t kFewestLinesPerScreen = 3;

/// The lines as one text, each padded with blanks to 80 characters. Raises `std::invalid_argument` for a longer one.
[[nodiscard]] std::u16string JoinLines(std::span<const std::u16string> lines);

/// Cuts a display into screens of at most `linesPerScreen` lines (`std::invalid_argument` when that is too few).
/// One that fits is one screen. Otherwise each screen but the last ends with the more-screens line, and the last
/// screen starts with the last two lines of the one before it, so that a reader can find where it goes on; where
/// these lines end blank, it starts further up, with the line before the last one that is not blank.
[[nodiscard]] std::vector<std::vector<std::u16string>> Paginate(std::span<const std::u16string> lines,
                                                                std::size_t linesPerScreen = kLinesPerScreen);

}  // namespace qorltst::simulator
