// See modClassIDGenerator.h.
#include "frame/modClassIDGenerator.h"

#include <limits>

#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

constinit modClassIDGenerator ofProcess;

}  // namespace

std::int32_t modClassIDGenerator::NextID() {
  std::int32_t last = last_.load(std::memory_order_relaxed);
  do {
    if (last == std::numeric_limits<std::int32_t>::max()) {
      throw toolkit::RuntimeError(toolkit::kOverflow);
    }
  } while (!last_.compare_exchange_weak(last, last + 1, std::memory_order_relaxed));
  return last + 1;
}

modClassIDGenerator& modClassIDGenerator::OfProcess() noexcept { return ofProcess; }

}  // namespace qorltst
