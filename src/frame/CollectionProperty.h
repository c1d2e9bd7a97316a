// A collection as its owner holds it.
#pragma once

#include <utility>

#include "frame/Collection.h"

namespace qorltst {

/// Never absent to those who ask. Most collections of a ticket stay empty and are never looked at, so an empty one is
/// made when somebody first asks for it.
class CollectionProperty {
 public:
  /// What a property of this kind holds unless a caller puts something else there.
  using Class = Collection;

  /// The collection, the same one until it is replaced; it lives as long as a reference to it. Raises `std::bad_alloc`
  /// where an empty one cannot be made.
  [[nodiscard]] Object* Get() {
    if (!held_) {
      held_ = Make<Collection>();
    }
    return held_.Get();
  }

  /// Puts another one in its place. Never nothing.
  void Replace(Ref<Object> collection) noexcept { held_ = std::move(collection); }

 private:
  Ref<Object> held_;
};

}  // namespace qorltst
