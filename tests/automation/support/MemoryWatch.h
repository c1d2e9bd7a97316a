// What is in use at the moment: objects, holds, and what came from the system's task memory (strings, arrays).
#pragma once

#include <ostream>

namespace qorltst::automation::test {

struct InUse {
  int objects = 0;
  int holds = 0;
  int fakes = 0;
  int blocks = 0;

  friend bool operator==(const InUse&, const InUse&) = default;
};

void PrintTo(const InUse& inUse, std::ostream* out);

/// Starts to count blocks of task memory when it is called first; strings that the system keeps for later are not kept
/// from then on.
[[nodiscard]] InUse CountInUse();

}  // namespace qorltst::automation::test
