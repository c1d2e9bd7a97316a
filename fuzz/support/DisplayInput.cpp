// See DisplayInput.h.
#include "fuzz/support/DisplayInput.h"

#include "fuzz/support/ByteReader.h"
#include "simulator/Screen.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::fuzz {
namespace {

using toolkit::kLineLength;

constexpr char16_t kScreenEnd = u'\f';
constexpr char16_t kLineEnd = u'\n';
/// More lines than any screen has are cut by form feeds too.
constexpr unsigned kMostLines = 64;

std::vector<std::u16string> CutAtMarks(std::u16string_view text) {
  std::vector<std::u16string> screens;
  for (std::size_t end = text.find(kScreenEnd); end != text.npos; end = text.find(kScreenEnd)) {
    screens.push_back(FilledUp(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  screens.push_back(FilledUp(text));
  return screens;
}

std::vector<std::u16string> CutByLines(std::u16string_view text, unsigned linesPerScreen) {
  const std::u16string display = FilledUp(text);
  std::vector<std::u16string> lines;
  for (std::size_t start = 0; start < display.size(); start += kLineLength) {
    lines.push_back(display.substr(start, kLineLength));
  }
  std::vector<std::u16string> screens;
  for (const std::vector<std::u16string>& screen : simulator::Paginate(lines, linesPerScreen)) {
    screens.push_back(simulator::JoinLines(screen));
  }
  return screens;
}

}  // namespace

std::u16string FilledUp(std::u16string_view text) {
  std::u16string screen;
  for (const char16_t unit : text) {
    if (unit == kLineEnd) {
      screen.append((kLineLength - screen.size() % kLineLength) % kLineLength, u' ');
    } else {
      screen.push_back(unit);
    }
  }
  return screen;
}

std::vector<std::u16string> ScreensOf(std::span<const std::uint8_t> input) {
  if (input.empty()) {
    return {};
  }
  const unsigned lines = input.front() - static_cast<unsigned>(' ');
  const std::u16string text = TextOf(input.subspan(1));
  const bool byLines = lines >= simulator::kFewestLinesPerScreen && lines <= kMostLines;
  return byLines ? CutByLines(text, lines) : CutAtMarks(text);
}

std::string DisplayInput(const std::vector<std::u16string>& screens) {
  std::string input = " ";
  for (const std::u16string& screen : screens) {
    if (&screen != &screens.front()) {
      input += '\f';
    }
    for (std::size_t start = 0; start < screen.size(); start += kLineLength) {
      const std::string line = BytesOf(std::u16string_view(screen).substr(start, kLineLength));
      input += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
  }
  return input;
}

}  // namespace qorltst::fuzz
