// What a retrieval asks of a tree: noted while the component runs, then walked without it. The bare walk asks each
// thing once and keeps the answer; nobody can read the same texts with fewer calls.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/cost/Measured.h"
#include "toolkit/ParseNode.h"

namespace qorltst::cost {

/// What one node is asked.
struct Plan {
  bool type = false;
  bool text = false;
  bool errorText = false;
  bool warning = false;
  bool hasChildren = false;
  bool date = false;
  bool buffer = false;
  bool enumerated = false;
  std::vector<std::unique_ptr<Plan>> children;
  std::map<std::int32_t, std::unique_ptr<Plan>> found;
  std::map<std::int32_t, std::unique_ptr<Plan>> items;
};

/// A node that notes in `plan` what it is asked, and counts.
[[nodiscard]] Ref<toolkit::ParseNode> Noted(const Ref<toolkit::ParseNode>& node, Plan& plan, Counts& counts);

/// What the bare walk brings home.
struct Harvested {
  std::vector<std::u16string> texts;
  std::vector<toolkit::NodeTypeId> types;
  std::size_t flags = 0;
  double days = 0;
};

/// Asks what the plan says of this node and those below it.
void WalkBare(toolkit::ParseNode& node, const Plan& plan, Harvested& harvested);

}  // namespace qorltst::cost
