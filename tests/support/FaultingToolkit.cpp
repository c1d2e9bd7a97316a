// Wrappers that note each call and pass it on. See FaultingToolkit.h.
#include "tests/support/FaultingToolkit.h"

#include <type_traits>
#include <utility>

namespace qorltst::testing {
namespace {

using toolkit::BufferOwner;
using toolkit::HostLogger;
using toolkit::HostResponse;
using toolkit::HostSession;
using toolkit::Make;
using toolkit::NodeEnumerator;
using toolkit::NodeTypeId;
using toolkit::ParseNode;
using toolkit::Ref;
using Kind = FaultPlan::Kind;
using PlanRef = Ref<FaultPlan>;

thread_local int toolkitDepth = 0;

/// While it lives the thread is inside the toolkit.
class ToolkitScope {
 public:
  ToolkitScope() noexcept { ++toolkitDepth; }
  ~ToolkitScope() { --toolkitDepth; }
  ToolkitScope(const ToolkitScope&) = delete;
  ToolkitScope& operator=(const ToolkitScope&) = delete;
};

Ref<ParseNode> WrapNode(const PlanRef& plan, const Ref<ParseNode>& node);

class FaultingItem final : public BufferOwner {
 public:
  FaultingItem(PlanRef plan, Ref<BufferOwner> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  std::u16string Buffer() override {
    const ToolkitScope scope;
    plan_->Called(Operation::Buffer);
    return plan_->Noted(inner_->Buffer());
  }

 private:
  PlanRef plan_;
  Ref<BufferOwner> inner_;
};

class FaultingEnumerator final : public NodeEnumerator {
 public:
  FaultingEnumerator(PlanRef plan, Ref<NodeEnumerator> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  Ref<ParseNode> Next() override {
    const ToolkitScope scope;
    if (plan_->Called(Operation::Next, Kind::Absent) == Kind::Absent) {
      return nullptr;
    }
    return WrapNode(plan_, inner_->Next());
  }

 private:
  PlanRef plan_;
  Ref<NodeEnumerator> inner_;
};

class FaultingNode final : public ParseNode {
 public:
  FaultingNode(PlanRef plan, Ref<ParseNode> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override {
    const ToolkitScope scope;
    const bool refused = plan_->Called(Operation::Parse, Kind::Refusal) == Kind::Refusal;
    return refused ? 0 : inner_->Parse(text, mode);
  }
  Ref<ParseNode> FindNode(NodeTypeId type) override {
    const ToolkitScope scope;
    const auto sought = static_cast<std::int32_t>(type);
    const bool absent = plan_->Called(Operation::FindNode, Kind::Absent, sought) == Kind::Absent;
    return absent ? nullptr : WrapNode(plan_, inner_->FindNode(type));
  }
  NodeTypeId TypeId() override { return Ask(Operation::TypeId, &ParseNode::TypeId); }
  std::u16string Text() override { return Ask(Operation::Text, &ParseNode::Text); }
  std::u16string ErrorText() override { return Ask(Operation::ErrorText, &ParseNode::ErrorText); }
  bool HasWarning() override { return Ask(Operation::HasWarning, &ParseNode::HasWarning); }
  bool HasChildren() override { return Ask(Operation::HasChildren, &ParseNode::HasChildren); }
  toolkit::Date DateValue() override { return Ask(Operation::DateValue, &ParseNode::DateValue); }
  std::u16string Buffer() override { return Ask(Operation::Buffer, &ParseNode::Buffer); }
  Ref<BufferOwner> Item(std::int32_t index) override {
    const ToolkitScope scope;
    if (plan_->Called(Operation::Item, Kind::Absent) == Kind::Absent) {
      return nullptr;
    }
    const Ref<BufferOwner> item = inner_->Item(index);
    return item ? Ref<BufferOwner>(Make<FaultingItem>(plan_, item)) : nullptr;
  }
  Ref<NodeEnumerator> Children() override {
    const ToolkitScope scope;
    plan_->Called(Operation::Children);
    return Make<FaultingEnumerator>(plan_, inner_->Children());
  }

 private:
  template <class Result, class Class>
  Result Ask(Operation operation, Result (Class::*question)()) {
    const ToolkitScope scope;
    plan_->Called(operation);
    if constexpr (std::is_same_v<Result, std::u16string>) {
      return plan_->Noted(((*inner_).*question)());
    } else {
      return ((*inner_).*question)();
    }
  }

  PlanRef plan_;
  Ref<ParseNode> inner_;
};

Ref<ParseNode> WrapNode(const PlanRef& plan, const Ref<ParseNode>& node) {
  return node ? Ref<ParseNode>(Make<FaultingNode>(plan, node)) : nullptr;
}

class FaultingResponse final : public HostResponse {
 public:
  FaultingResponse(PlanRef plan, Ref<HostResponse> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  std::u16string Text() override {
    const ToolkitScope scope;
    plan_->Called(Operation::ResponseText);
    return inner_->Text();
  }

 private:
  PlanRef plan_;
  Ref<HostResponse> inner_;
};

class FaultingSession final : public HostSession {
 public:
  FaultingSession(PlanRef plan, Ref<HostSession> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  Ref<HostResponse> SendCommand(std::u16string_view command, bool wait) override {
    const ToolkitScope scope;
    if (plan_->Called(Operation::SendCommand, Kind::Absent) == Kind::Absent) {
      return nullptr;
    }
    const Ref<HostResponse> response = inner_->SendCommand(command, wait);
    return response ? Ref<HostResponse>(Make<FaultingResponse>(plan_, response)) : nullptr;
  }
  void SetOption(std::int32_t option, bool value) override {
    const ToolkitScope scope;
    plan_->Called(Operation::SetOption);
    inner_->SetOption(option, value);
  }

 private:
  PlanRef plan_;
  Ref<HostSession> inner_;
};

class FaultingLogger final : public HostLogger {
 public:
  FaultingLogger(PlanRef plan, Ref<HostLogger> inner) : plan_(std::move(plan)), inner_(std::move(inner)) {}

  void SetApplication(std::u16string_view name) override {
    const ToolkitScope scope;
    plan_->LoggerCalled();
    inner_->SetApplication(name);
  }
  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) override {
    const ToolkitScope scope;
    plan_->LoggerCalled();
    inner_->Write(kind, source, number, message);
  }

 private:
  PlanRef plan_;
  Ref<HostLogger> inner_;
};

}  // namespace

bool InsideToolkit() noexcept { return toolkitDepth > 0; }

void FaultPlan::Arm(std::size_t n, Kind kind, std::function<void()> raise) {
  at_ = calls_.size() + n;
  kind_ = kind;
  raise_ = std::move(raise);
  struck_ = false;
}

void FaultPlan::RaiseAt(std::size_t n, std::function<void()> raise) { Arm(n, Kind::Raise, std::move(raise)); }
void FaultPlan::AbsentAt(std::size_t n) { Arm(n, Kind::Absent, {}); }
void FaultPlan::RefuseAt(std::size_t n) { Arm(n, Kind::Refusal, {}); }

void FaultPlan::RaiseInLoggerAt(std::size_t n, std::function<void()> raise) {
  loggerAt_ = loggerCalls_ + n;
  raise_ = std::move(raise);
  struck_ = false;
}

Kind FaultPlan::Called(Operation operation, Kind possible, std::int32_t sought) {
  calls_.push_back({operation, sought, logLength()});
  if (calls_.size() != at_) {
    return Kind::None;
  }
  if (kind_ == Kind::Raise) {
    struck_ = true;
    raise_();
  }
  struck_ = struck_ || kind_ == possible;
  return kind_ == possible ? kind_ : Kind::None;
}

void FaultPlan::LoggerCalled() {
  if (++loggerCalls_ == loggerAt_) {
    struck_ = true;
    raise_();
  }
}

std::u16string FaultPlan::Noted(std::u16string text) {
  texts_.insert(text);
  return text;
}

FaultingToolkit::FaultingToolkit(Ref<toolkit::Toolkit> inner) : inner_(std::move(inner)), plan_(Make<FaultPlan>()) {}

Ref<ParseNode> FaultingToolkit::CreateParser() {
  const ToolkitScope scope;
  plan_->Called(Operation::CreateParser);
  return WrapNode(plan_, inner_->CreateParser());
}

Ref<HostLogger> FaultingToolkit::CreateLogger() {
  const ToolkitScope scope;
  plan_->LoggerCalled();
  return Make<FaultingLogger>(plan_, inner_->CreateLogger());
}

Ref<HostSession> FaultingToolkit::Wrap(Ref<HostSession> session) const {
  return Make<FaultingSession>(plan_, std::move(session));
}

}  // namespace qorltst::testing
