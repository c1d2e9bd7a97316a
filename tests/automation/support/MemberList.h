// The public classes and their members as a file for scripts.
#pragma once

#include <string>

namespace qorltst::automation::test {

/// Writes a line for each class that scripts can create: its name, then its members' names, blanks between.
/// Members that scripts cannot name are left out.
[[nodiscard]] bool WriteMemberList(const std::string& path);

}  // namespace qorltst::automation::test
