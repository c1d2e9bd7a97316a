// Fare components and side trips: the routing with what is written at its points, up to a fare.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

/// A carrier comes first: "S7 PAR" is one and no stop-over charge.
constexpr std::array kComponentParts{
    Production{StartsCarrier, ReadLeg},
    Production{StartsGlobalRouting, ReadGlobalRouting},
    Production{StartsSurcharge, ReadSurcharges},
    Production{StartsStopOver, ReadStopOver},
    Production{StartsMileageItem, ReadMileageItem},
    Production{StartsIntermediatePoint, ReadIntermediatePoint},
    Production{StartsLowestCombination, ReadLowestCombination},
    Production{StartsFictitiousPoint, ReadFictitiousPoint},
    Production{StartsExtraMileageAllowance, ReadExtraMileageAllowance},
    Production{StartsMileageEqualization, ReadMileageEqualization},
    Production{StartsSideTrip, ReadSideTrip},
    Production{StartsLeg, ReadLeg},
};

/// What may follow the carrier and city of an item of a side trip. Here each surcharge stands alone.
constexpr std::array kItemParts{
    Production{StartsGlobalRouting, ReadGlobalRouting},
    Production{StartsSurcharge, ReadSurcharge},
    Production{StartsStopOver, ReadStopOver},
    Production{StartsMileageItem, ReadMileageItem},
    Production{StartsIntermediatePoint, ReadIntermediatePoint},
    Production{StartsLowestCombination, ReadLowestCombination},
    Production{StartsFictitiousPoint, ReadFictitiousPoint},
    Production{StartsExtraMileageAllowance, ReadExtraMileageAllowance},
    Production{StartsMileageEqualization, ReadMileageEqualization},
};

bool AnyStarts(const FareCursor& cursor, std::span<const Production> productions) {
  return std::ranges::any_of(productions, [&](const Production& production) { return production.starts(cursor); });
}

bool StartsItem(const FareCursor& cursor) {
  return !StartsEndLine(cursor) && (AnyStarts(cursor, kItemParts) || StartsLeg(cursor) || StartsFare(cursor));
}

/// Reads an item's parts and its fare. Whether a fare, or a tour in its place, ends the component with this item.
bool ReadItemParts(FareCursor& cursor, TreeNode& item) {
  bool hasLeg = false;
  bool isTour = false;
  while (!StartsFare(cursor)) {
    if (isTour) {
      return true;
    }
    isTour = StartsTourFare(cursor);
    if (StartsCarrier(cursor) || !ReadOneOf(cursor, item, kItemParts)) {
      if (hasLeg || !StartsLeg(cursor)) {
        return false;
      }
      ReadLeg(cursor, item);
      hasLeg = true;
    }
  }
  ReadFare(cursor, item);
  return true;
}

/// "QX BRU QX PAR 80.00": one component of a side trip, an item for each leg.
void ReadItems(FareCursor& cursor, TreeNode& items) {
  bool isComplete = false;
  while (!isComplete && StartsItem(cursor)) {
    cursor.Cover(items, NodeTypeId::Itinerary, [&](TreeNode& item) { isComplete = ReadItemParts(cursor, item); });
  }
}

void ReadSideTripComponents(FareCursor& cursor, TreeNode& sideTrip) {
  while (!cursor.AtEnd() && !StartsEndLine(cursor) && !cursor.Sees(shape::Is(u")"))) {
    if (!StartsItem(cursor)) {
      cursor.SkipUnexpected();
      continue;
    }
    cursor.Cover(sideTrip, NodeTypeId::CompositeGroup, [&](TreeNode& group) {
      cursor.Cover(group, NodeTypeId::CompositeItems, [&](TreeNode& items) { ReadItems(cursor, items); });
    });
  }
}

}  // namespace

bool StartsComponent(const FareCursor& cursor) { return AnyStarts(cursor, kComponentParts); }

void ReadComponent(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::Itinerary, [&](TreeNode& component) {
    bool isTour = false;
    while (!StartsFare(cursor)) {
      if (isTour) {
        return;
      }
      isTour = StartsTourFare(cursor);
      if (!ReadOneOf(cursor, component, kComponentParts)) {
        return;
      }
    }
    ReadFare(cursor, component);
  });
}

bool StartsSideTrip(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"(")) && !StartsGlobalRouting(cursor); }

void ReadSideTrip(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::CompositeElement, [&](TreeNode& sideTrip) {
    cursor.Next();
    ReadSideTripComponents(cursor, sideTrip);
    if (cursor.Sees(shape::Is(u")"))) {
      cursor.Next();
    } else {
      cursor.Warn(u"closing bracket expected");
    }
  });
}

}  // namespace qorltst::simulator
