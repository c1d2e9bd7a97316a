// The one ordered log that many loggers write to.
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "simulator/LogEntry.h"
#include "toolkit/RefCounted.h"

namespace qorltst::simulator {

/// Entries are in the order of their arrival. May be used from several threads.
class SharedLog final : public toolkit::RefCounted {
 public:
  void Append(LogEntry entry) {
    const std::scoped_lock lock(mutex_);
    entries_.push_back(std::move(entry));
  }

  /// A copy of all entries so far.
  [[nodiscard]] std::vector<LogEntry> Entries() const {
    const std::scoped_lock lock(mutex_);
    return entries_;
  }

  [[nodiscard]] std::size_t Count() const {
    const std::scoped_lock lock(mutex_);
    return entries_.size();
  }

  void Clear() {
    const std::scoped_lock lock(mutex_);
    entries_.clear();
  }

 private:
  mutable std::mutex mutex_;
  std::vector<LogEntry> entries_;
};

}  // namespace qorltst::simulator
