// What the simulator's loggers share: they put entries together and differ in where they put them.
#pragma once

#include <string>

#include "simulator/LogEntry.h"
#include "toolkit/HostLogger.h"

namespace qorltst::simulator {

class Logger : public toolkit::HostLogger {
 public:
  void SetApplication(std::u16string_view name) final { application_ = name; }

  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) final {
    Keep({application_, kind, std::u16string(source), number, std::u16string(message)});
  }

  [[nodiscard]] const std::u16string& Application() const noexcept { return application_; }

 private:
  /// Puts the entry where this logger's entries go.
  virtual void Keep(LogEntry entry) = 0;

  std::u16string application_;
};

}  // namespace qorltst::simulator
