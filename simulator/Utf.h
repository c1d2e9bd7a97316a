// Conversion between UTF-8 (files, streams, dumps) and UTF-16 (everything that the toolkit sees).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qorltst::simulator {

/// Stands for whatever cannot be converted: damaged bytes, half a surrogate pair.
inline constexpr char16_t kReplacement = u'\uFFFD';

/// UTF-16 as UTF-8. Each lone surrogate becomes one replacement character, so the result is always valid.
[[nodiscard]] std::string ToUtf8(std::u16string_view text);

/// UTF-8 as UTF-16. Each byte that starts no valid character (overlong forms, encoded surrogates and what is
/// beyond U+10FFFF are not valid) becomes one replacement character.
[[nodiscard]] std::u16string ToUtf16(std::string_view text);

/// UTF-8 with its control characters (below 20 hex, and 7F) shown as "\x0a", so that it stays on one line.
[[nodiscard]] std::string EscapeControls(std::string_view utf8);

/// Where the first byte stands that starts no valid character; nothing in valid UTF-8.
[[nodiscard]] std::optional<std::size_t> FindDamage(std::string_view utf8);

/// Where the first lone surrogate stands; nothing in valid UTF-16.
[[nodiscard]] std::optional<std::size_t> FindLoneSurrogate(std::u16string_view text);

}  // namespace qorltst::simulator
