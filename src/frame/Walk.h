// Walks over a node's children that read like the grammar they follow.
//
//   Walk(node, On(NodeTypeId::CurrencyCode, Text(currency_)),
//              On(NodeTypeId::BankersRateGroup, Children(On(NodeTypeId::BankersRateId, Text(rate_)))));
#pragma once

#include <string>
#include <utility>

#include "toolkit/ParseNode.h"

namespace qorltst {

/// Calls `visit(child)` for each direct child, in display order; children are pulled one after another.
template <class Visit>
void ForEachChild(toolkit::ParseNode& node, Visit&& visit) {
  const toolkit::Ref<toolkit::NodeEnumerator> children = node.Children();
  while (const toolkit::Ref<toolkit::ParseNode> child = children->Next()) {
    visit(*child);
  }
}

/// An action for the children of one type.
template <class Action>
struct Rule {
  toolkit::NodeTypeId type;
  Action action;
};

template <class Action>
[[nodiscard]] Rule<Action> On(toolkit::NodeTypeId type, Action action) {
  return {type, std::move(action)};
}

/// Acts on a node by the rule for its type, which is read once; a node without a rule is skipped.
template <class... Actions>
void Choose(toolkit::ParseNode& node, const Rule<Actions>&... rules) {
  const toolkit::NodeTypeId type = node.TypeId();
  static_cast<void>(((type == rules.type && (static_cast<void>(rules.action(node)), true)) || ...));
}

/// Acts on each direct child by the rule for its type.
template <class... Actions>
void Walk(toolkit::ParseNode& node, const Rule<Actions>&... rules) {
  ForEachChild(node, [&](toolkit::ParseNode& child) { Choose(child, rules...); });
}

/// The action that stores a node's text.
[[nodiscard]] inline auto Text(std::u16string& target) {
  return [&target](toolkit::ParseNode& node) { target = node.Text(); };
}

/// The action that sets a flag where its marker node occurs; the marker's text is not read.
[[nodiscard]] inline auto Mark(bool& flag) {
  return [&flag](toolkit::ParseNode& /*marker*/) { flag = true; };
}

/// The action that adds a node's text to what is there.
[[nodiscard]] inline auto AppendText(std::u16string& target) {
  return [&target](toolkit::ParseNode& node) { target += node.Text(); };
}

/// The text of the object's "Buffer"; an absent object is the runtime error 91.
[[nodiscard]] std::u16string BufferOf(const toolkit::Ref<toolkit::BufferOwner>& owner);

/// The action that stores the "Buffer" of a node's first item, which must be there.
[[nodiscard]] inline auto ItemBuffer(std::u16string& target) {
  return [&target](toolkit::ParseNode& node) { target = BufferOf(node.Item(1)); };
}

/// The same where the item may be absent: then nothing is stored.
[[nodiscard]] inline auto ItemBufferIfPresent(std::u16string& target) {
  return [&target](toolkit::ParseNode& node) {
    if (const auto item = node.Item(1)) {
      target = item->Buffer();
    }
  };
}

/// The action that walks a node's own children.
template <class... Actions>
[[nodiscard]] auto Children(Rule<Actions>... rules) {
  return [rules...](toolkit::ParseNode& node) { Walk(node, rules...); };
}

}  // namespace qorltst
