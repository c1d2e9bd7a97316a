// An ordered, 1-based collection of objects, as callers see it.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/ClassDescription.h"
#include "frame/Object.h"

namespace qorltst {

/// Filled while a display is read, then only read.
class Collection final : public Object {
 public:
  static const ClassDescription kDescription;

  Collection() = default;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  /// Appends an object. Never absent.
  void Add(Ref<Object> item) {
    if (items_.empty()) {
      items_.reserve(kUsualCount);
    }
    items_.push_back(std::move(item));
  }

  [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }

  /// The object at this 1-based position. Raises the runtime error 9 where there is none.
  [[nodiscard]] Ref<Object> Item(std::int32_t index) const;

  /// A fresh cursor before the first object; it keeps the collection alive.
  [[nodiscard]] Ref<Cursor> Enumerate() const;

 private:
  struct Table;

  /// Few lines of a ticket occur more often; up to here a collection takes its memory at one go.
  static constexpr std::size_t kUsualCount = 4;

  std::vector<Ref<Object>> items_;
};

}  // namespace qorltst
