// The simulated toolkit of this process, and the log that all its loggers write to.
#pragma once

#include "simulator/SharedLog.h"
#include "toolkit/Toolkit.h"

namespace qorltst::simulator {

/// Lives to the end of the process. Where the environment variable QORL_HOST_LOG names a file, loggers append to
/// that; otherwise they write to `ProcessLog`.
[[nodiscard]] toolkit::Ref<toolkit::Toolkit> ProcessToolkit();

[[nodiscard]] SharedLog& ProcessLog();

}  // namespace qorltst::simulator
