// One entry of a host log, and how loggers write it on a line.
#pragma once

#include <cstdint>
#include <string>

namespace qorltst::simulator {

struct LogEntry {
  /// The name that the logger was given; empty before that.
  std::u16string application;
  std::int32_t kind = 0;
  std::u16string source;
  std::int32_t number = 0;
  std::u16string message;
  friend bool operator==(const LogEntry&, const LogEntry&) = default;
};

/// "ERROR", "WARNING" or "TRACE"; the number of another kind.
[[nodiscard]] std::string LogKindName(std::int32_t kind);

/// "QorlTST TRACE 1 QorlTST.TstParser.ParseTst: message" in UTF-8, always one line: control characters are shown
/// as "\x0a". A kind without a name is shown as its number, an empty application as "-".
[[nodiscard]] std::string FormatLogEntry(const LogEntry& entry);

}  // namespace qorltst::simulator
