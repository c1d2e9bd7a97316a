// One decoder for each encoding; conversion and checks are loops over them. See Utf.h.
#include "simulator/Utf.h"

#include <algorithm>
#include <array>

namespace qorltst::simulator {
namespace {

/// A decoded character and the code units that it took; a damaged one takes a single unit.
struct Decoded {
  char32_t character = kReplacement;
  std::size_t units = 1;
  bool valid = false;
};

/// The forms of UTF-8: lead byte under the mask, bits of the lead byte, length, smallest character.
struct Utf8Form {
  unsigned mask;
  unsigned lead;
  std::size_t length;
  char32_t smallest;
};

constexpr std::array kForms{
    Utf8Form{0x80, 0x00, 1, 0x0},
    Utf8Form{0xE0, 0xC0, 2, 0x80},
    Utf8Form{0xF0, 0xE0, 3, 0x800},
    Utf8Form{0xF8, 0xF0, 4, 0x10000},
};

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
constexpr bool IsScalar(char32_t character) {
  return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

unsigned ByteAt(std::string_view text, std::size_t at) { return static_cast<unsigned char>(text[at]); }

Decoded DecodeForm(std::string_view text, std::size_t at, const Utf8Form& form) {
  if (form.length > text.size() - at) {
    return {};
  }
  char32_t character = ByteAt(text, at) & ~form.mask;
  for (std::size_t i = 1; i < form.length; ++i) {
    const unsigned byte = ByteAt(text, at + i);
    if ((byte & 0xC0U) != 0x80U) {
      return {};
    }
    character = (character << 6U) | (byte & 0x3FU);
  }
  return character >= form.smallest && IsScalar(character) ? Decoded{character, form.length, true} : Decoded{};
}

Decoded Decode(std::string_view text, std::size_t at) {
  for (const Utf8Form& form : kForms) {
    if ((ByteAt(text, at) & form.mask) == form.lead) {
      return DecodeForm(text, at, form);
    }
  }
  return {};
}

Decoded Decode(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1])) {
    const char32_t high = unit - 0xD800U;
    const char32_t low = text[at + 1] - 0xDC00U;
    return {0x10000U + (high << 10U) + low, 2, true};
  }
  return IsScalar(unit) ? Decoded{unit, 1, true} : Decoded{};
}

void Append(std::string& text, char32_t character) {
  std::size_t form = 0;
  while (form + 1 < kForms.size() && character >= kForms[form + 1].smallest) {
    ++form;
  }
  const std::size_t length = kForms[form].length;
  for (std::size_t i = 0; i < length; ++i) {
    const char32_t bits = character >> (6U * (length - 1 - i));
    const char32_t byte = i == 0 ? (kForms[form].lead | bits) : (0x80U | (bits & 0x3FU));
    text.push_back(static_cast<char>(byte));
  }
}

void Append(std::u16string& text, char32_t character) {
  if (character < 0x10000) {
    text.push_back(static_cast<char16_t>(character));
    return;
  }
  const char32_t rest = character - 0x10000;
  text.push_back(static_cast<char16_t>(0xD800U + (rest >> 10U)));
  text.push_back(static_cast<char16_t>(0xDC00U + (rest & 0x3FFU)));
}

/// Displays hold little else; a loop without branches decides.
template <class From>
bool IsAscii(From text) {
  unsigned bits = 0;
  for (const auto unit : text) {
    bits |= static_cast<unsigned>(unit);
  }
  return bits < 0x80;
}

/// ASCII in the units of the other encoding.
template <class To, class From>
To Widened(From text) {
  To converted(text.size(), typename To::value_type());
  std::ranges::transform(text, converted.begin(), [](auto unit) { return static_cast<typename To::value_type>(unit); });
  return converted;
}

template <class To, class From>
To Convert(From text) {
  To converted;
  converted.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Decoded decoded = Decode(text, at);
    Append(converted, decoded.character);
    at += decoded.units;
  }
  return converted;
}

template <class From>
std::optional<std::size_t> FirstInvalid(From text) {
  if (IsAscii(text)) {
    return std::nullopt;
  }
  for (std::size_t at = 0; at < text.size();) {
    const Decoded decoded = Decode(text, at);
    if (!decoded.valid) {
      return at;
    }
    at += decoded.units;
  }
  return std::nullopt;
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  return IsAscii(text) ? Widened<std::string>(text) : Convert<std::string>(text);
}

std::u16string ToUtf16(std::string_view text) {
  return IsAscii(text) ? Widened<std::u16string>(text) : Convert<std::u16string>(text);
}

std::string EscapeControls(std::string_view utf8) {
  static constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escaped;
  for (std::size_t at = 0; at < utf8.size(); ++at) {
    const unsigned byte = ByteAt(utf8, at);
    if (byte < 0x20 || byte == 0x7F) {
      escaped += {'\\', 'x', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
    } else {
      escaped += utf8[at];
    }
  }
  return escaped;
}

std::optional<std::size_t> FindDamage(std::string_view utf8) { return FirstInvalid(utf8); }

std::optional<std::size_t> FindLoneSurrogate(std::u16string_view text) { return FirstInvalid(text); }

}  // namespace qorltst::simulator
