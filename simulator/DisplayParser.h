// Reads the text of a display, one screen or several stitched ones, into top-level nodes.
#pragma once

#include <string_view>
#include <vector>

#include "simulator/TreeNode.h"

namespace qorltst::simulator {

/// The nodes of all lines in display order, siblings of each other. Lines that no kind recognises are left out up
/// to the header, and become `kUnknownLine` nodes after it. Raises a `DisplayError` when the text is damaged.
[[nodiscard]] std::vector<Ref<TreeNode>> ParseDisplay(std::u16string_view text);

}  // namespace qorltst::simulator
