// See Harvest.h.
#include "frame/Harvest.h"

namespace qorltst {

void Harvest::HandOver(TST& tst) const {
  for (std::size_t kind = 0; kind < kCollectionKinds; ++kind) {
    if (const Ref<Collection>& items = gathered_[kind].Items()) {
      tst.SetCollection(static_cast<CollectionKind>(kind), items);
    }
  }
}

}  // namespace qorltst
