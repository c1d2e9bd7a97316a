// A type library as text, one line for each thing that a client can depend on.
#pragma once

#include <string>

#include "automation/Com.h"

namespace qorltst::automation::test {

[[nodiscard]] std::string DumpTypeLibrary(ITypeLib& library);

}  // namespace qorltst::automation::test
