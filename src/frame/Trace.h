// The trace texts of a procedure, as data.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace qorltst {

/// One trace line. A line without a text is not written.
struct TraceLine {
  std::u16string_view text;
  std::u16string_view source;
};

/// What a procedure writes when it begins, when it ends, and in its error trap.
struct TraceTexts {
  TraceLine begin;
  TraceLine end;
  TraceLine errorEnd;
};

namespace detail {

/// A text as a template argument.
template <std::size_t N>
struct FixedText {
  // NOLINTNEXTLINE(google-explicit-constructor): stands for the literal that it is made from
  consteval FixedText(const char16_t (&literal)[N]) { std::copy_n(literal, N, characters); }
  [[nodiscard]] constexpr std::u16string_view View() const { return {characters, N - 1}; }
  char16_t characters[N]{};
};

/// Texts joined while compiling.
template <FixedText... Pieces>
struct Joined {
  static constexpr auto kCharacters = [] {
    std::array<char16_t, (Pieces.View().size() + ... + 0)> all{};
    auto* end = all.data();
    ((end = std::copy(Pieces.View().begin(), Pieces.View().end(), end)), ...);
    return all;
  }();
  static constexpr std::u16string_view kText{kCharacters.data(), kCharacters.size()};
};

}  // namespace detail

/// The texts of a procedure that follows the usual pattern:
/// "Beginning of Fill(in Class) Function", "End of Fill(in Class) Function", "... with Error", source "Class.Fill".
/// Procedures with texts of their own write them out.
template <detail::FixedText Operation, detail::FixedText Class>
inline constexpr TraceTexts kUsualTexts{
    .begin = {detail::Joined<u"Beginning of ", Operation, u"(in ", Class, u") Function">::kText,
              detail::Joined<Class, u".", Operation>::kText},
    .end = {detail::Joined<u"End of ", Operation, u"(in ", Class, u") Function">::kText,
            detail::Joined<Class, u".", Operation>::kText},
    .errorEnd = {detail::Joined<u"End of ", Operation, u"(in ", Class, u") Function with Error">::kText,
                 detail::Joined<Class, u".", Operation>::kText},
};

}  // namespace qorltst
