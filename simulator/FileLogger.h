// Appends entries to a file, one readable line each.
#pragma once

#include <filesystem>

#include "simulator/Logger.h"

namespace qorltst::simulator {

/// Holds the file open only while it writes: every object of the component has a logger, and together they would
/// run out of open files. Raises the runtime error 75 from `Write` when the file cannot be written.
class FileLogger final : public Logger {
 public:
  explicit FileLogger(std::filesystem::path file) : file_(std::move(file)) {}

 private:
  void Keep(LogEntry entry) override;

  std::filesystem::path file_;
};

}  // namespace qorltst::simulator
