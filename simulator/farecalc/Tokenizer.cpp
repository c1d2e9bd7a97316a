// See Tokenizer.h.
#include "simulator/farecalc/Tokenizer.h"

#include "simulator/FieldShape.h"

namespace qorltst::simulator {
namespace {

std::size_t CountLeading(std::u16string_view text, bool (*fits)(char16_t)) {
  return static_cast<std::size_t>(std::ranges::find_if_not(text, fits) - text.begin());
}

/// Digits, and a point only where more digits follow it.
std::size_t MeasureNumber(std::u16string_view text) {
  const std::size_t whole = CountLeading(text, IsDigit);
  if (whole == text.size() || text[whole] != u'.') {
    return whole;
  }
  const std::size_t decimals = CountLeading(text.substr(whole + 1), IsDigit);
  return decimals == 0 ? whole : whole + 1 + decimals;
}

/// The token at the front of a text that starts with something else than a blank.
Token FirstToken(std::u16string_view text) {
  if (const std::size_t letters = CountLeading(text, IsLetter); letters > 0) {
    return {TokenKind::Letters, text.substr(0, letters)};
  }
  if (const std::size_t number = MeasureNumber(text); number > 0) {
    return {TokenKind::Number, text.substr(0, number)};
  }
  return {TokenKind::Symbol, text.substr(0, 1)};
}

}  // namespace

std::vector<Token> Tokenize(const Field& text) {
  std::vector<Token> tokens;
  Field rest = text;
  while (true) {
    rest.Take(CountLeading(rest.text, [](char16_t character) { return character == u' '; }));
    if (rest.Empty()) {
      return tokens;
    }
    Token token = FirstToken(rest.text);
    token.position = rest.position;
    token.isTight = !tokens.empty() && tokens.back().End() == token.position;
    rest.Take(token.text.size());
    tokens.push_back(token);
  }
}

}  // namespace qorltst::simulator
