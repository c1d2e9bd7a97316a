// See Selection.h.
#include "tools/model/Selection.h"

#include <algorithm>
#include <set>

#include "frame/PublicClasses.h"
#include "simulator/Utf.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/NearNames.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

std::vector<const ClassDescription*> ShownClasses() {
  std::vector<const ClassDescription*> shown;
  std::ranges::copy_if(PublicClasses(), std::back_inserter(shown),
                       [](const ClassDescription* description) { return HasContent(*description); });
  return shown;
}

bool IsProperty(const Member& row) { return !std::holds_alternative<Method>(row.access); }

const ClassDescription& FindClass(const std::string& name) {
  const std::vector<const ClassDescription*> known = ShownClasses();
  const std::u16string wanted = simulator::ToUtf16(name);
  const auto found = std::ranges::find_if(
      known, [&](const ClassDescription* description) { return CompareNames(description->name, wanted) == 0; });
  if (found != known.end()) {
    return **found;
  }
  std::set<std::u16string_view> names;
  std::ranges::transform(known, std::inserter(names, names.end()), &ClassDescription::name);
  throw UnknownName("there is no class " + PrintableText(name) + DidYouMean(wanted, names));
}

void CheckProperty(const std::string& name, std::span<const ClassDescription* const> classes) {
  const std::u16string wanted = simulator::ToUtf16(name);
  std::set<std::u16string_view> names;
  for (const ClassDescription* const description : classes) {
    for (const Member& row : description->members) {
      if (IsProperty(row)) {
        names.insert(row.name);
      }
    }
  }
  if (std::ranges::none_of(names, [&](std::u16string_view known) { return CompareNames(known, wanted) == 0; })) {
    throw UnknownName("there is no property " + PrintableText(name) + DidYouMean(wanted, names));
  }
}

}  // namespace

Selection::Selection(std::span<const std::string> classes, std::span<const std::string> properties) {
  for (const std::string& name : classes) {
    classes_.push_back(&FindClass(name));
  }
  const std::vector<const ClassDescription*> all = ShownClasses();
  for (const std::string& name : properties) {
    CheckProperty(name, classes_.empty() ? all : classes_);
    properties_.push_back(simulator::ToUtf16(name));
  }
}

bool Selection::HasClass(const ClassDescription& description) const {
  return classes_.empty() || std::ranges::find(classes_, &description) != classes_.end();
}

std::vector<const Member*> Selection::RowsOf(Object& object, Filter filter) const {
  std::vector<const Member*> rows;
  for (const std::u16string& name : properties_) {
    const Member* const row = object.Description().FindByName(name);
    if (row == nullptr || !IsProperty(*row)) {
      continue;
    }
    const Content content = ContentOf(object, *row).value();
    if (filter.empty || std::holds_alternative<std::int32_t>(content) || !IsEmpty(content)) {
      rows.push_back(row);
    }
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::vector<Match> Selection::Find(Object& root, Filter filter) const {
  std::vector<Match> matches;
  WalkObjects(root, [&](const std::string& path, Object& object) {
    if (!HasClass(object.Description())) {
      return true;
    }
    std::vector<const Member*> rows = RowsOf(object, filter);
    if (!rows.empty() || (properties_.empty() && (filter.empty || !IsEmpty(object)))) {
      matches.push_back({path, object, std::move(rows)});
    }
    return !properties_.empty();
  });
  return matches;
}

}  // namespace qorltst::model
