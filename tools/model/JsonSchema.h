// The JSON Schema (draft 7) of what Json.h makes, from the same class tables.
#pragma once

#include "tools/model/Json.h"

namespace qorltst::model {

/// The definitions of all classes that a ticket may hold, under their names, and of the values: "text", "amount",
/// "date", "bytes", "item" (an object of any class). Where everything is shown (`filter.empty`), each property must be
/// there.
[[nodiscard]] Json SchemaDefinitions(Filter filter);

/// A reference to one of them, with an explanation where there is something to say.
[[nodiscard]] Json SchemaReference(std::string_view definition, std::string_view explanation = {});

}  // namespace qorltst::model
