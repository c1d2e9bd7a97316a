// See ObjectPath.h.
#include "tools/model/ObjectPath.h"

#include <charconv>
#include <set>

#include "simulator/Utf.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/NearNames.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

constexpr std::string_view kNameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

std::string UnknownProperty(const Object& object, std::string_view name) {
  std::set<std::u16string_view> known;
  for (const Member& row : object.Description().members) {
    known.insert(row.name);
  }
  return NameText(object.Description().name) + " has no property " + PrintableText(name) +
         DidYouMean(simulator::ToUtf16(name), known);
}

class Follower {
 public:
  Follower(Object& root, std::string_view path) : rest_(path), length_(path.size()), end_{{}, &root, &root, nullptr} {}

  PathEnd Follow() {
    SkipBlanks();
    GoToFirst(TakeName());
    while (SkipBlanks()) {
      if (Take('(')) {
        GoToItem(TakeIndex());
      } else if (Take('.')) {
        GoToProperty(TakeName());
      } else {
        throw PathError("column " + std::to_string(Column()) + ": a dot or an index in brackets expected");
      }
    }
    return std::move(end_);
  }

 private:
  void GoToFirst(std::string_view name) {
    const ClassDescription& root = end_.owner->Description();
    const std::u16string wanted = simulator::ToUtf16(name);
    if (CompareNames(root.name, wanted) != 0 || root.FindByName(wanted) != nullptr) {
      GoToProperty(name);
    }
  }

  void GoToProperty(std::string_view name) {
    Object& object = Here();
    const Member* const row = object.Description().FindByName(simulator::ToUtf16(name));
    if (row == nullptr && AsCollection(object) != nullptr) {
      throw PathError(Name() + " is a collection; name one of its items, as in " + Name() + "(1)." +
                      PrintableText(name));
    }
    if (row == nullptr) {
      throw PathError(UnknownProperty(object, name));
    }
    const std::optional<Content> content = ContentOf(object, *row);
    if (!content && AsCollection(object) != nullptr && Take('(')) {
      GoToItem(TakeIndex());
      return;
    }
    if (!content) {
      throw PathError(NameText(row->name) + " is a method of " + NameText(object.Description().name));
    }
    end_.path += (end_.path.empty() ? "" : ".") + NameText(row->name);
    end_.content = *content;
    end_.owner = &object;
    end_.row = row;
  }

  void GoToItem(std::int32_t index) {
    const Collection* const collection = AsCollection(Here());
    if (collection == nullptr) {
      throw PathError(Name() + " is no collection");
    }
    if (index < 1 || index > collection->Count()) {
      throw PathError(Name() + " has " + std::to_string(collection->Count()) + " items, counted from 1; there is no " +
                      std::to_string(index));
    }
    end_.path += '(' + std::to_string(index) + ')';
    end_.content = collection->Item(index).Get();
    end_.row = nullptr;
  }

  /// The object that the path has led to.
  Object& Here() {
    Object* const* const object = std::get_if<Object*>(&end_.content);
    if (object == nullptr) {
      throw PathError(Name() + " is a value, with nothing below it");
    }
    if (*object == nullptr) {
      throw PathError(Name() + " is absent");
    }
    return **object;
  }

  [[nodiscard]] std::string Name() const {
    return end_.path.empty() ? NameText(end_.owner->Description().name) : end_.path;
  }

  std::string_view TakeName() {
    SkipBlanks();
    const std::string_view name = rest_.substr(0, rest_.find_first_not_of(kNameCharacters));
    if (name.empty()) {
      throw PathError("column " + std::to_string(Column()) + ": a name expected");
    }
    rest_.remove_prefix(name.size());
    SkipBlanks();
    return name;
  }

  /// The opening bracket is taken already.
  std::int32_t TakeIndex() {
    SkipBlanks();
    std::int32_t index = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), index);
    if (error == std::errc::result_out_of_range) {
      throw PathError(Name() + " has no item of that number");
    }
    if (error != std::errc()) {
      throw PathError("column " + std::to_string(Column()) + ": a number expected, such as (1)");
    }
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    SkipBlanks();
    if (!Take(')')) {
      throw PathError("column " + std::to_string(Column()) + ": a closing bracket expected");
    }
    return index;
  }

  bool Take(char character) {
    const bool isThere = rest_.starts_with(character);
    rest_.remove_prefix(isThere ? 1 : 0);
    return isThere;
  }

  /// Whether anything comes after the blanks.
  bool SkipBlanks() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    return !rest_.empty();
  }

  [[nodiscard]] std::size_t Column() const { return length_ - rest_.size() + 1; }

  std::string_view rest_;
  std::size_t length_;
  PathEnd end_;
};

}  // namespace

PathEnd FollowPath(Object& root, std::string_view path) { return Follower(root, path).Follow(); }

}  // namespace qorltst::model
