// One overload for each type of property. See ModelDump.h.
#include "tests/support/ModelDump.h"

#include <variant>

#include "frame/ClassDescription.h"
#include "tools/model/ModelWalk.h"

namespace qorltst::testing {
namespace {

std::u16string Ascii(const std::string& text) { return {text.begin(), text.end()}; }

struct ValueText {
  Object& object;

  std::u16string operator()(const StringField& field) const { return field.in(object); }
  std::u16string operator()(const LongField& /*debug id*/) const { return {}; }
  std::u16string operator()(const BooleanField& field) const { return field.in(object) ? u"True" : u""; }
  std::u16string operator()(const DateField& field) const {
    const double days = field.in(object).days;
    return days == 0 ? u"" : Ascii(std::to_string(days));
  }
  std::u16string operator()(const CurrencyField& field) const {
    const std::int64_t units = field.in(object).tenThousandths;
    return units == 0 ? u"" : Ascii(std::to_string(units));
  }
  std::u16string operator()(const ObjectField& /*child*/) const { return {}; }
  std::u16string operator()(const Method& /*method*/) const { return {}; }
};

}  // namespace

ModelDump DumpOf(Object& root) {
  ModelDump dump;
  model::WalkObjects(root, [&dump](const std::string& path, Object& object) {
    for (const Member& row : object.Description().members) {
      if (!std::holds_alternative<ObjectField>(row.access) && !std::holds_alternative<Method>(row.access)) {
        dump[Ascii(path) + u'.' + std::u16string(row.name)] = std::visit(ValueText{object}, row.access);
      }
    }
    return true;
  });
  return dump;
}

std::set<std::u16string> ClassesOf(Object& root) {
  std::set<std::u16string> classes;
  model::WalkObjects(root, [&classes](const std::string& /*path*/, Object& object) {
    classes.emplace(object.Description().name);
    return true;
  });
  return classes;
}

std::set<std::u16string> AbsentObjectsOf(Object& root) {
  std::set<std::u16string> absent;
  model::WalkObjects(root, [&absent](const std::string& /*path*/, Object& object) {
    for (const Member& row : object.Description().members) {
      const auto* const field = std::get_if<ObjectField>(&row.access);
      if (field != nullptr && field->in(object) == nullptr) {
        absent.insert(std::u16string(object.Description().name) + u'.' + std::u16string(row.name));
      }
    }
    return true;
  });
  return absent;
}

bool IsPartOf(const ModelDump& part, const ModelDump& whole, const std::set<std::u16string>& texts,
              std::u16string& path) {
  for (const auto& [name, value] : part) {
    const auto found = whole.find(name);
    const bool known = found != whole.end();
    if (!known || (!found->second.starts_with(value) && !texts.contains(value))) {
      path = name;
      return false;
    }
  }
  return true;
}

}  // namespace qorltst::testing
