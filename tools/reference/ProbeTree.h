// Parse trees that find out which nodes a fill reads: each holds the nodes of one path and notes what it is asked.
#pragma once

#include <set>
#include <vector>

#include "toolkit/Toolkit.h"

namespace qorltst::reference {

using toolkit::NodeTypeId;

/// The types of the nodes from the top of a display down to one node.
using Path = std::vector<NodeTypeId>;

/// A type that no fill knows.
inline constexpr NodeTypeId kUnknownType = static_cast<NodeTypeId>(-1);

/// What the nodes answer, so that a value tells where it comes from.
inline constexpr std::u16string_view kProbeText = u"1";
inline constexpr std::u16string_view kProbeErrorText = u"2";
inline constexpr std::u16string_view kProbeBuffer = u"3";
inline constexpr double kProbeDate = 1;

/// What the nodes in front answer: something, but nothing that counts.
inline constexpr std::u16string_view kAsideText = u"4";

/// One tree: a path, and at its end some children. In front of the path's last node stand nodes of the types `inFront`,
/// with nothing below them; one of an unknown type stands in front of each node of the path.
struct ProbePlan {
  Path path;
  std::vector<NodeTypeId> children = {};
  std::vector<NodeTypeId> inFront = {};
};

/// What was asked of the node at the end of the path, and of its children.
struct ProbeNotes {
  bool childrenWalked = false;
  std::set<NodeTypeId> typesSought;
  std::set<NodeTypeId> typesRead;
  std::set<NodeTypeId> contentsRead;
};

/// A toolkit whose parsers have read the planned tree and whose loggers keep nothing. Both referents outlive it.
[[nodiscard]] toolkit::Ref<toolkit::Toolkit> MakeProbeToolkit(const ProbePlan& plan, ProbeNotes& notes);

}  // namespace qorltst::reference
