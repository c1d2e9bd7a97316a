// Reads any object of the model by its class's own table: what a row holds, and whether that is anything.
// The printers beside it (TextTree, Json) and whatever shows a model go through here.
#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "frame/ClassDescription.h"
#include "frame/Collection.h"

namespace qorltst::model {

/// What a property holds; views and pointers live as long as the object does. An object may be absent.
using Content = std::variant<std::u16string_view, std::int32_t, bool, Date, Currency, Object*>;

struct Property {
  const Member& row;
  Content content;
};

/// Which properties are of interest.
struct Filter {
  /// Those that hold nothing, too.
  bool empty = false;
  /// Those that number the objects of a process, too; they say nothing about the ticket.
  bool numbers = false;
};

/// What the row holds in this object, which is of the row's class; nothing for a method.
[[nodiscard]] std::optional<Content> ContentOf(Object& object, const Member& row);

/// Whether the content is what a new object has. A number is: it is given, not filled.
[[nodiscard]] bool IsEmpty(const Content& content);

/// Whether nothing is filled in the object or below it.
[[nodiscard]] bool IsEmpty(Object& object);

/// The object as a collection, or nothing where it is of another class.
[[nodiscard]] const Collection* AsCollection(const Object& object) noexcept;

/// Whether the class has properties that show something of a ticket: it is no collection and no log.
[[nodiscard]] bool HasContent(const ClassDescription& description) noexcept;

/// Whether the property says what the parser did not understand; its parts are divided by "; ".
[[nodiscard]] bool IsErrorText(const Member& row) noexcept;

/// Calls `visit` with each property that passes the filter, in the order of the interface.
template <class Visit>
void ForEachProperty(Object& object, Filter filter, Visit visit) {
  for (const Member& row : object.Description().members) {
    const std::optional<Content> content = ContentOf(object, row);
    if (!content || (!filter.numbers && std::holds_alternative<std::int32_t>(*content)) ||
        (!filter.empty && !std::holds_alternative<std::int32_t>(*content) && IsEmpty(*content))) {
      continue;
    }
    visit(Property{row, *content});
  }
}

}  // namespace qorltst::model
