// What is set in an object and below it, class by class.
#pragma once

#include <cstdint>
#include <map>
#include <utility>

#include "frame/ClassDescription.h"

namespace qorltst::reference {

/// What a property was given.
enum class Origin : std::uint8_t { Text, ErrorText, Buffer, Other };

using Property = std::pair<const ClassDescription*, const Member*>;

struct Snapshot {
  std::map<Property, Origin> set;
  std::map<const ClassDescription*, int> objects;
  friend bool operator==(const Snapshot&, const Snapshot&) = default;
};

/// Reads the object and everything that hangs on it, but for debug ids and methods.
[[nodiscard]] Snapshot SnapshotOf(Object& root);

}  // namespace qorltst::reference
