// See Plan.h.
#include "bench/cost/Plan.h"

#include <utility>

namespace qorltst::cost {
namespace {

using toolkit::BufferOwner;
using toolkit::NodeEnumerator;
using toolkit::NodeTypeId;
using toolkit::ParseNode;

class NotedItem final : public BufferOwner {
 public:
  NotedItem(Ref<BufferOwner> inner, Plan& plan, Counts& counts)
      : inner_(std::move(inner)), plan_(plan), counts_(counts) {}
  std::u16string Buffer() override {
    ++counts_.calls;
    plan_.buffer = true;
    return inner_->Buffer();
  }

 private:
  Ref<BufferOwner> inner_;
  Plan& plan_;
  Counts& counts_;
};

class NotedEnumerator final : public NodeEnumerator {
 public:
  NotedEnumerator(Ref<NodeEnumerator> inner, Plan& plan, Counts& counts)
      : inner_(std::move(inner)), plan_(plan), counts_(counts) {}
  Ref<ParseNode> Next() override {
    ++counts_.calls;
    const Ref<ParseNode> child = inner_->Next();
    if (!child) {
      return nullptr;
    }
    if (plan_.children.size() == taken_) {
      plan_.children.push_back(std::make_unique<Plan>());
    }
    return Noted(child, *plan_.children[taken_++], counts_);
  }

 private:
  Ref<NodeEnumerator> inner_;
  Plan& plan_;
  Counts& counts_;
  std::size_t taken_ = 0;
};

Plan& PlanAt(std::map<std::int32_t, std::unique_ptr<Plan>>& plans, std::int32_t key) {
  auto& plan = plans[key];
  if (!plan) {
    plan = std::make_unique<Plan>();
  }
  return *plan;
}

class NotedNode final : public ParseNode {
 public:
  NotedNode(Ref<ParseNode> inner, Plan& plan, Counts& counts)
      : inner_(std::move(inner)), plan_(plan), counts_(counts) {}

  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override {
    ++counts_.calls;
    return inner_->Parse(text, mode);
  }
  Ref<ParseNode> FindNode(NodeTypeId type) override {
    ++counts_.calls;
    Plan& plan = PlanAt(plan_.found, static_cast<std::int32_t>(type));
    const Ref<ParseNode> node = inner_->FindNode(type);
    return node ? Noted(node, plan, counts_) : nullptr;
  }
  NodeTypeId TypeId() override { return Ask(plan_.type, &ParseNode::TypeId); }
  std::u16string Text() override { return Ask(plan_.text, &ParseNode::Text); }
  std::u16string ErrorText() override { return Ask(plan_.errorText, &ParseNode::ErrorText); }
  bool HasWarning() override { return Ask(plan_.warning, &ParseNode::HasWarning); }
  bool HasChildren() override { return Ask(plan_.hasChildren, &ParseNode::HasChildren); }
  toolkit::Date DateValue() override { return Ask(plan_.date, &ParseNode::DateValue); }
  std::u16string Buffer() override { return Ask<std::u16string, BufferOwner>(plan_.buffer, &BufferOwner::Buffer); }
  Ref<BufferOwner> Item(std::int32_t index) override {
    ++counts_.calls;
    Plan& plan = PlanAt(plan_.items, index);
    const Ref<BufferOwner> item = inner_->Item(index);
    return item ? Ref<BufferOwner>(Make<NotedItem>(item, plan, counts_)) : nullptr;
  }
  Ref<NodeEnumerator> Children() override {
    ++counts_.calls;
    plan_.enumerated = true;
    return Make<NotedEnumerator>(inner_->Children(), plan_, counts_);
  }

 private:
  template <class Answer, class Asked>
  Answer Ask(bool& noted, Answer (Asked::*question)()) {
    ++counts_.calls;
    noted = true;
    return (static_cast<Asked&>(*inner_).*question)();
  }

  Ref<ParseNode> inner_;
  Plan& plan_;
  Counts& counts_;
};

void WalkItem(BufferOwner* item, const Plan& plan, Harvested& harvested) {
  if (item != nullptr && plan.buffer) {
    harvested.texts.push_back(item->Buffer());
  }
}

void AskNode(ParseNode& node, const Plan& plan, Harvested& harvested) {
  if (plan.type) {
    harvested.types.push_back(node.TypeId());
  }
  if (plan.text) {
    harvested.texts.push_back(node.Text());
  }
  if (plan.errorText) {
    harvested.texts.push_back(node.ErrorText());
  }
  if (plan.warning) {
    harvested.flags += node.HasWarning() ? 1U : 0U;
  }
  if (plan.hasChildren) {
    harvested.flags += node.HasChildren() ? 1U : 0U;
  }
  if (plan.date) {
    harvested.days += node.DateValue().days;
  }
}

}  // namespace

Ref<ParseNode> Noted(const Ref<ParseNode>& node, Plan& plan, Counts& counts) {
  return Make<NotedNode>(node, plan, counts);
}

void WalkBare(ParseNode& node, const Plan& plan, Harvested& harvested) {
  AskNode(node, plan, harvested);
  WalkItem(&node, plan, harvested);
  for (const auto& [index, itemPlan] : plan.items) {
    WalkItem(node.Item(index).Get(), *itemPlan, harvested);
  }
  for (const auto& [type, foundPlan] : plan.found) {
    if (const auto found = node.FindNode(NodeTypeId{type})) {
      WalkBare(*found, *foundPlan, harvested);
    }
  }
  if (plan.enumerated) {
    const auto children = node.Children();
    for (const auto& childPlan : plan.children) {
      WalkBare(*children->Next(), *childPlan, harvested);
    }
    // An enumeration is over when it gives nothing.
    harvested.flags += children->Next() ? 1U : 0U;
  }
}

}  // namespace qorltst::cost
