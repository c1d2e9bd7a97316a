// The escapes of screen lines in session files. See RecordingLine.h.
#include "simulator/RecordingLine.h"

#include <algorithm>
#include <stdexcept>

namespace qorltst::simulator {
namespace {

constexpr std::u16string_view kHexDigits = u"0123456789abcdef";
constexpr std::size_t kCodeLength = 4;

/// Escapes that stand for one character: the characters with a meaning of their own, blank, and NUL.
struct CharacterEscape {
  char16_t escape;
  char16_t character;
};
constexpr CharacterEscape kCharacters[] = {{u'\\', u'\\'}, {u'#', u'#'}, {u'>', u'>'}, {u'@', u'@'},
                                           {u'-', u'-'},   {u's', u' '}, {u'0', u'\0'}};

char16_t ReadCode(std::u16string_view digits) {
  unsigned code = 0;
  for (const char16_t digit : digits.substr(0, kCodeLength)) {
    const std::size_t value =
        kHexDigits.find(digit >= u'A' && digit <= u'F' ? static_cast<char16_t>(digit + 32) : digit);
    if (value == std::u16string_view::npos) {
      throw std::invalid_argument("\\u needs four hexadecimal digits");
    }
    code = code * 16 + static_cast<unsigned>(value);
  }
  if (digits.size() < kCodeLength) {
    throw std::invalid_argument("\\u needs four hexadecimal digits");
  }
  return static_cast<char16_t>(code);
}

/// Resolves the escape at the front of `rest`, after its backslash, and takes it off.
void ReadEscape(std::u16string_view& rest, RecordingLine& line) {
  line.isKept = true;
  const char16_t escape = rest.empty() ? u'\0' : rest.front();
  rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  const auto* const known = std::ranges::find(kCharacters, escape, &CharacterEscape::escape);
  if (known != std::end(kCharacters)) {
    line.text += known->character;
  } else if (escape == u'u') {
    line.text += ReadCode(rest);
    rest.remove_prefix(kCodeLength);
  } else if (escape == u'.' && rest.empty()) {
    line.isPadded = false;
  } else {
    throw std::invalid_argument("unknown escape; a backslash itself is written \\\\");
  }
}

}  // namespace

RecordingLine ReadRecordingLine(std::u16string_view line) {
  RecordingLine read;
  while (!line.empty()) {
    const char16_t character = line.front();
    line.remove_prefix(1);
    if (character == u'\\') {
      ReadEscape(line, read);
    } else if (character < 0x20 || character == 0x7F) {
      throw std::invalid_argument("a control character must be written as an escape");
    } else {
      read.text += character;
    }
  }
  if (read.text.size() > toolkit::kLineLength) {
    throw std::invalid_argument("the line has " + std::to_string(read.text.size()) + " characters, 80 are the most");
  }
  return read;
}

}  // namespace qorltst::simulator
