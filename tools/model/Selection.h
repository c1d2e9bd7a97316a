// Which objects and properties of a model somebody wants to see, by their names.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/model/Property.h"

namespace qorltst::model {

/// A class or property that there is not. The message (UTF-8) names the ones whose names are near.
class UnknownName : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An object that was asked for.
struct Match {
  std::string path;
  Object& object;
  /// The properties that were asked for, in the order of the interface; all of them where this is empty.
  std::vector<const Member*> rows;
};

class Selection {
 public:
  /// Everything.
  Selection() = default;

  /// Objects of these classes, or of any where none is named; of them these properties, or all. Names are told apart
  /// without regard to case. Raises `UnknownName` also for a property that none of the classes has.
  Selection(std::span<const std::string> classes, std::span<const std::string> properties);

  [[nodiscard]] bool IsEverything() const noexcept { return classes_.empty() && properties_.empty(); }

  /// The objects, parents first. An object that is shown whole is not gone into. Without `filter.empty`, those are left
  /// out of which nothing would be shown.
  [[nodiscard]] std::vector<Match> Find(Object& root, Filter filter) const;

 private:
  [[nodiscard]] bool HasClass(const ClassDescription& description) const;
  [[nodiscard]] std::vector<const Member*> RowsOf(Object& object, Filter filter) const;

  std::vector<const ClassDescription*> classes_;
  std::vector<std::u16string> properties_;
};

}  // namespace qorltst::model
