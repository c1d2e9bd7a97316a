// Prints any object of the model as an indented tree with its values in line, by its class's own table.
#pragma once

#include <span>
#include <string>

#include "tools/model/Property.h"

namespace qorltst::model {

/// Appends a line for each property that passes the filter, and below it what it holds: values first, then objects.
/// With `rows`, only these of the object itself. A text of more than 80 characters goes on in the next line, cut as the
/// host cuts its screens, and a parser's error text has a line for each error.
void PrintTree(std::string& out, Object& object, Filter filter, std::size_t depth = 0,
               std::span<const Member* const> rows = {});

}  // namespace qorltst::model
