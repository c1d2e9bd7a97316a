// What the simulator's tests share: padded screens, the parsing of a text, and the way a reader joins two screens.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "simulator/DumpTree.h"
#include "simulator/Screen.h"
#include "simulator/ScreenParser.h"

namespace qorltst::simulator {

/// The lines as a screen.
inline std::u16string Screen(const std::vector<std::u16string>& lines) { return JoinLines(lines); }

/// A parser that has read these lines; `result` is what it answered.
struct Parsed {
  explicit Parsed(const std::vector<std::u16string>& lines) : Parsed(Screen(lines), toolkit::kParseMode) {}

  /// Reads a text that is no whole number of lines, or none at all.
  static Parsed FromText(std::u16string_view text) { return {text, toolkit::kParseMode}; }

  [[nodiscard]] std::string Dump() const { return DumpTree(*parser); }

  Ref<ScreenParser> parser;
  std::int32_t result;

 private:
  Parsed(std::u16string_view text, std::int32_t mode)
      : parser(Make<ScreenParser>()), result(parser->Parse(text, mode)) {}
};

/// Joins a first screen and the last one as a reader of screens does: the first one is cut one character before its
/// last line but one ends, and the last one goes on after the 80 characters before the cut, or before the blank
/// lines there.
inline std::u16string Stitch(const std::u16string& first, const std::u16string& last) {
  const std::size_t cut = first.size() - toolkit::kLineLength - 1;
  std::size_t start = cut - toolkit::kLineLength;
  const auto seam = [&] { return first.substr(start, toolkit::kLineLength); };
  while (seam().find_first_not_of(u' ') == std::u16string::npos) {
    start -= toolkit::kLineLength;
  }
  const std::size_t found = last.rfind(seam());
  std::u16string whole = first.substr(0, cut);
  if (found != std::u16string::npos) {
    whole += last.substr(found + toolkit::kLineLength);
  }
  return whole;
}

inline std::u16string WithoutTrailingBlanks(const std::u16string& text) {
  return text.substr(0, text.find_last_not_of(u' ') + 1);
}

/// The folder of the sources, for the sample displays.
inline std::filesystem::path SourceFolder() {
#ifdef QORL_SOURCE_DIR
  return QORL_SOURCE_DIR;
#else
  return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
#endif
}

}  // namespace qorltst::simulator
