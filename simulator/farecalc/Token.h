// A piece of a fare calculation: letters, a number or one other character. Tokenizer.h makes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qorltst::simulator {

enum class TokenKind : std::uint8_t { None, Letters, Number, Symbol };

struct Token {
  /// `None` for what stands behind the last token.
  TokenKind kind = TokenKind::None;
  std::u16string_view text;
  /// From the start of the line, 0-based, counted over its continuation lines too.
  std::size_t position = 0;
  /// Whether nothing, not even the end of a screen line, stands between this token and the one before it.
  bool isTight = false;

  [[nodiscard]] std::size_t End() const noexcept { return position + text.size(); }
};

}  // namespace qorltst::simulator
