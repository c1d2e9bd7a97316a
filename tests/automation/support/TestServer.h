// The server that the test program is: the component's classes and two of the tests' own.
#pragma once

#include <string>

#include "automation/Com.h"
#include "automation/Library.h"

namespace qorltst::automation::test {

[[nodiscard]] const Library& TestLibrary();

/// The full path of a file that the build put beside the test program.
[[nodiscard]] std::u16string BesideProgram(std::u16string_view file);

/// A path of this machine as a Windows program under Wine reads it.
[[nodiscard]] std::string SourcePath(const std::string& relative);

}  // namespace qorltst::automation::test
