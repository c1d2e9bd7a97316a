// Goes through a whole model, object by object, with the path of each: "FareCalculation.Itineraries(2)".
#pragma once

#include <functional>
#include <string>

#include "tools/model/Property.h"

namespace qorltst::model {

/// Called with an object that is no collection, and its path, which is empty for the root. Answers whether to go on
/// below the object.
using ObjectVisitor = std::function<bool(const std::string& path, Object& object)>;

/// Visits the root and every object below it, parents first, in the order of the tables. Absent objects are left out.
void WalkObjects(Object& root, const ObjectVisitor& visit);

/// Calls `visit(Object&)` with each item of a collection, in order.
template <class Visit>
void ForEachItem(const Collection& collection, Visit visit) {
  for (std::int32_t i = 1; i <= collection.Count(); ++i) {
    visit(*collection.Item(i));
  }
}

/// The name of an item in a path: "AirSegments(1)".
[[nodiscard]] std::string ItemName(std::u16string_view collection, std::int32_t index);

}  // namespace qorltst::model
