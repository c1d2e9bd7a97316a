// See ByteReader.h.
#include "fuzz/support/ByteReader.h"

#include <algorithm>
#include <bit>

namespace qorltst::fuzz {

std::u16string TextOf(std::span<const std::uint8_t> bytes) {
  std::u16string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    unsigned unit = bytes[i];
    if (unit == kUnitMark && i + 2 < bytes.size()) {
      unit = bytes[i + 1] * 256U + bytes[i + 2];
      i += 2;
    }
    text.push_back(static_cast<char16_t>(unit));
  }
  return text;
}

std::string BytesOf(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    if (unit > 0xFF || unit == kUnitMark) {
      bytes += {static_cast<char>(kUnitMark), static_cast<char>(unit >> 8U)};
    }
    bytes.push_back(static_cast<char>(unit & 0xFFU));
  }
  return bytes;
}

std::span<const std::uint8_t> ByteReader::Take(std::size_t count) {
  const auto taken = bytes_.first(std::min(count, bytes_.size()));
  bytes_ = bytes_.subspan(taken.size());
  return taken;
}

std::uint8_t ByteReader::Byte() {
  const auto taken = Take(1);
  return taken.empty() ? std::uint8_t{0} : taken.front();
}

std::uint32_t ByteReader::Number() {
  std::uint32_t number = 0;
  for (int i = 0; i < 4; ++i) {
    number = number << 8U | Byte();
  }
  return number;
}

double ByteReader::Double() {
  const std::uint64_t high = Number();
  return std::bit_cast<double>(high << 32U | Number());
}

std::u16string ByteReader::Text() { return TextOf(Take(Byte())); }

}  // namespace qorltst::fuzz
