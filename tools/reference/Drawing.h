// The picture of the object model, as SVG.
#pragma once

#include <ostream>

#include "tools/reference/ModelTree.h"

namespace qorltst::reference {

/// A box for each node, its children to its right. Legible on a light and on a dark page.
void DrawModel(std::ostream& out, const ModelNode& tree);

}  // namespace qorltst::reference
