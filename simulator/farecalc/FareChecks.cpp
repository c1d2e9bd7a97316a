// "P LONTYO 25.00", "D LONTYO LONPAR/C M12.00": fare minimum checks and higher class differentials.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCityLength = 3;

/// The checks besides the plus-up "P".
bool IsCheck(const Token& token) {
  static constexpr std::array<std::u16string_view, 7> kChecks{u"BHC", u"COM", u"COP", u"CTM", u"DMC", u"OSC", u"RSC"};
  return std::ranges::find(kChecks, token.text) != kChecks.end();
}

/// A class stands in a group of its own here, other than at a point of a fare component.
void ReadDifferentialPoint(FareCursor& cursor, TreeNode& points) {
  cursor.Cover(points, NodeTypeId::FareIntermediatePoint, [&](TreeNode& point) {
    cursor.Add(point, NodeTypeId::CityPair);
    if (cursor.Sees(shape::Tight(shape::Is(u"/")), shape::Tight(shape::Letters(1)))) {
      cursor.Next();
      cursor.Cover(point, NodeTypeId::IntermediateClassGroup,
                   [&](TreeNode& group) { cursor.Add(group, NodeTypeId::IntermediateClass); });
    }
  });
}

}  // namespace

bool StartsFareMinimum(const FareCursor& cursor) {
  return cursor.Sees(shape::Is(u"P"), shape::CityPair) || cursor.Sees(IsCheck, shape::CityPair);
}

void ReadFareMinimum(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::FareMinimum, [&](TreeNode& minimum) {
    cursor.Add(minimum, cursor.Sees(IsCheck) ? NodeTypeId::FareMinimumOtherId : NodeTypeId::FareMinimumId);
    cursor.Add(minimum, NodeTypeId::FareMinimumCity1, kCityLength);
    cursor.Add(minimum, NodeTypeId::FareMinimumCity2, kCityLength);
    if (StartsLowestCombination(cursor)) {
      ReadLowestCombination(cursor, minimum);
    }
    if (StartsFare(cursor)) {
      ReadFare(cursor, minimum);
    }
  });
}

bool StartsHigherClassDifferential(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"D"), shape::CityPair); }

void ReadHigherClassDifferential(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::HigherClassDifferential, [&](TreeNode& differential) {
    cursor.Next();
    cursor.Add(differential, NodeTypeId::DifferentialCityPair);
    cursor.Cover(differential, NodeTypeId::IntermediatePoints, [&](TreeNode& points) {
      while (StartsIntermediatePoint(cursor)) {
        ReadDifferentialPoint(cursor, points);
      }
    });
    if (StartsMileageItem(cursor)) {
      ReadMileageItem(cursor, differential);
    }
    if (StartsFare(cursor)) {
      ReadFare(cursor, differential);
    }
  });
}

}  // namespace qorltst::simulator
