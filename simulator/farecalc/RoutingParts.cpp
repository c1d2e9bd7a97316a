// What is written with the points of a routing: indicators, charges, mileage and points of the fare's construction.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCityLength = 3;

constexpr auto kSlash = shape::Tight(shape::Is(u"/"));

/// "F/TYO" and the like.
bool StartsMarkedCity(const FareCursor& cursor, std::u16string_view mark) {
  return cursor.Sees(shape::Is(mark), kSlash, shape::Tight(shape::City));
}

void ReadMarkedCity(FareCursor& cursor, TreeNode& parent, NodeTypeId type) {
  cursor.Cover(parent, type, [&](TreeNode& point) {
    cursor.Next();
    cursor.Next();
    cursor.Add(point, NodeTypeId::City);
  });
}

void ReadEqualizedPoint(FareCursor& cursor, TreeNode& group) {
  cursor.Cover(group, NodeTypeId::MileageEqualizationItem, [&](TreeNode& item) {
    cursor.Next();
    cursor.Next();
    cursor.Add(item, NodeTypeId::City);
    if (cursor.Sees(kSlash) && cursor.Peek(1).isTight && StartsMileageItemAt(cursor, 1)) {
      cursor.Next();
      ReadMileageItem(cursor, item);
    }
  });
}

}  // namespace

bool StartsGlobalRouting(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"("), shape::Tight(shape::Letters(2)), shape::Tight(shape::Is(u")")));
}

void ReadGlobalRouting(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::GlobalRouting, [&](TreeNode& routing) {
    cursor.Next();
    cursor.Add(routing, NodeTypeId::GlobalIndicator);
    cursor.Next();
  });
}

bool StartsSurcharge(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"Q")) && !StartsCarrier(cursor); }

void ReadSurcharge(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::OtherSurcharges, [&](TreeNode& surcharge) {
    cursor.Next();
    if (cursor.Sees(shape::CityPair)) {
      cursor.Add(surcharge, NodeTypeId::CityPair);
    }
    ReadAmount(cursor, surcharge, NodeTypeId::StopOverValue);
  });
}

void ReadSurcharges(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::OtherSurcharges, [&](TreeNode& surcharges) {
    while (StartsSurcharge(cursor)) {
      ReadSurcharge(cursor, surcharges);
    }
  });
}

bool StartsStopOver(const FareCursor& cursor) {
  return !StartsCarrier(cursor) &&
         (cursor.Sees(shape::Is(u"S")) ||
          cursor.Sees(shape::Digits(1), shape::Tight(shape::Is(u"S")), shape::Tight(shape::Number)));
}

void ReadStopOver(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::StopOver, [&](TreeNode& stopOver) {
    if (cursor.Sees(shape::Number)) {
      cursor.Add(stopOver, NodeTypeId::StopsAllowed);
    }
    cursor.Next();
    if (cursor.Sees(kSlash, shape::Tight(shape::Digits(1)))) {
      cursor.Next();
      cursor.Add(stopOver, NodeTypeId::StopsAllowed);
    } else {
      ReadAmount(cursor, stopOver, NodeTypeId::StopOverValue);
    }
  });
}

bool StartsIntermediatePoint(const FareCursor& cursor) { return cursor.Sees(shape::CityPair); }

void ReadIntermediatePoint(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::FareIntermediatePoint, [&](TreeNode& point) {
    cursor.Add(point, NodeTypeId::CityPair);
    if (cursor.Sees(kSlash, shape::Tight(shape::Letters(1)))) {
      cursor.Next();
      cursor.Add(point, NodeTypeId::BookingClass);
    }
  });
}

bool StartsLowestCombination(const FareCursor& cursor) { return StartsMarkedCity(cursor, u"LC"); }

void ReadLowestCombination(FareCursor& cursor, TreeNode& parent) {
  ReadMarkedCity(cursor, parent, NodeTypeId::LowestCombination);
}

bool StartsFictitiousPoint(const FareCursor& cursor) { return StartsMarkedCity(cursor, u"F"); }

void ReadFictitiousPoint(FareCursor& cursor, TreeNode& parent) {
  ReadMarkedCity(cursor, parent, NodeTypeId::FictitiousPoint);
}

bool StartsExtraMileageAllowance(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"E"), kSlash, shape::Tight(shape::Is(u"XXX")));
}

void ReadExtraMileageAllowance(FareCursor& cursor, TreeNode& parent) {
  cursor.Add(parent, NodeTypeId::ExtraMileageAllowance, 2 + kCityLength);
}

bool StartsMileageEqualization(const FareCursor& cursor) { return StartsMarkedCity(cursor, u"B"); }

void ReadMileageEqualization(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::MileageEqualization, [&](TreeNode& group) {
    while (StartsMileageEqualization(cursor)) {
      ReadEqualizedPoint(cursor, group);
    }
  });
}

}  // namespace qorltst::simulator
