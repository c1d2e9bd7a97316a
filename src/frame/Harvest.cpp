// See Harvest.h.
#include "frame/Harvest.h"

namespace qorltst {

Harvest::Harvest() {
  for (Ref<Collection>& collection : collections_) {
    collection = Make<Collection>();
  }
}

void Harvest::Add(CollectionKind kind, Ref<Object> element) {
  collections_[static_cast<std::size_t>(kind)]->Add(std::move(element));
}

void Harvest::HandOver(TST& tst) const {
  for (std::size_t kind = 0; kind < kCollectionKinds; ++kind) {
    if (collections_[kind]->Count() > 0) {
      tst.SetCollection(static_cast<CollectionKind>(kind), collections_[kind]);
    }
  }
}

}  // namespace qorltst
