// Classes as their tables describe them. See Summary.h.
#include <algorithm>
#include <set>

#include "frame/PublicClasses.h"
#include "simulator/Utf.h"
#include "tools/model/NearNames.h"
#include "tools/model/Selection.h"
#include "tools/model/ValueText.h"
#include "tools/shell/Summary.h"

namespace qorltst::shell {
namespace {

using model::NameText;

struct TypeText {
  std::string operator()(const StringField& /*field*/) const { return "text"; }
  std::string operator()(const LongField& /*field*/) const { return "number"; }
  std::string operator()(const BooleanField& /*field*/) const { return "yes or no"; }
  std::string operator()(const DateField& /*field*/) const { return "date"; }
  std::string operator()(const CurrencyField& /*field*/) const { return "amount"; }
  std::string operator()(const Method& method) const { return method.property ? "property" : "method"; }
  std::string operator()(const ObjectField& field) const {
    const ClassDescription* const type = field.type();
    return type != nullptr ? NameText(type->name) : "object";
  }
};

struct Row {
  std::string name;
  std::string type;
  std::string help;
};

/// The rows with their first two columns as wide as what stands in them.
void AppendTable(std::string& out, std::vector<Row> rows) {
  std::size_t name = 0;
  std::size_t type = 0;
  for (const Row& row : rows) {
    name = std::max(name, row.name.size());
    type = std::max(type, row.type.size());
  }
  for (Row& row : rows) {
    row.name.resize(name, ' ');
    row.type.resize(type, ' ');
    out += "  " + row.name + (type > 0 ? "  " : "") + row.type + "  " + row.help + '\n';
  }
}

}  // namespace

void AppendClasses(std::string& out) {
  std::vector<Row> rows;
  for (const ClassDescription* const description : PublicClasses()) {
    rows.push_back({NameText(description->name), {}, simulator::ToUtf8(description->help)});
  }
  AppendTable(out, std::move(rows));
}

void AppendClass(std::string& out, std::string_view name) {
  const std::u16string wanted = simulator::ToUtf16(name);
  std::set<std::u16string_view> known;
  for (const ClassDescription* const description : PublicClasses()) {
    known.insert(description->name);
    if (CompareNames(description->name, wanted) != 0) {
      continue;
    }
    out += NameText(description->name) + ": " + simulator::ToUtf8(description->help) + '\n';
    std::vector<Row> rows;
    for (const Member& row : description->members) {
      rows.push_back({NameText(row.name), std::visit(TypeText{}, row.access), simulator::ToUtf8(row.help)});
    }
    AppendTable(out, std::move(rows));
    return;
  }
  throw model::UnknownName("there is no class " + model::PrintableText(name) + model::DidYouMean(wanted, known));
}

}  // namespace qorltst::shell
