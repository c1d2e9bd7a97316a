// Any object of the model as JSON, by its class's own table. The schema of what this makes is JsonSchema.h.
#pragma once

#include <nlohmann/json.hpp>
#include <span>

#include "tools/model/Property.h"

namespace qorltst::model {

/// JSON whose members stand in the order in which they were put in.
using Json = nlohmann::ordered_json;

/// The member of every object that names its class. Members of the model start with a capital letter, those of the
/// tools with a small one.
inline constexpr const char* kClassName = "className";

/// The object with the properties that pass the filter, or with `rows` only these. Nothing is lost: a text is a string,
/// or
/// {"utf16": "0041d800"} where it holds half a surrogate pair, which no string of JSON can; an amount is a text of
/// exact decimals, a date an ISO text (days since 30 December 1899 where the calendar has none) or null where none is
/// set, an absent object null, a collection an array.
[[nodiscard]] Json ToJson(Object& object, Filter filter, std::span<const Member* const> rows = {});

/// A text as above.
[[nodiscard]] Json TextJson(std::u16string_view text);

/// A text that is meant to be UTF-8, such as a file name: a string, or {"bytes": "66ff"} where it is not.
[[nodiscard]] Json BytesJson(std::string_view bytes);

}  // namespace qorltst::model
