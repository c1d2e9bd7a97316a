// Raising, and the pending error of a thread. See modErrorHandling.h.
#include "frame/modErrorHandling.h"

#include <limits>

namespace qorltst {
namespace {

/// The base of automation errors, 0x80040000 as a signed number.
constexpr std::int64_t kAutomationErrorBase = -2147221504;

/// No destructor: a library that is loaded and unloaded must leave nothing behind with its threads.
thread_local const RuntimeError* pending = nullptr;

}  // namespace

std::u16string modErrorHandling::GetErrorMessage(std::int32_t /*number*/) { return u"An unknown error has occurred!"; }

void modErrorHandling::RaiseError(std::int32_t number, std::u16string_view source) {
  const std::int64_t raised = kAutomationErrorBase + number;
  // The base is negative: a sum can only be too small.
  if (raised < std::numeric_limits<std::int32_t>::min()) {
    throw RuntimeError(toolkit::kOverflow);
  }
  throw RuntimeError(static_cast<std::int32_t>(raised), source, GetErrorMessage(number));
}

PendingError::PendingError(const RuntimeError& error) noexcept : outer_(std::exchange(pending, &error)) {}

PendingError::~PendingError() { pending = outer_; }

const RuntimeError* PendingError::Current() noexcept { return pending; }

}  // namespace qorltst
