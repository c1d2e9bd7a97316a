// "NUC241.00/GBP195.78 END ROE0.812345": the total, the end marker, the rate of exchange, charges and free text.
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCityLength = 3;

bool StartsEndMarker(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"END")) || cursor.Sees(shape::Is(u"ENDROE"));
}

void ReadEndMarker(FareCursor& cursor, TreeNode& end) { cursor.Add(end, NodeTypeId::EndMarker, 3); }

bool StartsRate(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"ROE")); }

void ReadRate(FareCursor& cursor, TreeNode& end) {
  cursor.Cover(end, NodeTypeId::RateOfExchangeGroup, [&](TreeNode& group) {
    cursor.Next();
    ReadAmount(cursor, group, NodeTypeId::RateOfExchange);
  });
}

/// A currency, which looks like a city, right before an amount. The neutral unit may stand apart from it.
bool StartsTotal(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"NUC")) || cursor.Sees(shape::City, shape::Tight(shape::Number));
}

/// "/LONTYO LC/PAR GBP195.78YRT": what the total was checked against, behind its slash.
void ReadFareAfterNuc(FareCursor& cursor, TreeNode& total) {
  cursor.Cover(total, NodeTypeId::FareAfterNuc, [&](TreeNode& fare) {
    if (cursor.Sees(shape::CityPair)) {
      cursor.Add(fare, NodeTypeId::FareAfterNucCity1, kCityLength);
      cursor.Add(fare, NodeTypeId::FareAfterNucCity2, kCityLength);
    }
    if (StartsLowestCombination(cursor)) {
      cursor.Next();
      cursor.Next();
      cursor.Add(fare, NodeTypeId::City);
    }
    if (cursor.Sees(shape::City)) {
      cursor.Add(fare, NodeTypeId::CurrencyCode);
    }
    if (ReadAmount(cursor, fare, NodeTypeId::FareAmount)) {
      AddFareBasis(fare, TakeFareBasis(cursor));
    }
  });
}

void ReadTotal(FareCursor& cursor, TreeNode& end) {
  cursor.Cover(end, NodeTypeId::TotalFareGroup, [&](TreeNode& total) {
    cursor.Add(total, NodeTypeId::TotalFareCurrency);
    ReadAmount(cursor, total, NodeTypeId::FareAmount);
    if (cursor.Sees(shape::Is(u"/"))) {
      cursor.Next();
      ReadFareAfterNuc(cursor, total);
    }
  });
}

void ReadFreeFlow(FareCursor& cursor, TreeNode& end) {
  cursor.Cover(end, NodeTypeId::EndFreeFlowGroup, [&](TreeNode& group) {
    cursor.Cover(group, NodeTypeId::EndFreeFlow,
                 [&](TreeNode& flow) { flow.Add(NodeTypeId::EndFreeFlowText, cursor.Rest().text); });
  });
}

constexpr std::array kParts{
    Production{StartsEndMarker, ReadEndMarker},
    Production{StartsRate, ReadRate},
    Production{StartsCharge, ReadCharges},
};

}  // namespace

bool StartsEndLine(const FareCursor& cursor) {
  return StartsTotal(cursor) || StartsEndMarker(cursor) || StartsRate(cursor);
}

void ReadEndLine(FareCursor& cursor, TreeNode& line) {
  cursor.Cover(line, NodeTypeId::EndLine, [&](TreeNode& end) {
    if (StartsTotal(cursor)) {
      ReadTotal(cursor, end);
    }
    bool hasEnded = false;
    while (!cursor.AtEnd()) {
      hasEnded = hasEnded || StartsEndMarker(cursor);
      if (ReadOneOf(cursor, end, kParts)) {
        continue;
      }
      if (hasEnded) {
        ReadFreeFlow(cursor, end);
      } else {
        cursor.SkipUnexpected();
      }
    }
  });
}

}  // namespace qorltst::simulator
