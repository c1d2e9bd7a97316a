// See FareCalculationText.h.
#include "FareCalculationText.h"

#include "simulator/Screen.h"
#include "simulator/Utf.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {

using toolkit::kLineLength;

void FareCalculationText::Expect(const std::string& path, std::u16string_view value) { values_[path] = ToUtf8(value); }

WrittenFareCalculation FareCalculationText::LayOut(const Spacing& spacing) const {
  WrittenFareCalculation written{{u""}, values_};
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    if (i > 0 && !pieces_[i].isTight) {
      const int blanks = spacing();
      const std::size_t needed = static_cast<std::size_t>(blanks < 0 ? 0 : blanks) + MeasureWord(i);
      if (blanks < 0 || written.lines.back().size() + needed > kLineLength) {
        written.lines.emplace_back(u" ");
      } else {
        written.lines.back().append(static_cast<std::size_t>(blanks), u' ');
      }
    }
    starts.push_back((written.lines.size() - 1) * kLineLength + written.lines.back().size());
    written.lines.back() += pieces_[i].text;
  }
  const std::u16string displayed = JoinLines(written.lines);
  for (const auto& [path, range] : covered_) {
    const std::size_t start = starts[range.first];
    const std::size_t end = starts[range.second - 1] + pieces_[range.second - 1].text.size();
    written.values[path] = ToUtf8(displayed.substr(start, end - start));
  }
  return written;
}

std::size_t FareCalculationText::MeasureWord(std::size_t first) const {
  std::size_t size = pieces_[first].text.size();
  for (std::size_t i = first + 1; i < pieces_.size() && pieces_[i].isTight; ++i) {
    size += pieces_[i].text.size();
  }
  return size;
}

}  // namespace qorltst::simulator
