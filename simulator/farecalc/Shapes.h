// What tokens may look like: the terminals of the fare calculation's grammar, for `FareCursor::Sees`.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "simulator/farecalc/Token.h"

namespace qorltst::simulator::shape {

/// Exactly this text.
constexpr auto Is(std::u16string_view text) {
  return [text](const Token& token) { return token.text == text; };
}

/// So many letters.
constexpr auto Letters(std::size_t count) {
  return [count](const Token& token) { return token.kind == TokenKind::Letters && token.text.size() == count; };
}

/// So many digits, without a point.
constexpr auto Digits(std::size_t count) {
  return [count](const Token& token) {
    return token.kind == TokenKind::Number && token.text.size() == count &&
           token.text.find(u'.') == std::u16string_view::npos;
  };
}

constexpr bool Number(const Token& token) { return token.kind == TokenKind::Number; }

/// One or more cities, three letters each, that are none of the words around the total.
constexpr bool Cities(const Token& token) {
  constexpr std::array<std::u16string_view, 4> kNoCities{u"NUC", u"END", u"ENDROE", u"ROE"};
  return token.kind == TokenKind::Letters && token.text.size() % 3 == 0 &&
         std::ranges::find(kNoCities, token.text) == kNoCities.end();
}

constexpr bool City(const Token& token) { return token.text.size() == 3 && Cities(token); }

constexpr bool CityPair(const Token& token) { return token.text.size() == 6 && Cities(token); }

/// Of that shape and without a blank before it.
template <class Shape>
constexpr auto Tight(Shape shape) {
  return [shape](const Token& token) { return token.isTight && shape(token); };
}

}  // namespace qorltst::simulator::shape
