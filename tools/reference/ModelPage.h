// The page that lists every class and every member, as Markdown.
#pragma once

#include <ostream>

#include "tools/reference/FillSources.h"
#include "tools/reference/ModelTree.h"

namespace qorltst::reference {

void WriteModelPage(std::ostream& out, const ModelNode& tree, const FillSources& sources);

}  // namespace qorltst::reference
