// The simulated toolkit as a library of automation classes, and its frozen identifiers.
#pragma once

#include "automation/Library.h"

namespace qorltst::simulator {

/// The library QorlHostToolkit, reached by names alone.
[[nodiscard]] const automation::Library& ToolkitLibrary() noexcept;

}  // namespace qorltst::simulator
