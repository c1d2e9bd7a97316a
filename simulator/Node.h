// Writes a parse tree down as an expression: Tree({Node(602, u"TST 1", {Node(2689, u"1")})}).
#pragma once

#include <initializer_list>

#include "simulator/TreeNode.h"

namespace qorltst::simulator {

/// A handle to a new node, with the rarer attributes as chained calls. Copies are handles to the same node.
class Node {
 public:
  explicit Node(std::int32_t type, std::u16string_view text = {}, std::initializer_list<Node> children = {})
      : Node(NodeTypeId{type}, text, children) {}

  explicit Node(NodeTypeId type, std::u16string_view text = {}, std::initializer_list<Node> children = {});

  /// The error text alone; the warning stays as it is.
  Node& Error(std::u16string_view text) {
    node_->SetErrorText(text);
    return *this;
  }

  Node& Warning(std::u16string_view reason) {
    node_->AddWarning(reason);
    return *this;
  }

  /// Days since 30 December 1899.
  Node& Date(double days) {
    node_->SetDate({days});
    return *this;
  }

  Node& Buffer(std::u16string_view text) {
    node_->SetBuffer(text);
    return *this;
  }

  Node& NoBuffer() {
    node_->RemoveBuffer();
    return *this;
  }

  /// Items that are not children, for `Item(1)`, `Item(2)`, ...
  Node& Items(std::initializer_list<Node> items);

  [[nodiscard]] const Ref<TreeNode>& Get() const noexcept { return node_; }

  // NOLINTNEXTLINE(google-explicit-constructor): a written node serves wherever a node is wanted
  operator Ref<TreeNode>() const { return node_; }
  // NOLINTNEXTLINE(google-explicit-constructor): as above
  operator Ref<ParseNode>() const { return node_; }

 private:
  Ref<TreeNode> node_;
};

/// A root over these top-level nodes. As a parser it answers `parseResult` to any text and keeps its nodes.
[[nodiscard]] Ref<TreeNode> Tree(std::initializer_list<Node> nodes, std::int32_t parseResult = toolkit::kParseSuccess);

}  // namespace qorltst::simulator
