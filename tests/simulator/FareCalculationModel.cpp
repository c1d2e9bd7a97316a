// See FareCalculationModel.h.
#include "FareCalculationModel.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <variant>

#include "frame/Collection.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

class Reader {
 public:
  void Read(Object& object, const std::string& path) {
    for (const Member& member : object.Description().members) {
      const std::string name = path + ToUtf8(member.name);
      std::visit([&](const auto& access) { ReadMember(object, name, access); }, member.access);
    }
  }

  [[nodiscard]] Values TakeValues() { return std::move(values_); }

 private:
  void ReadMember(Object& object, const std::string& name, const StringField& field) {
    if (!field.in(object).empty()) {
      values_[name] = ToUtf8(field.in(object));
    }
  }

  void ReadMember(Object& object, const std::string& name, const BooleanField& field) {
    if (field.in(object)) {
      values_[name] = "True";
    }
  }

  void ReadMember(Object& object, const std::string& name, const ObjectField& field) {
    Object* const child = field.in(object);
    if (auto* const collection = dynamic_cast<Collection*>(child)) {
      ReadItems(*collection, name);
    } else if (child != nullptr) {
      values_[name] = "present";
      Read(*child, name + ".");
    }
  }

  void ReadMember(Object& /*object*/, const std::string& name, const LongField& /*field*/) {
    if (!name.ends_with("ClassDebugID")) {
      throw std::logic_error("a number besides the debug id: " + name);
    }
  }

  template <class Access>
  void ReadMember(Object& /*object*/, const std::string& name, const Access& /*access*/) {
    throw std::logic_error("a kind of property that fare calculations do not have: " + name);
  }

  void ReadItems(const Collection& items, const std::string& name) {
    for (std::int32_t i = 1; i <= items.Count(); ++i) {
      values_[name] = std::to_string(items.Count());
      Read(*items.Item(i), name + "[" + std::to_string(i) + "].");
    }
  }

  Values values_;
};

}  // namespace

Values ValuesOf(Object& object) {
  Reader reader;
  reader.Read(object, {});
  return reader.TakeValues();
}

std::vector<std::string> Differences(const Values& expected, const Values& actual) {
  std::vector<std::string> lines;
  const auto add = [&](char sign, const Values& values, const Values& others) {
    std::vector<Values::value_type> only;
    std::ranges::set_difference(values, others, std::back_inserter(only));
    for (const auto& [path, value] : only) {
      lines.push_back(std::string(1, sign) + " " + path + "=" + value);
    }
  };
  add('-', expected, actual);
  add('+', actual, expected);
  return lines;
}

}  // namespace qorltst::simulator
