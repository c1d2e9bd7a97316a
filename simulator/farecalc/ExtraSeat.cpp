// "EXST LON GBP120.00LESS20.00": an extra seat, or a seat for cabin baggage, with its fare in parts.
#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr auto kExtraSeat = shape::Is(u"EXST");
constexpr auto kCabinBaggage = shape::Is(u"CBBG");

}  // namespace

bool StartsExtraSeat(const FareCursor& cursor) { return cursor.Sees(kExtraSeat) || cursor.Sees(kCabinBaggage); }

void ReadExtraSeat(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::ExtraSeatFare, [&](TreeNode& seat) {
    cursor.Add(seat, cursor.Sees(kExtraSeat) ? NodeTypeId::ExtraSeatId : NodeTypeId::CabinBaggageId);
    if (cursor.Sees(shape::City) && !cursor.SeesAt(1, shape::Tight(shape::Number)) && !StartsFareMinimum(cursor)) {
      cursor.Add(seat, NodeTypeId::ExtraSeatCity);
    }
    if (cursor.Sees(shape::City, shape::Tight(shape::Number))) {
      cursor.Cover(seat, NodeTypeId::ExtraSeatCurrency,
                   [&](TreeNode& currency) { cursor.Add(currency, NodeTypeId::CurrencyCode); });
    }
    if (StartsFare(cursor)) {
      ReadAmount(cursor, seat, NodeTypeId::FareAmount);
    }
    if (StartsLessFare(cursor)) {
      ReadLessFare(cursor, seat);
    }
  });
}

}  // namespace qorltst::simulator
