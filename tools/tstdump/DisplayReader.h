// The displays of a session file, one after another. A file may hold more of them than memory does.
#pragma once

#include <optional>
#include <string>

#include "simulator/RecordingReader.h"

namespace qorltst::tstdump {

/// A command of the file, and the session that answers it.
struct Display {
  std::string source;
  std::size_t line = 0;
  std::u16string command;
  simulator::Recording recording;
};

/// Every command of a file is a display of its own; a recorded "MD" belongs to the display before it. A file without a
/// command is one display, as if it answered "TQT".
class DisplayReader {
 public:
  /// The stream must outlive the reader. `name` stands for it in messages.
  DisplayReader(std::istream& stream, std::string name);

  /// The next display, as soon as the command after it has come in; nothing at the end. Raises
  /// `simulator::RecordingError`, and goes on behind the damage then.
  [[nodiscard]] std::optional<Display> Next();

 private:
  std::string name_;
  simulator::RecordingReader reader_;
};

}  // namespace qorltst::tstdump
