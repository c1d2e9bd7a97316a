// The owned parse tree. See TreeNode.h.
#include "simulator/TreeNode.h"

#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

/// Keeps its node alive, so it may outlive every other reference to the tree.
class TreeEnumerator final : public NodeEnumerator {
 public:
  explicit TreeEnumerator(Ref<TreeNode> node) : node_(std::move(node)) {}

  Ref<ParseNode> Next() override { return next_ < node_->ChildCount() ? node_->ChildAt(next_++) : nullptr; }

 private:
  Ref<TreeNode> node_;
  std::size_t next_ = 0;
};

template <class T>
Ref<BufferOwner> AtPosition(const std::vector<Ref<T>>& items, std::int32_t index) {
  if (index < 1 || static_cast<std::size_t>(index) > items.size()) {
    return nullptr;
  }
  return items[static_cast<std::size_t>(index) - 1];
}

}  // namespace

TreeNode::~TreeNode() = default;

std::int32_t TreeNode::Parse(std::u16string_view /*text*/, std::int32_t /*mode*/) { return parseResult_; }

Ref<ParseNode> TreeNode::FindNode(NodeTypeId type) {
  for (const Ref<ParseNode>& child : children_) {
    if (child->TypeId() == type) {
      return child;
    }
    if (Ref<ParseNode> found = child->FindNode(type)) {
      return found;
    }
  }
  return nullptr;
}

Ref<BufferOwner> TreeNode::Item(std::int32_t index) {
  return items_ ? AtPosition(*items_, index) : AtPosition(children_, index);
}

Ref<NodeEnumerator> TreeNode::Children() { return Make<TreeEnumerator>(Ref<TreeNode>(this)); }

std::u16string TreeNode::Buffer() {
  if (!hasBuffer_) {
    throw toolkit::RuntimeError(toolkit::kNoSuchMember);
  }
  return buffer_.value_or(text_);
}

void TreeNode::Add(Ref<ParseNode> child) { children_.push_back(std::move(child)); }

Ref<TreeNode> TreeNode::Add(NodeTypeId type, std::u16string_view text) {
  auto child = Make<TreeNode>(type, text);
  Add(child);
  return child;
}

void TreeNode::AddWarning(std::u16string_view reason) {
  hasWarning_ = true;
  if (!errorText_.empty()) {
    errorText_ += u"; ";
  }
  errorText_ += reason;
}

}  // namespace qorltst::simulator
