// See Printers.h.
#include "tests/support/Printers.h"

#include <stdexcept>

#include "frame/ClassDescription.h"
#include "frame/Collection.h"

namespace qorltst::testing {
namespace {

const Member& RowOf(Object& object, std::u16string_view property) {
  const Member* const row = object.Description().FindByName(property);
  if (row == nullptr) {
    throw std::runtime_error("no property " + Readable(property));
  }
  return *row;
}

template <class Kind>
const Kind& AccessOf(Object& object, std::u16string_view property) {
  return std::get<Kind>(RowOf(object, property).access);
}

}  // namespace

std::string Readable(std::u16string_view text) {
  std::string readable;
  for (const char16_t character : text) {
    if (character >= 0x20 && character < 0x7F) {
      readable.push_back(static_cast<char>(character));
    } else {
      readable += "\\u" + std::to_string(static_cast<unsigned>(character));
    }
  }
  return readable;
}

std::u16string TextOf(Object& object, std::u16string_view property) {
  return AccessOf<StringField>(object, property).in(object);
}

Currency CurrencyOf(Object& object, std::u16string_view property) {
  return AccessOf<CurrencyField>(object, property).in(object);
}

bool FlagOf(Object& object, std::u16string_view property) {
  return AccessOf<BooleanField>(object, property).in(object);
}

double DateOf(Object& object, std::u16string_view property) {
  return AccessOf<DateField>(object, property).in(object).days;
}

std::int32_t NumberOf(Object& object, std::u16string_view property) {
  return AccessOf<LongField>(object, property).in(object);
}

Object* ObjectOf(Object& object, std::u16string_view property) {
  return AccessOf<ObjectField>(object, property).in(object);
}

std::int32_t CountOf(Object& object, std::u16string_view property) {
  return dynamic_cast<Collection&>(*ObjectOf(object, property)).Count();
}

Object& ItemOf(Object& object, std::u16string_view property, std::int32_t index) {
  return *dynamic_cast<Collection&>(*ObjectOf(object, property)).Item(index);
}

std::vector<std::string> FilledTexts(Object& object) {
  std::vector<std::string> filled;
  for (const Member& row : object.Description().members) {
    if (const auto* const field = std::get_if<StringField>(&row.access);
        field != nullptr && !field->in(object).empty()) {
      filled.push_back(Readable(row.name) + "=" + Readable(field->in(object)));
    }
  }
  return filled;
}

}  // namespace qorltst::testing
