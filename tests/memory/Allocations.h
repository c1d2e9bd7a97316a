// The memory of this program: allocations are counted, and one or all further ones can fail. Calls of the toolkit are
// apart: its memory is its own.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qorltst::testing {

/// How often memory was asked for outside the toolkit since the last arming or clearing.
[[nodiscard]] std::size_t AllocationsOfTheComponent() noexcept;

/// Bytes that are held now, by whomever.
[[nodiscard]] std::int64_t BytesHeld() noexcept;

/// While it lives the component's n-th allocation (1 is the next) fails, or all from it on.
class AllocationFault {
 public:
  enum class Extent : std::uint8_t { One, AllFurther };

  AllocationFault(std::size_t n, Extent extent) noexcept;
  ~AllocationFault();
  AllocationFault(const AllocationFault&) = delete;
  AllocationFault& operator=(const AllocationFault&) = delete;

  /// Whether an allocation has failed.
  [[nodiscard]] bool Struck() const noexcept;
};

}  // namespace qorltst::testing
