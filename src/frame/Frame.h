// What every object of the component has besides its own properties: a debug id and an event log.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "frame/EtLog.h"
#include "frame/Trace.h"
#include "frame/modErrorHandling.h"

namespace qorltst {

/// Takes the next debug id, then makes the event log; what an owner creates after that takes later ids.
class Frame {
 public:
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  [[nodiscard]] std::int32_t ClassDebugID() const noexcept { return classDebugId_; }

 protected:
  explicit Frame(toolkit::Toolkit& toolkit);
  ~Frame() = default;

  [[nodiscard]] EtLog& Log() noexcept { return log_; }
  [[nodiscard]] toolkit::Toolkit& Toolkit() const noexcept { return log_.Toolkit(); }

  /// Writes a line of a procedure's texts; an absent line is not written.
  void Trace(const TraceLine& line) noexcept;

  /// Runs an internal operation: its begin line, its body under the error trap, its end line. A failure raises
  /// the pending error's number and source once more (see `RaiseError`). Gives what the body gives.
  template <class Body>
  auto Traced(const TraceTexts& texts, Body&& body) {
    Trace(texts.begin);
    if constexpr (std::is_void_v<decltype(body())>) {
      Trapped(texts.errorEnd, std::forward<Body>(body));
      Trace(texts.end);
    } else {
      auto result = Trapped(texts.errorEnd, std::forward<Body>(body));
      Trace(texts.end);
      return result;
    }
  }

  /// The error trap alone, for operations whose lines stand elsewhere.
  template <class Body>
  decltype(auto) Trapped(const TraceLine& errorEnd, Body&& body) {
    try {
      return std::forward<Body>(body)();
    } catch (...) {
      HandleError(errorEnd);
    }
  }

 private:
  [[noreturn]] void HandleError(const TraceLine& errorEnd);

  std::int32_t classDebugId_;
  EtLog log_;
};

}  // namespace qorltst
