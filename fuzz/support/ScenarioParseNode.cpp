// See ScenarioParseNode.h.
#include "fuzz/support/ScenarioParseNode.h"

#include "toolkit/HostNumbers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::fuzz {
namespace {

using toolkit::Make;
using toolkit::ParseNode;

class Enumerator final : public toolkit::NodeEnumerator {
 public:
  explicit Enumerator(ScenarioParseNode& node) : node_(&node) {}

  Ref<ParseNode> Next() override {
    if (next_ == 0) {
      node_->Asked(FailingCall::FirstNext);
    }
    if (next_ == node_->ChildCount()) {
      node_->Asked(FailingCall::LastNext);
    }
    return node_->Child(next_++);
  }

 private:
  Ref<ScenarioParseNode> node_;
  std::size_t next_ = 0;
};

}  // namespace

const ScenarioNode& ScenarioParseNode::Asked(FailingCall call) {
  toolkit_.Called();
  const ScenarioNode& node = tree_[position_];
  if (node.failing == call) {
    Raise(node.error);
  }
  return node;
}

std::int32_t ScenarioParseNode::Parse(std::u16string_view /*text*/, std::int32_t /*mode*/) {
  toolkit_.Called();
  if (parser_ == nullptr) {
    Raise(0);
  }
  if (parser_->kind == ScenarioParser::Kind::FailingParse) {
    Raise(parser_->error);
  }
  return parser_->kind == ScenarioParser::Kind::Refuses ? parser_->error : toolkit::kParseSuccess;
}

Ref<ParseNode> ScenarioParseNode::FindNode(NodeTypeId type) {
  const ScenarioNode& node = Asked(FailingCall::FindNode);
  for (std::size_t i = position_ + 1; i < node.end; ++i) {
    if (tree_[i].type == type) {
      return Make<ScenarioParseNode>(toolkit_, tree_, i);
    }
  }
  return nullptr;
}

Ref<ParseNode> ScenarioParseNode::Child(std::size_t index) const {
  const std::vector<std::size_t>& children = tree_[position_].children;
  return index < children.size() ? Make<ScenarioParseNode>(toolkit_, tree_, children[index]) : nullptr;
}

Ref<toolkit::BufferOwner> ScenarioParseNode::Item(std::int32_t index) {
  Asked(FailingCall::Item);
  return index >= 1 ? Child(static_cast<std::size_t>(index) - 1) : nullptr;
}

std::u16string ScenarioParseNode::Buffer() {
  const ScenarioNode& node = Asked(FailingCall::Buffer);
  if (!node.hasBuffer) {
    Raise(0);
  }
  return node.buffer;
}

Ref<toolkit::NodeEnumerator> ScenarioParseNode::Children() {
  Asked(FailingCall::Children);
  return Make<Enumerator>(*this);
}

}  // namespace qorltst::fuzz
