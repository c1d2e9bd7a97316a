// Padding and paging of displays. See Screen.h.
#include "simulator/Screen.h"

#include <algorithm>
#include <stdexcept>

#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {
namespace {

using Lines = std::span<const std::u16string>;

/// How many lines the screen after these ones shows again.
std::size_t CountOverlap(Lines shown) {
  const auto isBlank = [](const std::u16string& line) { return line.find_first_not_of(u' ') == std::u16string::npos; };
  const auto blank = std::find_if_not(shown.rbegin(), shown.rend(), isBlank) - shown.rbegin();
  return std::min(static_cast<std::size_t>(blank) + 2, shown.size());
}

}  // namespace

std::u16string JoinLines(Lines lines) {
  std::u16string text;
  for (const std::u16string& line : lines) {
    if (line.size() > toolkit::kLineLength) {
      throw std::invalid_argument("a line of a screen has more than 80 characters");
    }
    text += line;
    text.append(toolkit::kLineLength - line.size(), u' ');
  }
  return text;
}

std::vector<std::vector<std::u16string>> Paginate(Lines lines, std::size_t linesPerScreen) {
  if (linesPerScreen < kFewestLinesPerScreen) {
    throw std::invalid_argument("a screen has three lines or more");
  }
  std::vector<std::vector<std::u16string>> screens;
  std::size_t overlap = 0;
  std::size_t shown = 0;
  while (shown < lines.size() && lines.size() - shown + overlap > linesPerScreen) {
    const Lines page = lines.subspan(shown, std::min(linesPerScreen - 1, lines.size() - shown));
    screens.emplace_back(page.begin(), page.end()).emplace_back(kMoreScreensLine);
    shown += page.size();
    overlap = CountOverlap(page);
  }
  const Lines last = lines.subspan(shown - overlap);
  screens.emplace_back(last.begin(), last.end());
  return screens;
}

}  // namespace qorltst::simulator
