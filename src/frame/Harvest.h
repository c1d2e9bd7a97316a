// The elements of one parse, by kind, until the whole display has been walked.
#pragma once

#include <array>

#include "frame/Gathering.h"
#include "frame/TST.h"

namespace qorltst {

/// Eleven gatherings. A walk that fails hands none of them over.
class Harvest {
 public:
  /// Where the elements of a kind are gathered, in display order.
  [[nodiscard]] Gathering& Of(CollectionKind kind) noexcept { return gathered_[static_cast<std::size_t>(kind)]; }

  /// Replaces those collections of `tst` for which there is something, in the order of the kinds.
  void HandOver(TST& tst) const;

 private:
  std::array<Gathering, kCollectionKinds> gathered_;
};

}  // namespace qorltst
