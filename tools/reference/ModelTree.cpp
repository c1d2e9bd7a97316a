// See ModelTree.h.
#include "tools/reference/ModelTree.h"

#include <algorithm>

namespace qorltst::reference {
namespace {

void AddChildren(ModelNode& node) {
  for (const Member& row : node.type->members) {
    if (const auto* const field = std::get_if<ObjectField>(&row.access)) {
      const bool isCollection = field->items != nullptr;
      ModelNode child{row.name, isCollection ? field->items() : field->type(), isCollection};
      AddChildren(child);
      node.children.push_back(std::move(child));
    }
  }
}

}  // namespace

ModelNode ModelTreeOf(const ClassDescription& root) {
  ModelNode tree{{}, &root};
  AddChildren(tree);
  return tree;
}

bool Contains(const ModelNode& tree, const ClassDescription& type) {
  return tree.type == &type ||
         std::ranges::any_of(tree.children, [&](const ModelNode& child) { return Contains(child, type); });
}

}  // namespace qorltst::reference
