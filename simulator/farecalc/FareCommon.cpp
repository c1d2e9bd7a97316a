// "C/LONPAR/PARTYO 120.00": a fare that several stretches have in common.
#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCityLength = 3;
constexpr auto kSlash = shape::Tight(shape::Is(u"/"));
constexpr auto kCities = shape::Tight(shape::Cities);

void ReadStretch(FareCursor& cursor, TreeNode& stretches) {
  cursor.Cover(stretches, NodeTypeId::FareCommonCityGroup, [&](TreeNode& stretch) {
    for (std::size_t cities = cursor.Peek().text.size() / kCityLength; cities > 0; --cities) {
      cursor.Add(stretch, NodeTypeId::City, kCityLength);
    }
  });
}

}  // namespace

bool StartsFareCommon(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"C"), kSlash, kCities); }

void ReadFareCommon(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::FareCommon, [&](TreeNode& common) {
    cursor.Next();
    cursor.Next();
    cursor.Cover(common, NodeTypeId::FareCommonCities, [&](TreeNode& stretches) {
      ReadStretch(cursor, stretches);
      while (cursor.Sees(kSlash, kCities)) {
        cursor.Next();
        ReadStretch(cursor, stretches);
      }
    });
    if (StartsFare(cursor)) {
      ReadFare(cursor, common);
    }
  });
}

}  // namespace qorltst::simulator
