// What a fill gathers for a collection, until it is through and may replace the collection.
#pragma once

#include <utility>

#include "frame/CollectionProperty.h"
#include "toolkit/ParseNode.h"
#include "toolkit/Toolkit.h"

namespace qorltst {

/// Most fills gather nothing of most kinds, so the collection is made with its first item.
class Gathering {
 public:
  /// Appends an object. Never absent.
  void Add(Ref<Object> item) {
    if (!items_) {
      items_ = Make<Collection>();
    }
    items_->Add(std::move(item));
  }

  /// Appends a new item, filled from its node. One whose fill fails is not added.
  template <class Item>
  void AddFilled(toolkit::Toolkit& toolkit, toolkit::ParseNode& node) {
    const auto item = Make<Item>(toolkit);
    item->FillWithData(node);
    Add(item);
  }

  /// Puts what was gathered in the place of a collection, unless nothing was.
  void InstallIn(CollectionProperty& collection) const noexcept {
    if (items_) {
      collection.Replace(items_);
    }
  }

  /// What was gathered, or nothing.
  [[nodiscard]] const Ref<Collection>& Items() const noexcept { return items_; }

 private:
  Ref<Collection> items_;
};

}  // namespace qorltst
