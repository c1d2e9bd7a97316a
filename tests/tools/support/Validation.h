// Checks JSON against a JSON Schema with a library's validator.
#pragma once

#include <string>

namespace qorltst::testing {

/// What is wrong with the document, a line for each finding; empty where it fits the schema. Both are JSON texts.
[[nodiscard]] std::string Violations(const std::string& schema, const std::string& document);

}  // namespace qorltst::testing
