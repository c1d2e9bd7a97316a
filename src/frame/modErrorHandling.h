// How the component raises its errors, and the guards and traps that hand a failure on.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "toolkit/RuntimeError.h"

namespace qorltst {

using toolkit::RuntimeError;

/// The number that public methods and guarded accessors raise.
inline constexpr std::int32_t kUnexpectedError = 9999;

namespace modErrorHandling {

/// The message text for a number. The component carries no message table, so every number has the same text.
[[nodiscard]] std::u16string GetErrorMessage(std::int32_t number);

/// Raises the automation error 0x80040000 + `number` under `source`. A number that the signed 32-bit addition
/// cannot take, such as one that carries that base already, raises the runtime's overflow error (6) instead.
[[noreturn]] void RaiseError(std::int32_t number, std::u16string_view source);

}  // namespace modErrorHandling

/// The runtime error that the current thread is handling. Only `EtLog` reads it.
class PendingError {
 public:
  /// `error` is pending until the end of this scope; it must live as long.
  explicit PendingError(const RuntimeError& error) noexcept;
  ~PendingError();
  PendingError(const PendingError&) = delete;
  PendingError& operator=(const PendingError&) = delete;

  /// The pending error, or nothing.
  [[nodiscard]] static const RuntimeError* Current() noexcept;

 private:
  const RuntimeError* outer_;
};

/// Runs `body`; a failure in it raises 9999 under the guard's text. An empty text is no guard: the failure
/// passes as it is.
template <class Body>
decltype(auto) Guarded(std::u16string_view guard, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    if (guard.empty()) {
      throw;
    }
    modErrorHandling::RaiseError(kUnexpectedError, guard);
  }
}

}  // namespace qorltst
