// The program between its command line and its exit code; main.cpp gives it the process's streams.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

#include "tools/tstdump/ExitCode.h"

namespace qorltst::tstdump {

struct Streams {
  std::istream& in;
  std::ostream& out;
  /// Messages, a line each.
  std::ostream& messages;
  /// Where progress is shown; absent where nobody would see it.
  std::ostream* terminal = nullptr;
};

/// `arguments` are those behind the program's name.
[[nodiscard]] ExitCode Run(std::vector<std::string> arguments, const Streams& streams);

}  // namespace qorltst::tstdump
