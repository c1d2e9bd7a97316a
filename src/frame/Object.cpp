// Counts the living objects; the server may be unloaded when there are none. See Object.h.
#include "frame/Object.h"

#include <atomic>

namespace qorltst {
namespace {

std::atomic<std::int32_t> living{0};

}  // namespace

Object::Object() noexcept { living.fetch_add(1, std::memory_order_relaxed); }

Object::~Object() { living.fetch_sub(1, std::memory_order_relaxed); }

std::int32_t Object::Living() noexcept { return living.load(std::memory_order_relaxed); }

}  // namespace qorltst
