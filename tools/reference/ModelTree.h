// The object model as a tree: which property of which class leads to which class.
#pragma once

#include <string_view>
#include <vector>

#include "frame/ClassDescription.h"

namespace qorltst::reference {

/// An object in the model, or the objects of a collection. A class that is reached on several ways stands on each.
struct ModelNode {
  /// The property that leads here; empty at the root.
  std::u16string_view property;
  const ClassDescription* type = nullptr;
  bool isCollection = false;
  std::vector<ModelNode> children = {};
};

/// Everything that a caller can reach from this class.
[[nodiscard]] ModelNode ModelTreeOf(const ClassDescription& root);

/// Whether an object of this class is in the tree.
[[nodiscard]] bool Contains(const ModelNode& tree, const ClassDescription& type);

}  // namespace qorltst::reference
