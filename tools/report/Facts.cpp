// See Facts.h.
#include "tools/report/Facts.h"

#include <stdexcept>

#include "simulator/Utf.h"
#include "tools/model/ValueText.h"

namespace qorltst::report {
namespace {

struct FactText {
  std::u16string operator()(std::u16string_view text) const { return std::u16string(text); }
  std::u16string operator()(std::int32_t number) const { return simulator::ToUtf16(std::to_string(number)); }
  std::u16string operator()(bool value) const { return value ? u"yes" : u""; }
  std::u16string operator()(Currency amount) const { return simulator::ToUtf16(model::AmountText(amount)); }
  std::u16string operator()(const Object* /*object*/) const { return {}; }
  std::u16string operator()(Date date) const {
    return date == Date{} ? std::u16string() : simulator::ToUtf16(model::IsoDate(date).value_or(""));
  }
};

model::Content ContentOf(Object& object, std::u16string_view property) {
  const Member* const row = object.Description().FindByName(property);
  if (row == nullptr) {
    throw std::logic_error(model::NameText(object.Description().name) + " has no property " +
                           model::NameText(property));
  }
  return model::ContentOf(object, *row).value();
}

constexpr bool IsCapital(char character) { return character >= 'A' && character <= 'Z'; }
constexpr char Small(char character) { return static_cast<char>(character + ('a' - 'A')); }

}  // namespace

std::u16string Fact(Object& object, std::u16string_view property) {
  return std::visit(FactText{}, ContentOf(object, property));
}

Object* ChildOf(Object& object, std::u16string_view property) { return std::get<Object*>(ContentOf(object, property)); }

std::vector<Object*> ItemsOf(Object& object, std::u16string_view collection) {
  std::vector<Object*> items;
  model::ForEachItem(*model::AsCollection(*ChildOf(object, collection)),
                     [&items](Object& item) { items.push_back(&item); });
  return items;
}

std::vector<std::u16string> ErrorsOf(std::u16string_view errorText) {
  static constexpr std::u16string_view kDivider = u"; ";
  std::vector<std::u16string> errors;
  while (!errorText.empty()) {
    const std::size_t end = std::min(errorText.find(kDivider), errorText.size());
    errors.emplace_back(errorText.substr(0, end));
    errorText.remove_prefix(std::min(end + kDivider.size(), errorText.size()));
  }
  return errors;
}

std::string InWords(std::u16string_view name) {
  const std::string letters = model::NameText(name);
  std::string words;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const bool afterSmall = i > 0 && !IsCapital(letters[i - 1]);
    const bool beforeSmall = i + 1 < letters.size() && !IsCapital(letters[i + 1]);
    const bool startsWord = IsCapital(letters[i]) && i > 0 && (afterSmall || beforeSmall);
    words += startsWord ? " " : "";
    // A word of capitals stays: it is a short form.
    words += startsWord && beforeSmall ? Small(letters[i]) : letters[i];
  }
  return words;
}

}  // namespace qorltst::report
