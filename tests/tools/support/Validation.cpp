// See Validation.h.
#include "tests/tools/support/Validation.h"

#include <nlohmann/json.hpp>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

namespace qorltst::testing {

std::string Violations(const std::string& schema, const std::string& document) {
  using Adapter = valijson::adapters::NlohmannJsonAdapter;
  const nlohmann::json schemaJson = nlohmann::json::parse(schema);
  const nlohmann::json documentJson = nlohmann::json::parse(document);
  valijson::Schema rules;
  valijson::SchemaParser(valijson::SchemaParser::kDraft7).populateSchema(Adapter(schemaJson), rules);
  valijson::Validator validator;
  valijson::ValidationResults results;
  if (validator.validate(rules, Adapter(documentJson), &results)) {
    return {};
  }
  std::string findings;
  valijson::ValidationResults::Error error;
  while (results.popError(error)) {
    for (const std::string& part : error.context) {
      findings += part;
    }
    findings += ": " + error.description + '\n';
  }
  return findings.empty() ? "does not fit\n" : findings;
}

}  // namespace qorltst::testing
