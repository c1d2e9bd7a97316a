// The displays of a session file, one after another. A file may hold more of them than memory does.
#pragma once

#include <exception>
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

  /// The next display; nothing at the end. Raises `simulator::RecordingError`, and goes on behind the damage then.
  [[nodiscard]] std::optional<Display> Next();

 private:
  /// The next command, from the look ahead or from the file.
  [[nodiscard]] std::optional<simulator::Exchange> Take();
  /// Adds the recorded "MD" that follows.
  void AddFurtherScreens(simulator::Recording& recording);
  [[noreturn]] void Fail(std::size_t line, const std::string& reason) const;

  std::string name_;
  simulator::RecordingReader reader_;
  /// What was read ahead: a command, or the failure to read it.
  std::optional<simulator::Exchange> ahead_;
  std::exception_ptr failure_;
};

}  // namespace qorltst::tstdump
