// One fill of a ticket from a probing tree, and what such fills tell of the node types at a place.
#pragma once

#include <vector>

#include "tools/reference/ProbeTree.h"
#include "tools/reference/Snapshot.h"

namespace qorltst::reference {

struct ProbeRun {
  Snapshot snapshot;
  ProbeNotes notes;
};

/// Fills a new ticket. A tree that lacks a node which a fill insists on sets nothing: then what was set before counts.
[[nodiscard]] ProbeRun Fill(const ProbePlan& plan, const Snapshot& before);

/// The types below the end of the path that make a difference; only the unknown one where any type does the same.
/// `run` is the fill from this path.
[[nodiscard]] std::vector<NodeTypeId> TypesBelow(const Path& path, const ProbeRun& run);

/// The path with one node more.
[[nodiscard]] Path Extended(Path path, NodeTypeId type);

}  // namespace qorltst::reference
