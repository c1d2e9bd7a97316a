// The cut into lines. See DisplayLine.h.
#include "simulator/DisplayLine.h"

#include "simulator/Utf.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {

using toolkit::kLineLength;

std::vector<DisplayLine> SplitDisplay(std::u16string_view text) {
  std::vector<DisplayLine> lines;
  std::size_t lineStart = 0;
  for (std::size_t start = 0; start < text.size(); start += kLineLength) {
    const std::u16string_view row = text.substr(start, kLineLength);
    const std::size_t last = row.find_last_not_of(u' ');
    if (last == std::u16string_view::npos) {
      continue;
    }
    if (lines.empty() || row.front() != u' ') {
      lineStart = start;
      lines.emplace_back();
    }
    lines.back().text = text.substr(lineStart, start + last + 1 - lineStart);
  }
  return lines;
}

std::u16string DescribePlace(std::size_t position) {
  const std::size_t row = position / kLineLength + 1;
  const std::string column = "column " + std::to_string(position % kLineLength + 1);
  return ToUtf16(row == 1 ? column : "line " + std::to_string(row) + ", " + column);
}

}  // namespace qorltst::simulator
