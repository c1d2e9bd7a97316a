// The debug ids of a process's objects.
#pragma once

#include <atomic>
#include <cstdint>

namespace qorltst {

/// Counts 1, 2, 3, ... and never gives an id twice, whichever threads ask.
class modClassIDGenerator {
 public:
  /// A counter that stands at `last`. The component uses one for the whole process, which starts at zero.
  explicit constexpr modClassIDGenerator(std::int32_t last = 0) noexcept : last_(last) {}

  /// The next id. Past 2,147,483,647 it raises the overflow error (6), then and at every later call.
  [[nodiscard]] std::int32_t NextID();

  /// The counter of this process.
  [[nodiscard]] static modClassIDGenerator& OfProcess() noexcept;

 private:
  std::atomic<std::int32_t> last_;
};

}  // namespace qorltst
