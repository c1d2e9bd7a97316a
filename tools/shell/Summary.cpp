// The summary of objects. Classes are ClassText.cpp.
#include "tools/shell/Summary.h"

#include <algorithm>
#include <vector>

#include "toolkit/HostNumbers.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/TextTree.h"
#include "tools/model/ValueText.h"

namespace qorltst::shell {
namespace {

constexpr std::u16string_view kLineOfElement = u"Text";

std::string ClassOf(const Object& object) { return model::NameText(object.Description().name); }

/// The class of an object or the number of items of a collection.
std::string KindOf(const Object& object) {
  const Collection* const collection = model::AsCollection(object);
  if (collection == nullptr) {
    return ClassOf(object);
  }
  return std::to_string(collection->Count()) + (collection->Count() == 1 ? " item" : " items");
}

/// The first line of the display that the object stands for; empty where its class keeps none.
std::string FirstLine(Object& object) {
  const Member* const row = object.Description().FindByName(kLineOfElement);
  const auto content = row != nullptr ? model::ContentOf(object, *row) : std::nullopt;
  const auto* const text = content ? std::get_if<std::u16string_view>(&*content) : nullptr;
  if (text == nullptr) {
    return {};
  }
  const std::u16string_view line = text->substr(0, toolkit::kLineLength);
  return "  " + model::PrintableText(line.substr(0, line.find_last_not_of(u' ') + 1));
}

void AppendItems(std::string& out, const Collection& collection) {
  std::int32_t index = 0;
  model::ForEachItem(collection, [&](Object& item) {
    out += "  (" + std::to_string(++index) + ")  " + ClassOf(item) + FirstLine(item) + '\n';
  });
}

void AppendParts(std::string& out, Object& object) {
  std::vector<const Member*> values;
  std::string parts;
  model::ForEachProperty(object, {}, [&](const model::Property& property) {
    if (Object* const* const part = std::get_if<Object*>(&property.content)) {
      parts += "  " + model::NameText(property.row.name) + ": " + KindOf(**part) + '\n';
    } else {
      values.push_back(&property.row);
    }
  });
  if (!values.empty()) {
    model::PrintTree(out, object, {}, 1, values);
  }
  out += parts;
  if (values.empty() && parts.empty()) {
    out += "  nothing is filled\n";
  }
}

}  // namespace

void AppendSummary(std::string& out, const model::PathEnd& end) {
  Object* const* const object = std::get_if<Object*>(&end.content);
  if (object == nullptr || *object == nullptr) {
    model::PrintTree(out, *end.owner, {.empty = true}, 0, std::vector{end.row});
    return;
  }
  out += (end.path.empty() ? ClassOf(**object) : end.path + ": " + KindOf(**object)) + '\n';
  if (const Collection* const collection = model::AsCollection(**object)) {
    AppendItems(out, *collection);
  } else {
    AppendParts(out, **object);
  }
}

}  // namespace qorltst::shell
