// All between the departure point and the end line: fare components, side trips, checks, differentials, extra seats.
#include <array>

#include "simulator/farecalc/Grammar.h"

namespace qorltst::simulator {
namespace {

/// A fare that follows no routing counts for the whole fare calculation.
constexpr std::array kItems{
    Production{StartsFareMinimum, ReadFareMinimum},
    Production{StartsHigherClassDifferential, ReadHigherClassDifferential},
    Production{StartsFareCommon, ReadFareCommon},
    Production{StartsExtraSeat, ReadExtraSeat},
    Production{StartsSideTrip, ReadSideTrip},
    Production{StartsComponent, ReadComponent},
    Production{StartsFare, ReadFare},
};

}  // namespace

void ReadItineraries(FareCursor& cursor, TreeNode& line) {
  cursor.Cover(line, NodeTypeId::ItinerariesAndTheRest, [&](TreeNode& items) {
    while (!cursor.AtEnd() && !StartsEndLine(cursor)) {
      if (!ReadOneOf(cursor, items, kItems)) {
        cursor.SkipUnexpected();
      }
    }
  });
}

}  // namespace qorltst::simulator
