// The program's operator new and delete. See Allocations.h.
#include "tests/memory/Allocations.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

#include "tests/support/FaultingToolkit.h"

namespace qorltst::testing {
namespace {

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

std::atomic<std::int64_t> bytesHeld{0};
std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> firstFailing{kNever};
std::atomic<std::size_t> lastFailing{kNever};
std::atomic<bool> struck{false};

bool MustFail() noexcept {
  if (InsideToolkit()) {
    return false;
  }
  const std::size_t number = allocations.fetch_add(1, std::memory_order_relaxed) + 1;
  if (number < firstFailing.load(std::memory_order_relaxed) || number > lastFailing.load(std::memory_order_relaxed)) {
    return false;
  }
  struck.store(true, std::memory_order_relaxed);
  return true;
}

/// In front of what is handed out stands its size, in as many bytes as keep the rest aligned.
constexpr std::size_t kSizeField = alignof(std::max_align_t);

void* Allocate(std::size_t size) {
  auto* const memory = MustFail() ? nullptr : static_cast<std::byte*>(std::malloc(kSizeField + size));
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  new (memory) std::size_t(size);
  bytesHeld.fetch_add(static_cast<std::int64_t>(size), std::memory_order_relaxed);
  return memory + kSizeField;
}

void Free(void* memory) noexcept {
  if (memory != nullptr) {
    std::byte* const start = static_cast<std::byte*>(memory) - kSizeField;
    bytesHeld.fetch_sub(static_cast<std::int64_t>(*reinterpret_cast<std::size_t*>(start)), std::memory_order_relaxed);
    std::free(start);
  }
}

}  // namespace

std::size_t AllocationsOfTheComponent() noexcept { return allocations.load(); }

std::int64_t BytesHeld() noexcept { return bytesHeld.load(); }

AllocationFault::AllocationFault(std::size_t n, Extent extent) noexcept {
  allocations = 0;
  struck = false;
  lastFailing = extent == Extent::One ? n : kNever - 1;
  firstFailing = n;
}

AllocationFault::~AllocationFault() {
  firstFailing = kNever;
  lastFailing = kNever;
}

bool AllocationFault::Struck() const noexcept { return struck.load(); }

}  // namespace qorltst::testing

void* operator new(std::size_t size) { return qorltst::testing::Allocate(size); }
void* operator new[](std::size_t size) { return qorltst::testing::Allocate(size); }
void operator delete(void* memory) noexcept { qorltst::testing::Free(memory); }
void operator delete[](void* memory) noexcept { qorltst::testing::Free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { qorltst::testing::Free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { qorltst::testing::Free(memory); }
