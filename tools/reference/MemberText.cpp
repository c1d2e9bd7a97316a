// See MemberText.h.
#include "tools/reference/MemberText.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "simulator/Utf.h"

namespace qorltst::reference {
namespace {

using simulator::ToUtf8;

struct TypeName {
  ValueType type;
  const char* name;
};

constexpr std::array kTypeNames{
    TypeName{ValueType::Nothing, "no result"},     TypeName{ValueType::Long, "Long"},
    TypeName{ValueType::String, "String"},         TypeName{ValueType::Object, "object"},
    TypeName{ValueType::Enumerator, "enumerator"},
};

std::string NameOfType(ValueType type) {
  const auto* const found = std::ranges::find(kTypeNames, type, &TypeName::type);
  if (found == kTypeNames.end()) {
    throw std::invalid_argument("no member has a result of this type yet");
  }
  return found->name;
}

struct TypeText {
  std::string operator()(const StringField& /*field*/) const { return "String"; }
  std::string operator()(const LongField& /*field*/) const { return "Long"; }
  std::string operator()(const BooleanField& /*field*/) const { return "Boolean"; }
  std::string operator()(const DateField& /*field*/) const { return "Date"; }
  std::string operator()(const CurrencyField& /*field*/) const { return "Currency"; }
  std::string operator()(const ObjectField& field) const {
    return field.items != nullptr ? "collection of " + LinkTo(*field.items()) : LinkTo(*field.type());
  }
  std::string operator()(const Method& method) const { return NameOfType(method.result); }
};

}  // namespace

std::string SignatureOf(const Member& row) {
  const auto* const method = std::get_if<Method>(&row.access);
  if (method == nullptr || method->parameters.empty()) {
    return ToUtf8(row.name);
  }
  std::string parameters;
  for (const Parameter& parameter : method->parameters) {
    const std::string name = ToUtf8(parameter.name);
    parameters += (parameters.empty() ? "" : ", ") + (parameter.optional ? "[" + name + "]" : name);
  }
  return ToUtf8(row.name) + "(" + parameters + ")";
}

std::string TypeOf(const Member& row) {
  return std::visit(TypeText{}, row.access) + (row.put.call != nullptr ? ", may be set" : "");
}

std::string LinkTo(const ClassDescription& description) {
  const std::string name = ToUtf8(description.name);
  std::u16string anchor(description.name);
  std::ranges::transform(anchor, anchor.begin(), &FoldCase);
  return "[" + name + "](#" + ToUtf8(anchor) + ")";
}

bool UsuallyFilled(const Member& row) {
  return !std::holds_alternative<Method>(row.access) && !std::holds_alternative<LongField>(row.access) &&
         !std::holds_alternative<ObjectField>(row.access);
}

}  // namespace qorltst::reference
