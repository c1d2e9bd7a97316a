// Writes a library's interface description from its class tables; the type library and the client header are made
// from it. Runs on the building machine (tools/idl).
#pragma once

#include <ostream>

#include "automation/Library.h"

namespace qorltst::automation {

/// Writes the description of every class of a typed library. Throws `std::invalid_argument` where a table asks for
/// something that a dual interface cannot have.
void WriteIdl(std::ostream& out, const Library& library);

}  // namespace qorltst::automation
