// What the program's exit code says. The manual page and `--help` name the same numbers.
#pragma once

namespace qorltst::tstdump {

enum class ExitCode : int {
  AllGood = 0,
  /// Some display was retrieved but is no ticket, or could not be parsed, or something failed while it was.
  SomeNotParsed = 1,
  Usage = 2,
  /// Some file, or a part of one, could not be read. Counts for more than a display that is no ticket.
  SomeUnreadable = 3,
  /// The output could not be written; the program ended there.
  NotWritten = 4,
};

}  // namespace qorltst::tstdump
