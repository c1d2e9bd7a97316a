// The library that a module serves, and what its class factories need. Each module defines one.
#pragma once

#include "automation/Library.h"
#include "toolkit/Toolkit.h"

namespace qorltst::automation {

struct Server {
  const Library& library;
  /// The toolkit that a new object gets, for the thread that asks.
  Ref<toolkit::Toolkit> (*toolkit)();
};

/// Defined by each module that links this library.
[[nodiscard]] const Server& ThisServer() noexcept;

}  // namespace qorltst::automation
