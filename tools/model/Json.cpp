// See Json.h.
#include "tools/model/Json.h"

#include <algorithm>

#include "simulator/Utf.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

/// Adds a member that is not there yet. Asking for it first would cost a search for each.
void Add(Json& object, std::string name, Json value) {
  object.get_ref<Json::object_t&>().push_back({std::move(name), std::move(value)});
}

/// The units of a text in hexadecimal digits, `digits` of them for each.
template <class Text>
std::string Dump(Text text, std::size_t digits) {
  std::string written;
  for (const auto unit : text) {
    written += Hexadecimal(static_cast<unsigned>(unit), digits);
  }
  return written;
}

struct ContentJson {
  Filter filter;

  Json operator()(std::u16string_view text) const { return TextJson(text); }
  Json operator()(std::int32_t number) const { return number; }
  Json operator()(bool value) const { return value; }
  Json operator()(Currency amount) const { return AmountText(amount); }
  Json operator()(Date date) const {
    if (date == Date{}) {
      return nullptr;
    }
    auto text = IsoDate(date);
    return text ? Json(*std::move(text)) : Json(date.days);
  }
  Json operator()(Object* object) const {
    if (object == nullptr) {
      return nullptr;
    }
    const Collection* const collection = AsCollection(*object);
    if (collection == nullptr) {
      return ToJson(*object, filter);
    }
    Json items = Json::array();
    ForEachItem(*collection, [&](Object& item) { items.push_back(ToJson(item, filter)); });
    return items;
  }
};

}  // namespace

Json ToJson(Object& object, Filter filter, std::span<const Member* const> rows) {
  Json json = Json::object();
  // Members are copied when their list grows.
  json.get_ref<Json::object_t&>().reserve((rows.empty() ? object.Description().members.size() : rows.size()) + 1);
  Add(json, kClassName, NameText(object.Description().name));
  // A number that was asked for by its name is shown.
  ForEachProperty(object, {filter.empty, filter.numbers || !rows.empty()}, [&](const Property& property) {
    if (rows.empty() || std::ranges::find(rows, &property.row) != rows.end()) {
      Add(json, NameText(property.row.name), std::visit(ContentJson{filter}, property.content));
    }
  });
  return json;
}

Json TextJson(std::u16string_view text) {
  if (simulator::FindLoneSurrogate(text)) {
    return {{"utf16", Dump(text, 4)}};
  }
  return simulator::ToUtf8(text);
}

Json BytesJson(std::string_view bytes) {
  if (simulator::FindDamage(bytes)) {
    return {{"bytes", Dump(bytes, 2)}};
  }
  return std::string(bytes);
}

}  // namespace qorltst::model
