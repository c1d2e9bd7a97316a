// All values of an object and of the objects below it, for tests that compare whole fare calculations.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "frame/Object.h"

namespace qorltst::simulator {

/// By path, such as "Itineraries[2].CityCode". What is empty or False is left out; an object has "present", a
/// collection with items their count.
using Values = std::map<std::string, std::string>;

/// Every property but the debug ids.
[[nodiscard]] Values ValuesOf(Object& object);

/// What differs, one line each: "- path=value" is missing, "+ path=value" is too much.
[[nodiscard]] std::vector<std::string> Differences(const Values& expected, const Values& actual);

}  // namespace qorltst::simulator
