// Trees written as expressions. See Node.h.
#include "simulator/Node.h"

namespace qorltst::simulator {

Node::Node(NodeTypeId type, std::u16string_view text, std::initializer_list<Node> children)
    : node_(Make<TreeNode>(type, text)) {
  for (const Node& child : children) {
    node_->Add(child.node_);
  }
}

Node& Node::Items(std::initializer_list<Node> items) {
  std::vector<Ref<BufferOwner>> owners;
  for (const Node& item : items) {
    owners.emplace_back(item.node_);
  }
  node_->SetItems(std::move(owners));
  return *this;
}

Ref<TreeNode> Tree(std::initializer_list<Node> nodes, std::int32_t parseResult) {
  auto root = Make<TreeNode>();
  for (const Node& node : nodes) {
    root->Add(node.Get());
  }
  root->SetParseResult(parseResult);
  return root;
}

}  // namespace qorltst::simulator
