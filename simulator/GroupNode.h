// A node over several fields of a line: its text reaches from the first of them to the last, as displayed.
#pragma once

#include "simulator/Field.h"
#include "simulator/TreeNode.h"

namespace qorltst::simulator {

class GroupNode {
 public:
  /// A new node below `parent` that covers this field so far. The fields must be of one line.
  GroupNode(TreeNode& parent, NodeTypeId type, const Field& first)
      : node_(parent.Add(type, first.text)), covered_(first) {}

  /// Lets the node's text reach to the end of a later field.
  void Cover(const Field& field) {
    covered_.text = {covered_.text.data(), field.position + field.text.size() - covered_.position};
    node_->SetText(covered_.text);
  }

  [[nodiscard]] const Ref<TreeNode>& Node() const noexcept { return node_; }

 private:
  Ref<TreeNode> node_;
  Field covered_;
};

}  // namespace qorltst::simulator
