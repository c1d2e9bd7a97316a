// How the reference writes a member: its name with its parameters, and its type.
#pragma once

#include <string>

#include "frame/ClassDescription.h"

namespace qorltst::reference {

/// "RetrieveCurrentTst(objSession)"; what may be left out stands in brackets.
[[nodiscard]] std::string SignatureOf(const Member& row);

/// "String", "[Fare](#fare)", "collection of [Itinerary](#itinerary)", "String, may be set".
[[nodiscard]] std::string TypeOf(const Member& row);

/// The class with a link to its section.
[[nodiscard]] std::string LinkTo(const ClassDescription& description);

/// Whether a retrieval could fill it: methods and debug ids are not filled, objects are by their own classes.
[[nodiscard]] bool UsuallyFilled(const Member& row);

}  // namespace qorltst::reference
