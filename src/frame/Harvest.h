// The elements of one parse, by kind, until the whole display has been walked.
#pragma once

#include <array>

#include "frame/Collection.h"
#include "frame/TST.h"

namespace qorltst {

/// Eleven collections, empty at first. A walk that fails hands none of them over.
class Harvest {
 public:
  Harvest();

  /// Appends an element in display order.
  void Add(CollectionKind kind, Ref<Object> element);

  /// Replaces those collections of `tst` for which there is something, in the order of the kinds.
  void HandOver(TST& tst) const;

 private:
  std::array<Ref<Collection>, kCollectionKinds> collections_;
};

}  // namespace qorltst
