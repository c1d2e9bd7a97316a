// The names of the toolkit's node types, taken from their enumeration itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/NodeTypeId.h"

namespace qorltst::reference {

/// Every node type that has a name, in the order of the numbers.
[[nodiscard]] const std::vector<toolkit::NodeTypeId>& NamedNodeTypes();

/// The name of a node type; its number where it has none.
[[nodiscard]] std::string NameOf(toolkit::NodeTypeId type);

}  // namespace qorltst::reference
