// "QX X/PAR": a carrier, the symbols of a point and its city; a gap in the routing stands where a carrier would.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kTwoCharacters = 2;

/// Words of two characters that mean something else.
constexpr std::array<std::u16string_view, 3> kNoCarriers{u"5M", u"IT", u"BT"};

struct Symbol {
  std::u16string_view text;
  NodeTypeId type;
};

constexpr std::array kSymbols{
    Symbol{u"X/", NodeTypeId::StopOverNotAllowed},  Symbol{u"E/", NodeTypeId::ExtraMileagePoint},
    Symbol{u"L/", NodeTypeId::ReducedMileagePoint}, Symbol{u"*/", NodeTypeId::TicketedPointNotInMileage},
    Symbol{u"//", NodeTypeId::GapNotInMileage},     Symbol{u"/-", NodeTypeId::GapIncludedInMileage},
};

bool StartsGap(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"/"), shape::Tight(shape::Is(u"/"))) ||
         cursor.Sees(shape::Is(u"/"), shape::Tight(shape::Is(u"-")));
}

bool StartsPrefix(const FareCursor& cursor) {
  const auto slash = shape::Tight(shape::Is(u"/"));
  return cursor.Sees(shape::Letters(1), slash) || cursor.Sees(shape::Is(u"*"), slash);
}

bool StartsBarePoint(const FareCursor& cursor) {
  return (cursor.Sees(shape::City) || StartsPrefix(cursor)) && !StartsEndLine(cursor) && !StartsFareMinimum(cursor) &&
         !StartsFareCommon(cursor);
}

void ReadSymbol(FareCursor& cursor, TreeNode& symbols) {
  const auto* const known = std::ranges::find(kSymbols, cursor.Word().substr(0, kTwoCharacters), &Symbol::text);
  cursor.Add(symbols, known == kSymbols.end() ? NodeTypeId::OtherSymbol : known->type, kTwoCharacters);
}

void ReadSymbols(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::Symbols, [&](TreeNode& symbols) {
    if (StartsGap(cursor)) {
      ReadSymbol(cursor, symbols);
    }
    while (StartsPrefix(cursor)) {
      ReadSymbol(cursor, symbols);
    }
  });
}

void ReadCarrier(FareCursor& cursor, TreeNode& parent) {
  cursor.Add(parent, NodeTypeId::CarrierCode, kTwoCharacters);
  if (StartsGlobalRouting(cursor)) {
    ReadGlobalRouting(cursor, parent);
  }
}

}  // namespace

bool StartsCarrier(const FareCursor& cursor) {
  const bool isLetters = cursor.Sees(shape::Letters(kTwoCharacters));
  const bool isMixed = cursor.Sees(shape::Letters(1), shape::Tight(shape::Digits(1))) ||
                       cursor.Sees(shape::Digits(1), shape::Tight(shape::Letters(1)));
  const Token& following = cursor.Peek(isLetters ? 1 : kTwoCharacters);
  const bool isWhole = !following.isTight || following.text == u"(" || following.text == u")";
  return (isLetters || isMixed) && isWhole &&
         std::ranges::find(kNoCarriers, cursor.Word().substr(0, kTwoCharacters)) == kNoCarriers.end();
}

bool StartsLeg(const FareCursor& cursor) {
  return StartsCarrier(cursor) || StartsGap(cursor) || StartsBarePoint(cursor);
}

void ReadLeg(FareCursor& cursor, TreeNode& parent) {
  if (StartsCarrier(cursor)) {
    ReadCarrier(cursor, parent);
  } else if (!StartsGap(cursor)) {
    cursor.Warn(u"carrier expected");
  }
  ReadSymbols(cursor, parent);
  if (cursor.Sees(shape::City)) {
    cursor.Add(parent, NodeTypeId::ComponentCity);
  } else {
    cursor.Warn(u"city expected");
  }
}

}  // namespace qorltst::simulator
