// See FareCursor.h.
#include "simulator/farecalc/FareCursor.h"

#include <algorithm>

#include "simulator/farecalc/Tokenizer.h"

namespace qorltst::simulator {

FareCursor::FareCursor(LineReader& reader) : reader_(reader), source_(reader.Rest()), tokens_(Tokenize(source_)) {
  end_.position = source_.position + source_.text.size();
}

const Token& FareCursor::Peek(std::size_t ahead) const noexcept {
  return ahead < tokens_.size() - next_ ? tokens_[next_ + ahead] : end_;
}

std::u16string_view FareCursor::Word() const {
  const std::u16string_view text = source_.text.substr(Peek().position - source_.position);
  return text.substr(0, text.find(u' '));
}

Token FareCursor::Next() {
  if (AtEnd()) {
    return end_;
  }
  taken_ = tokens_[next_].End();
  return tokens_[next_++];
}

Token FareCursor::Take(std::size_t count) {
  Token whole = Peek();
  whole.text = Word().substr(0, count);
  while (Peek().position < whole.End()) {
    Token& token = tokens_[next_];
    if (token.End() <= whole.End()) {
      Next();
      continue;
    }
    token.text.remove_prefix(whole.End() - token.position);
    token.position = whole.End();
    token.isTight = true;
    taken_ = whole.End();
  }
  return whole;
}

Token FareCursor::Rest() {
  Token rest = Peek();
  rest.text = source_.text.substr(rest.position - source_.position);
  next_ = tokens_.size();
  taken_ = end_.position;
  return rest;
}

void FareCursor::Warn(std::u16string_view reason) const { reader_.Warn({Peek().text, Peek().position}, reason); }

void FareCursor::SkipUnexpected() {
  const auto isBracket = [](const Token& token) { return token.text == u"(" || token.text == u")"; };
  Warn(u"unexpected text");
  if (isBracket(Next())) {
    return;
  }
  while (Peek().isTight && !isBracket(Peek())) {
    Next();
  }
}

std::u16string_view FareCursor::TextSince(std::size_t start) const {
  return taken_ <= start ? std::u16string_view() : source_.text.substr(start - source_.position, taken_ - start);
}

bool ReadOneOf(FareCursor& cursor, TreeNode& parent, std::span<const Production> productions) {
  const auto found =
      std::ranges::find_if(productions, [&](const Production& production) { return production.starts(cursor); });
  if (found == productions.end()) {
    return false;
  }
  found->read(cursor, parent);
  return true;
}

}  // namespace qorltst::simulator
