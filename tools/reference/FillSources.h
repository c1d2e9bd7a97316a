// Which nodes fill which property, found out by letting the component fill its model from probing trees.
#pragma once

#include <compare>
#include <map>
#include <optional>
#include <set>

#include "tools/reference/ProbeTree.h"
#include "tools/reference/Snapshot.h"

namespace qorltst::reference {

/// A node that fills a property: its path below the object's own node. That one itself is the empty path; where nothing
/// but its type counts, it is named.
struct Source {
  Path path;
  Origin origin = Origin::Text;
  /// Where the node counts only behind another one: the type of that, or `kUnknownType` where any one will do.
  std::optional<NodeTypeId> behind = std::nullopt;
  // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 takes the comparison with 0 for one with a pointer
  auto operator<=>(const Source&) const = default;
};

struct FillSources {
  std::map<Property, std::set<Source>> properties;
  /// The nodes that an object of a class is made from, from the top of the display.
  std::map<const ClassDescription*, std::set<Path>> classes;
};

[[nodiscard]] FillSources FindFillSources();

}  // namespace qorltst::reference
