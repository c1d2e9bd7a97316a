// See Property.h.
#include "tools/model/Property.h"

#include <algorithm>

namespace qorltst::model {
namespace {

struct Reader {
  Object& object;

  std::optional<Content> operator()(const Method& /*method*/) const { return std::nullopt; }
  template <class Field>
  std::optional<Content> operator()(const Field& field) const {
    return field.in(object);
  }
};

struct Emptiness {
  bool operator()(std::u16string_view text) const { return text.empty(); }
  bool operator()(std::int32_t /*given*/) const { return true; }
  bool operator()(bool value) const { return !value; }
  bool operator()(Date date) const { return date == Date{}; }
  bool operator()(Currency amount) const { return amount == Currency{}; }
  bool operator()(Object* object) const { return object == nullptr || IsEmpty(*object); }
};

bool IsReadable(const Member& row) { return !std::holds_alternative<Method>(row.access); }

}  // namespace

std::optional<Content> ContentOf(Object& object, const Member& row) { return std::visit(Reader{object}, row.access); }

bool IsEmpty(const Content& content) { return std::visit(Emptiness{}, content); }

bool IsEmpty(Object& object) {
  if (const Collection* const collection = AsCollection(object)) {
    return collection->Count() == 0;
  }
  return std::ranges::all_of(object.Description().members, [&object](const Member& row) {
    const std::optional<Content> content = ContentOf(object, row);
    return !content || IsEmpty(*content);
  });
}

const Collection* AsCollection(const Object& object) noexcept {
  return &object.Description() == &Collection::kDescription ? static_cast<const Collection*>(&object) : nullptr;
}

bool HasContent(const ClassDescription& description) noexcept {
  return &description != &Collection::kDescription && std::ranges::any_of(description.members, IsReadable);
}

bool IsErrorText(const Member& row) noexcept { return row.name.ends_with(u"ErrorText"); }

}  // namespace qorltst::model
