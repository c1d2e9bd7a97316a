// A node of a scenario's tree, and its enumerator.
#pragma once

#include "fuzz/support/ScenarioToolkit.h"

namespace qorltst::fuzz {

class ScenarioParseNode final : public toolkit::ParseNode {
 public:
  /// The root, which is the parser.
  ScenarioParseNode(ScenarioToolkit& toolkit, const ScenarioTree& tree, const ScenarioParser& parser)
      : toolkit_(toolkit), tree_(tree), parser_(&parser) {}

  ScenarioParseNode(ScenarioToolkit& toolkit, const ScenarioTree& tree, std::size_t position)
      : toolkit_(toolkit), tree_(tree), position_(position) {}

  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override;
  toolkit::Ref<toolkit::ParseNode> FindNode(NodeTypeId type) override;
  NodeTypeId TypeId() override { return Asked(FailingCall::TypeId).type; }
  std::u16string Text() override { return Asked(FailingCall::Text).text; }
  std::u16string ErrorText() override { return Asked(FailingCall::ErrorText).errorText; }
  bool HasWarning() override { return Asked(FailingCall::HasWarning).warning; }
  bool HasChildren() override { return !Asked(FailingCall::HasChildren).children.empty(); }
  toolkit::Date DateValue() override { return {Asked(FailingCall::DateValue).date}; }
  toolkit::Ref<toolkit::BufferOwner> Item(std::int32_t index) override;
  std::u16string Buffer() override;
  toolkit::Ref<toolkit::NodeEnumerator> Children() override;

  /// The node, unless it fails at this call.
  const ScenarioNode& Asked(FailingCall call);

  /// A child of it, counted from 0; nothing behind the last.
  [[nodiscard]] toolkit::Ref<toolkit::ParseNode> Child(std::size_t index) const;
  [[nodiscard]] std::size_t ChildCount() const { return tree_[position_].children.size(); }

 private:
  ScenarioToolkit& toolkit_;
  const ScenarioTree& tree_;
  std::size_t position_ = 0;
  const ScenarioParser* parser_ = nullptr;
};

}  // namespace qorltst::fuzz
