// "1250.50YRT LESS 25.00 S50.00": an amount with its fare basis, what is taken off it, and its stop-overs.
#include <algorithm>
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCarrierLength = 2;
constexpr std::size_t kCurrencyLength = 3;

/// Letters and digits, and slashes between them.
std::u16string_view LeadingCode(std::u16string_view word) {
  std::size_t size = 0;
  while (size < word.size() &&
         (IsCode(word.substr(size, 1)) || (word[size] == u'/' && IsCode(word.substr(size + 1, 1))))) {
    ++size;
  }
  return word.substr(0, size);
}

/// "JPY25000END": the total, where no blank stands before it.
bool IsTotal(std::u16string_view code) {
  const std::u16string_view amount = code.substr(std::min(code.size(), kCurrencyLength));
  const std::size_t digits = std::min(amount.find_first_not_of(u"0123456789"), amount.size());
  return digits > 0 && IsLetters(code.substr(0, kCurrencyLength)) && amount.substr(digits).starts_with(u"END");
}

bool IsFareBasis(std::u16string_view word, std::u16string_view code) {
  static constexpr std::array<std::u16string_view, 3> kOthers{u"LESS", u"NUC", u"END"};
  const bool isOther =
      std::ranges::any_of(kOthers, [code](std::u16string_view other) { return code.starts_with(other); });
  const bool goesOnAsAmount = word.substr(code.size()).starts_with(u'.');
  return !code.empty() && IsLetter(code.front()) && code.size() != kCarrierLength && !isOther && !goesOnAsAmount &&
         !IsTotal(code);
}

}  // namespace

bool StartsFare(const FareCursor& cursor) {
  return cursor.Sees(shape::Number) && !StartsCarrier(cursor) && !StartsMileageItem(cursor) && !StartsStopOver(cursor);
}

void ReadFare(FareCursor& cursor, TreeNode& parent) {
  Token basis;
  cursor.Cover(parent, NodeTypeId::FareWithStopOver, [&](TreeNode& fare) {
    ReadAmount(cursor, fare, NodeTypeId::FareAmount);
    basis = TakeFareBasis(cursor);
    if (StartsLessFare(cursor)) {
      ReadLessFare(cursor, fare);
    }
    while (StartsStopOver(cursor)) {
      ReadStopOver(cursor, fare);
    }
  });
  AddFareBasis(parent, basis);
}

bool StartsLessFare(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"LESS")) || cursor.Sees(shape::Is(u"-"), shape::Number);
}

void ReadLessFare(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::LessFare, [&](TreeNode& less) {
    cursor.Next();
    ReadAmount(cursor, less, NodeTypeId::AmountToSubtract);
  });
}

Token TakeFareBasis(FareCursor& cursor) {
  const std::u16string_view word = cursor.Peek().isTight ? cursor.Word() : std::u16string_view();
  const std::u16string_view code = LeadingCode(word);
  return IsFareBasis(word, code) ? cursor.Take(code.size()) : Token{};
}

void AddFareBasis(TreeNode& parent, const Token& basis) {
  if (!basis.text.empty()) {
    parent.Add(NodeTypeId::FareBasis, basis.text);
  }
}

bool ReadAmount(FareCursor& cursor, TreeNode& parent, NodeTypeId type) {
  if (!cursor.Sees(shape::Number)) {
    cursor.Warn(u"amount expected");
    return false;
  }
  cursor.Add(parent, type);
  return true;
}

}  // namespace qorltst::simulator
