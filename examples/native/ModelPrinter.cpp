// One overload for each type of property. See ModelPrinter.h.
#include "examples/native/ModelPrinter.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <sstream>
#include <variant>

#include "frame/ClassDescription.h"
#include "frame/Collection.h"
#include "simulator/Utf.h"

namespace qorltst::examples {
namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kNameWidth = 40;
constexpr std::int64_t kCurrencyUnit = 10000;
constexpr int kCurrencyDecimals = 4;

std::string AmountText(Currency amount) {
  std::ostringstream text;
  text << amount.tenThousandths / kCurrencyUnit << '.' << std::setw(kCurrencyDecimals) << std::setfill('0')
       << amount.tenThousandths % kCurrencyUnit;
  return text.str();
}

/// Whether nothing is set in the object or below it, its debug id aside.
bool IsEmpty(Object& object);

struct Emptiness {
  Object& object;

  bool operator()(const StringField& field) const { return field.in(object).empty(); }
  bool operator()(const LongField& /*debug id*/) const { return true; }
  bool operator()(const BooleanField& field) const { return !field.in(object); }
  bool operator()(const DateField& field) const { return field.in(object) == Date{}; }
  bool operator()(const CurrencyField& field) const { return field.in(object) == Currency{}; }
  bool operator()(const ObjectField& field) const {
    Object* const value = field.in(object);
    return value == nullptr || IsEmpty(*value);
  }
  bool operator()(const Method& /*method*/) const { return true; }
};

bool IsEmpty(Object& object) {
  if (const auto* const collection = dynamic_cast<const Collection*>(&object)) {
    return collection->Count() == 0;
  }
  const auto members = object.Description().members;
  return std::ranges::all_of(members, [&](const Member& row) { return std::visit(Emptiness{object}, row.access); });
}

}  // namespace

void ModelPrinter::Print(Object& object, std::size_t depth) {
  for (const Member& row : object.Description().members) {
    if (std::visit(Emptiness{object}, row.access)) {
      continue;
    }
    if (const auto* const text = std::get_if<StringField>(&row.access)) {
      PrintLine(depth, row.name, simulator::EscapeControls(simulator::ToUtf8(text->in(object))));
    } else if (std::holds_alternative<BooleanField>(row.access)) {
      PrintLine(depth, row.name, "True");
    } else if (const auto* const date = std::get_if<DateField>(&row.access)) {
      PrintLine(depth, row.name, std::to_string(date->in(object).days));
    } else if (const auto* const amount = std::get_if<CurrencyField>(&row.access)) {
      PrintLine(depth, row.name, AmountText(amount->in(object)));
    } else if (const auto* const child = std::get_if<ObjectField>(&row.access)) {
      PrintObject(depth, row.name, *child->in(object));
    }
  }
}

void ModelPrinter::PrintLine(std::size_t depth, std::u16string_view name, std::string_view value) {
  const std::size_t width = kNameWidth - std::min(kNameWidth, depth * kIndent);
  out_ << std::string(depth * kIndent, ' ') << std::left << std::setw(static_cast<int>(width))
       << simulator::ToUtf8(name) << ' ' << value << '\n';
}

void ModelPrinter::PrintObject(std::size_t depth, std::u16string_view name, Object& value) {
  const std::string indent(depth * kIndent, ' ');
  const auto* const collection = dynamic_cast<const Collection*>(&value);
  if (collection == nullptr) {
    out_ << indent << simulator::ToUtf8(name) << '\n';
    Print(value, depth + 1);
    return;
  }
  for (std::int32_t i = 1; i <= collection->Count(); ++i) {
    out_ << indent << simulator::ToUtf8(name) << '(' << i << ")\n";
    Print(*collection->Item(i), depth + 1);
  }
}

}  // namespace qorltst::examples
