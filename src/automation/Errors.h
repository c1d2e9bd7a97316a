// The one place where failures cross the edge: exceptions become HRESULTs with error information, failures of
// foreign objects become runtime errors.
#pragma once

#include <utility>

#include "automation/Com.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation {

/// A failure that is told by its HRESULT alone: a wrong argument, an unknown name.
struct DispatchFailure {
  HRESULT code = E_FAIL;
  /// The argument at fault, as its place in the caller's array; for type errors only.
  UINT argument = 0;
};

/// The HRESULT of a runtime error: numbers of automation errors stay, the runtime's own get its facility.
[[nodiscard]] HRESULT HResultOf(std::int32_t number) noexcept;

/// What the exception being handled is to a caller of a virtual table: an HRESULT, with the thread's error
/// information set where there is more to say. Call it inside a catch block only.
[[nodiscard]] HRESULT Translate(const IID& interfaceId) noexcept;

/// The same for a caller of `Invoke`: fills `info`, where the caller wants it, and `argument` (both may be null).
[[nodiscard]] HRESULT TranslateForInvoke(EXCEPINFO* info, UINT* argument) noexcept;

/// Runs the body of an entry point; whatever it throws is translated.
template <class Body>
[[nodiscard]] HRESULT AtEdge(const IID& interfaceId, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return Translate(interfaceId);
  }
}

/// For entry points that promise no error information.
template <class Body>
[[nodiscard]] HRESULT AtEdge(Body&& body) noexcept {
  return AtEdge(GUID_NULL, std::forward<Body>(body));
}

/// The runtime's number for the HRESULT of a failed call; an HRESULT without one keeps its own value.
[[nodiscard]] std::int32_t NumberOf(HRESULT code) noexcept;

/// Raises the runtime error of a failed system call.
void RaiseIfFailed(HRESULT code);

/// Raises the runtime error that a foreign object reported through `Invoke`. Frees what `info` holds.
[[noreturn]] void RaiseInvokeFailure(HRESULT code, EXCEPINFO& info);

}  // namespace qorltst::automation
