// What the user may be about to write.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/shell/Shell.h"

namespace qorltst::shell {

/// What may stand in the place of the last word of the line, which may be empty, in alphabetical order: commands, the
/// host's entries, paths as far as the ticket has them, classes, files.
[[nodiscard]] std::vector<std::string> Complete(const Shell& shell, std::string_view line);

/// What all of them start with but for the case of letters, written as in the first of them.
[[nodiscard]] std::string CommonStart(const std::vector<std::string>& words);

}  // namespace qorltst::shell
