// A 128-bit identifier without the operating system's headers. The Windows side turns it into its own type.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qorltst::automation {

/// Laid out as automation lays out its identifiers.
struct Guid {
  std::uint32_t data1 = 0;
  std::uint16_t data2 = 0;
  std::uint16_t data3 = 0;
  std::array<std::uint8_t, 8> data4{};

  friend bool operator==(const Guid&, const Guid&) = default;
};

/// Reads "6a260773-dd7a-41fd-8ab0-d439ab04e997". Another form is an error while compiling.
consteval Guid ParseGuid(std::string_view text) {
  if (text.size() != 36 || text[8] != '-' || text[13] != '-' || text[18] != '-' || text[23] != '-') {
    throw "an identifier is written as 8-4-4-4-12 digits";
  }
  const auto digits = [text](std::size_t first, std::size_t count) {
    std::uint32_t value = 0;
    for (const char c : text.substr(first, count)) {
      if ((c < '0' || c > '9') && (c < 'a' || c > 'f')) {
        throw "an identifier is written in lower case hexadecimal digits";
      }
      value = value * 16 + static_cast<std::uint32_t>(c <= '9' ? c - '0' : c - 'a' + 10);
    }
    return value;
  };
  Guid guid{digits(0, 8), static_cast<std::uint16_t>(digits(9, 4)), static_cast<std::uint16_t>(digits(14, 4)), {}};
  for (std::size_t i = 0; i < 8; ++i) {
    guid.data4[i] = static_cast<std::uint8_t>(digits(i < 2 ? 19 + 2 * i : 20 + 2 * i, 2));
  }
  return guid;
}

/// "6A260773-DD7A-41FD-8AB0-D439AB04E997", as the registry and interface descriptions write it (without braces).
[[nodiscard]] std::string ToString(const Guid& guid);

}  // namespace qorltst::automation
