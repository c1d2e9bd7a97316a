// Keeps entries in memory, in a log of its own or in one that it shares with other loggers.
#pragma once

#include "simulator/Logger.h"
#include "simulator/SharedLog.h"

namespace qorltst::simulator {

class MemoryLogger final : public Logger {
 public:
  MemoryLogger() : MemoryLogger(toolkit::Make<SharedLog>()) {}

  /// `log` is never absent.
  explicit MemoryLogger(toolkit::Ref<SharedLog> log) : log_(std::move(log)) {}

  [[nodiscard]] const toolkit::Ref<SharedLog>& Log() const noexcept { return log_; }

 private:
  void Keep(LogEntry entry) override { log_->Append(std::move(entry)); }

  toolkit::Ref<SharedLog> log_;
};

}  // namespace qorltst::simulator
