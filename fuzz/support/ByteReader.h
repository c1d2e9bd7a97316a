// Takes an input apart from its front. What is missing at the end reads as zero.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace qorltst::fuzz {

/// The byte that stands before a UTF-16 unit written out in two bytes, the higher one first.
inline constexpr std::uint8_t kUnitMark = 1;

/// Bytes as text: each is a character of its own, but after the mark the next two are one UTF-16 unit. So an input can
/// be read and written by hand, and yet any text has one: NULs and lone surrogates too.
[[nodiscard]] std::u16string TextOf(std::span<const std::uint8_t> bytes);

/// The bytes of a text.
[[nodiscard]] std::string BytesOf(std::u16string_view text);

class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool AtEnd() const noexcept { return bytes_.empty(); }

  std::uint8_t Byte();

  /// The next four bytes, the highest first.
  std::uint32_t Number();

  /// The next eight bytes as a double, the highest first; it may be no number at all.
  double Double();

  /// A byte that says how many follow, and these as text.
  std::u16string Text();

 private:
  std::span<const std::uint8_t> Take(std::size_t count);

  std::span<const std::uint8_t> bytes_;
};

}  // namespace qorltst::fuzz
