// See JsonSchema.h.
#include "tools/model/JsonSchema.h"

#include "frame/PublicClasses.h"
#include "simulator/Utf.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

Json Explained(const Json& schema, std::u16string_view help) {
  Json explained = {{"description", simulator::ToUtf8(help)}};
  explained.update(schema);
  return explained;
}

/// What each type of property looks like; nothing for a method.
struct FieldSchema {
  Json operator()(const StringField& /*field*/) const { return SchemaReference("text"); }
  Json operator()(const LongField& /*field*/) const { return {{"type", "integer"}}; }
  Json operator()(const BooleanField& /*field*/) const { return {{"type", "boolean"}}; }
  Json operator()(const DateField& /*field*/) const { return SchemaReference("date"); }
  Json operator()(const CurrencyField& /*field*/) const { return SchemaReference("amount"); }
  Json operator()(const Method& /*method*/) const { return nullptr; }
  Json operator()(const ObjectField& field) const {
    const ClassDescription* const type = field.type();
    // A property of any type holds a collection unless a program put something else there.
    if (type == nullptr || type == &Collection::kDescription) {
      return {{"type", "array"}, {"items", SchemaReference("item")}};
    }
    return {{"anyOf", {{{"type", "null"}}, SchemaReference(simulator::ToUtf8(type->name))}}};
  }
};

Json ClassSchema(const ClassDescription& description, Filter filter) {
  Json properties = {{kClassName, {{"const", simulator::ToUtf8(description.name)}}}};
  Json required = {kClassName};
  for (const Member& row : description.members) {
    const Json schema = std::visit(FieldSchema{}, row.access);
    if (schema.is_null()) {
      continue;
    }
    properties[NameText(row.name)] = Explained(schema, row.help);
    const bool isNumber = std::holds_alternative<LongField>(row.access);
    if (isNumber ? filter.numbers : filter.empty) {
      required.push_back(NameText(row.name));
    }
  }
  return Explained({{"type", "object"},
                    {"properties", std::move(properties)},
                    {"required", std::move(required)},
                    {"additionalProperties", false}},
                   description.help);
}

/// {"member": "<hexadecimal digits>"}
Json HexadecimalSchema(const char* member, const char* pattern) {
  return {{"type", "object"},
          {"properties", {{member, {{"type", "string"}, {"pattern", pattern}}}}},
          {"required", {member}},
          {"additionalProperties", false}};
}

Json StringOr(Json other, const char* explanation) {
  return {{"description", explanation}, {"anyOf", {{{"type", "string"}}, std::move(other)}}};
}

}  // namespace

Json SchemaReference(std::string_view definition, std::string_view explanation) {
  Json reference = {{"$ref", "#/definitions/" + std::string(definition)}};
  if (explanation.empty()) {
    return reference;
  }
  // Beside a reference, other keywords would not count.
  return {{"description", explanation}, {"allOf", {std::move(reference)}}};
}

Json SchemaDefinitions(Filter filter) {
  Json definitions = {
      {"text", StringOr(HexadecimalSchema("utf16", "^([0-9a-f]{4})+$"),
                        "A text; where it holds half a surrogate pair, its UTF-16 units in hexadecimal digits.")},
      {"bytes", StringOr(HexadecimalSchema("bytes", "^([0-9a-f]{2})+$"),
                         "A name; where it is not UTF-8, its bytes in hexadecimal digits.")},
      {"amount",
       {{"description", "An exact amount with four decimals."},
        {"type", "string"},
        {"pattern", "^-?[0-9]+\\.[0-9]{4}$"}}},
      {"date",
       {{"description",
         "A day, with a time where it has one; null where none is set. Outside the years 1 to 9999 the days since "
         "30 December 1899."},
        {"type", {"string", "number", "null"}},
        {"pattern", "^[0-9]{4}-[0-9]{2}-[0-9]{2}(T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3})?$"}}}};
  Json items = Json::array();
  for (const ClassDescription* const description : PublicClasses()) {
    if (HasContent(*description)) {
      const std::string name = simulator::ToUtf8(description->name);
      definitions[name] = ClassSchema(*description, filter);
      items.push_back(SchemaReference(name));
    }
  }
  definitions["item"] = {{"description", "An object; its className says which."}, {"anyOf", std::move(items)}};
  return definitions;
}

}  // namespace qorltst::model
