// Finds what a path names in a model: "AirSegments(2).BoardPoint", with the names that automation has.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/model/Property.h"

namespace qorltst::model {

/// Where a path leads.
struct PathEnd {
  /// The path as the tables write its names; empty for the root.
  std::string path;
  Content content;
  /// The object that has the property, and the property; no property for the root and for an item of a collection.
  Object* owner = nullptr;
  const Member* row = nullptr;
};

/// A path that leads nowhere. The message (UTF-8) says where it ends and which names are near.
class PathError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Follows property names, divided by dots, and indexes in brackets, counted from 1, from the root on. Names are told
/// apart without regard to case. The path may begin with the name of the root's class. Raises `PathError`.
[[nodiscard]] PathEnd FollowPath(Object& root, std::string_view path);

}  // namespace qorltst::model
