// "15M/IT": whether a fare follows the mileage system, by how much its mileage is exceeded, and tour fares.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr auto kMarker = shape::Is(u"M");
constexpr auto kSlash = shape::Tight(shape::Is(u"/"));

/// The surcharges that exceeding the mileage costs.
bool IsPercentage(const Token& token) {
  static constexpr std::array<std::u16string_view, 5> kPercentages{u"5", u"10", u"15", u"20", u"25"};
  return std::ranges::find(kPercentages, token.text) != kPercentages.end();
}

bool IsTour(const Token& token) { return token.text == u"IT" || token.text == u"BT"; }

void ReadTour(FareCursor& cursor, TreeNode& item) {
  cursor.Add(item, cursor.Sees(shape::Is(u"IT")) ? NodeTypeId::InclusiveTour : NodeTypeId::BulkTour);
}

}  // namespace

bool StartsMileageItemAt(const FareCursor& cursor, std::size_t ahead) {
  return cursor.SeesAt(ahead, IsTour) || cursor.SeesAt(ahead, kMarker) ||
         cursor.SeesAt(ahead, IsPercentage, shape::Tight(kMarker));
}

bool StartsMileageItem(const FareCursor& cursor) { return StartsMileageItemAt(cursor, 0) && !StartsCarrier(cursor); }

bool StartsTourFare(const FareCursor& cursor) {
  const auto tour = shape::Tight(IsTour);
  return cursor.Sees(IsTour) || cursor.Sees(kMarker, kSlash, tour) ||
         cursor.Sees(IsPercentage, shape::Tight(kMarker), kSlash, tour);
}

void ReadMileageItem(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::MileageItem, [&](TreeNode& item) {
    if (cursor.Sees(IsTour)) {
      ReadTour(cursor, item);
      return;
    }
    if (cursor.Sees(IsPercentage)) {
      cursor.Add(item, NodeTypeId::MileagePercentage);
    }
    cursor.Add(item, NodeTypeId::MileageMarker);
    if (cursor.Sees(kSlash, shape::Tight(IsTour))) {
      cursor.Next();
      ReadTour(cursor, item);
    }
  });
}

}  // namespace qorltst::simulator
