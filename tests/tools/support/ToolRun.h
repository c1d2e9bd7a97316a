// Runs tstdump within the test, with streams of its own.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tools/tstdump/Run.h"

namespace qorltst::testing {

struct ToolRun {
  tstdump::ExitCode code;
  std::string out;
  std::string messages;
};

inline ToolRun RunTool(std::vector<std::string> arguments, const std::string& input = {}) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream messages;
  const tstdump::ExitCode code = tstdump::Run(std::move(arguments), {in, out, messages});
  return {code, out.str(), messages.str()};
}

}  // namespace qorltst::testing
