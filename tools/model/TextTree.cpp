// See TextTree.h.
#include "tools/model/TextTree.h"

#include <algorithm>
#include <vector>

#include "toolkit/HostNumbers.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

constexpr std::size_t kIndent = 2;
constexpr std::string_view kGap = "  ";
constexpr std::string_view kAbsent = "(absent)";
constexpr std::string_view kNone = "(none)";

/// Cuts the text; there is one piece at least.
std::vector<std::string> CutAtLength(std::u16string_view text, std::size_t length) {
  std::vector<std::string> pieces;
  do {
    pieces.push_back(PrintableText(text.substr(0, length)));
    text.remove_prefix(std::min(text.size(), length));
  } while (!text.empty());
  return pieces;
}

std::vector<std::string> CutAt(std::u16string_view text, std::u16string_view divider) {
  std::vector<std::string> pieces;
  for (std::size_t end = text.find(divider); end != std::u16string_view::npos; end = text.find(divider)) {
    pieces.push_back(PrintableText(text.substr(0, end)));
    text.remove_prefix(end + divider.size());
  }
  pieces.push_back(PrintableText(text));
  return pieces;
}

struct ValueLines {
  const Member& row;

  std::vector<std::string> operator()(std::u16string_view text) const {
    if (text.empty()) {
      return {"\"\""};
    }
    return IsErrorText(row) ? CutAt(text, u"; ") : CutAtLength(text, toolkit::kLineLength);
  }
  std::vector<std::string> operator()(std::int32_t number) const { return {std::to_string(number)}; }
  std::vector<std::string> operator()(bool value) const { return {value ? "True" : "False"}; }
  std::vector<std::string> operator()(Date date) const {
    return {date == Date{} ? std::string(kNone) : IsoDate(date).value_or(std::to_string(date.days))};
  }
  std::vector<std::string> operator()(Currency amount) const { return {AmountText(amount)}; }
  std::vector<std::string> operator()(const Object* object) const {
    return {std::string(object == nullptr ? kAbsent : kNone)};
  }
};

/// Whether it stands in a line of its own and not as a tree below its name.
bool IsValue(const Content& content) {
  Object* const* const object = std::get_if<Object*>(&content);
  if (object == nullptr || *object == nullptr) {
    return true;
  }
  const Collection* const collection = AsCollection(**object);
  return collection != nullptr && collection->Count() == 0;
}

class Printer {
 public:
  Printer(std::string& out, Filter filter) : out_(out), filter_(filter) {}

  void Print(Object& object, std::size_t depth, std::span<const Member* const> rows) {
    std::vector<Property> values;
    std::vector<Property> objects;
    std::size_t width = 0;
    const auto sort = [&](const Property& property) {
      if (!rows.empty() && std::ranges::find(rows, &property.row) == rows.end()) {
        return;
      }
      const bool isValue = IsValue(property.content);
      (isValue ? values : objects).push_back(property);
      width = isValue ? std::max(width, property.row.name.size()) : width;
    };
    // A number that was asked for by its name is shown.
    ForEachProperty(object, Filter{filter_.empty, filter_.numbers || !rows.empty()}, sort);
    for (const Property& value : values) {
      PrintValue(value, depth, width);
    }
    for (const Property& child : objects) {
      PrintObject(child.row.name, *std::get<Object*>(child.content), depth);
    }
  }

 private:
  void PrintValue(const Property& value, std::size_t depth, std::size_t width) {
    std::string name = NameText(value.row.name);
    for (const std::string& line : std::visit(ValueLines{value.row}, value.content)) {
      name.resize(width, ' ');
      Indent(depth).append(name).append(kGap).append(line);
      out_.resize(out_.find_last_not_of(' ') + 1);
      out_ += '\n';
      name.clear();
    }
  }

  void PrintObject(std::u16string_view name, Object& object, std::size_t depth) {
    const Collection* const collection = AsCollection(object);
    if (collection == nullptr) {
      Indent(depth).append(NameText(name)) += '\n';
      Print(object, depth + 1, {});
      return;
    }
    std::int32_t index = 0;
    ForEachItem(*collection, [&](Object& item) {
      Indent(depth).append(ItemName(name, ++index)) += '\n';
      Print(item, depth + 1, {});
    });
  }

  std::string& Indent(std::size_t depth) { return out_.append(depth * kIndent, ' '); }

  std::string& out_;
  Filter filter_;
};

}  // namespace

void PrintTree(std::string& out, Object& object, Filter filter, std::size_t depth,
               std::span<const Member* const> rows) {
  Printer(out, filter).Print(object, depth, rows);
}

}  // namespace qorltst::model
