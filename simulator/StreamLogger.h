// Writes entries to a stream, one readable line each.
#pragma once

#include <ostream>

#include "simulator/Logger.h"

namespace qorltst::simulator {

class StreamLogger final : public Logger {
 public:
  /// The stream must outlive the logger.
  explicit StreamLogger(std::ostream& stream) : stream_(stream) {}

 private:
  void Keep(LogEntry entry) override { stream_ << FormatLogEntry(entry) + '\n'; }

  std::ostream& stream_;
};

}  // namespace qorltst::simulator
