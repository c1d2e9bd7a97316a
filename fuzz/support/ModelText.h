// A whole object model as one text, read the ways that callers have: through the rows of the class tables.
#pragma once

#include <string>

#include "frame/Object.h"

namespace qorltst::fuzz {

/// Every property of every object, in the order of the tables; debug ids are left out, for they differ from one
/// retrieval to the next. Ends the program where an object is missing that has to be there, or where a collection's
/// count, items and enumeration do not agree.
[[nodiscard]] std::u16string TextOfModel(Object& root);

}  // namespace qorltst::fuzz
