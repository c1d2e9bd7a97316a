// Cuts a display into the lines that the host meant: a screen line and those that continue it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qorltst::simulator {

struct DisplayLine {
  /// As displayed, from the first column of its first screen line to its last non-blank character: the second
  /// screen line starts 80 characters after the first.
  std::u16string_view text;

  /// The word at the first column; empty when that is blank.
  [[nodiscard]] std::u16string_view Label() const { return text.substr(0, text.find(u' ')); }
};

/// The lines of a run of 80-character screen lines, of which the last may be shorter. A screen line with a blank in
/// its first column continues the line before it; blank ones count for nothing. The lines are views into `text`.
[[nodiscard]] std::vector<DisplayLine> SplitDisplay(std::u16string_view text);

/// "column 12", or "line 2, column 12" beyond the first screen line; `position` is 0-based.
[[nodiscard]] std::u16string DescribePlace(std::size_t position);

}  // namespace qorltst::simulator
