// The parser's dispatch table: which builder takes which kind of top-level node.
#pragma once

#include "frame/Harvest.h"
#include "frame/TST.h"
#include "frame/TstParser.h"
#include "toolkit/ParseNode.h"

namespace qorltst {

/// One kind of top-level node and what is done with it.
struct DispatchRow {
  toolkit::NodeTypeId type;
  void (*build)(TstParser& parser, toolkit::ParseNode& node, TST& tst, Harvest& harvest);
};

/// The row for this type; null for a type that is skipped.
[[nodiscard]] const DispatchRow* FindBuilder(toolkit::NodeTypeId type) noexcept;

}  // namespace qorltst
