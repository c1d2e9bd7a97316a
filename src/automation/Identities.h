// The component's library and its frozen identifiers. The class tables themselves are in frame/PublicClasses.h.
#pragma once

#include "automation/Library.h"

namespace qorltst::automation {

/// The library QorlTST.
[[nodiscard]] const Library& ComponentLibrary() noexcept;

}  // namespace qorltst::automation
