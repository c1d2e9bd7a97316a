// See TestToolkit.h.
#include "tests/support/TestToolkit.h"

#include <memory>

namespace qorltst::testing {
namespace {

using toolkit::BufferOwner;
using toolkit::NodeEnumerator;
using toolkit::ParseNode;
using toolkit::RuntimeError;

constexpr std::int32_t kMemberNotFound = 438;

class TestNode;

class TestEnumerator final : public NodeEnumerator {
 public:
  TestEnumerator(TestToolkit& toolkit, const Tree& parent) : toolkit_(toolkit), parent_(parent) {}
  Ref<ParseNode> Next() override;

 private:
  TestToolkit& toolkit_;
  const Tree& parent_;
  std::size_t next_ = 0;
};

/// A view of a node of a tree that somebody else keeps.
class TestNode : public ParseNode {
 public:
  TestNode(TestToolkit& toolkit, const Tree& tree) : toolkit_(toolkit), tree_(tree) {}

  std::int32_t Parse(std::u16string_view /*text*/, std::int32_t /*mode*/) override {
    throw RuntimeError(kMemberNotFound);
  }
  Ref<ParseNode> FindNode(NodeTypeId type) override {
    toolkit_.Called("FindNode " + std::to_string(static_cast<std::int32_t>(type)));
    return Find(tree_, static_cast<std::int32_t>(type));
  }
  NodeTypeId TypeId() override {
    Called("TypeId");
    return static_cast<NodeTypeId>(tree_.type);
  }
  std::u16string Text() override {
    Called("Text");
    return tree_.text;
  }
  std::u16string ErrorText() override {
    Called("ErrorText");
    return tree_.errorText;
  }
  bool HasWarning() override {
    Called("HasWarning");
    return tree_.warning;
  }
  bool HasChildren() override {
    Called("HasChildren");
    return !tree_.children.empty();
  }
  toolkit::Date DateValue() override {
    Called("DateValue");
    return {tree_.date};
  }
  Ref<BufferOwner> Item(std::int32_t index) override {
    Called("Item");
    if (index < 1 || static_cast<std::size_t>(index) > tree_.children.size()) {
      return nullptr;
    }
    return toolkit::Make<TestNode>(toolkit_, tree_.children[static_cast<std::size_t>(index) - 1]);
  }
  std::u16string Buffer() override {
    Called("Buffer");
    if (!tree_.buffer) {
      throw RuntimeError(kMemberNotFound);
    }
    return *tree_.buffer;
  }
  Ref<NodeEnumerator> Children() override {
    Called("Children");
    return toolkit::Make<TestEnumerator>(toolkit_, tree_);
  }

 protected:
  void Called(const std::string& call) { toolkit_.Called(call + " " + std::to_string(tree_.type)); }

  Ref<ParseNode> Find(const Tree& tree, std::int32_t type) {
    for (const Tree& child : tree.children) {
      if (child.type == type) {
        return toolkit::Make<TestNode>(toolkit_, child);
      }
      if (Ref<ParseNode> found = Find(child, type)) {
        return found;
      }
    }
    return nullptr;
  }

  TestToolkit& toolkit_;

 private:
  const Tree& tree_;
};

Ref<ParseNode> TestEnumerator::Next() {
  toolkit_.Called("Next " + std::to_string(parent_.type));
  if (next_ == parent_.children.size()) {
    return nullptr;
  }
  return toolkit::Make<TestNode>(toolkit_, parent_.children[next_++]);
}

/// Base from member: the tree must be there before the node that looks at it.
struct OwnedTree {
  Tree owned;
};

/// A root with a tree of its own. Nodes that are taken from it must not outlive it.
class TestRoot final : private OwnedTree, public TestNode {
 public:
  TestRoot(TestToolkit& toolkit, Tree tree) : OwnedTree{std::move(tree)}, TestNode(toolkit, owned) {}

  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override {
    toolkit_.Called("Parse " + std::to_string(mode));
    Parsed parsed = toolkit_.Parse(text);
    owned.children = std::move(parsed.nodes);
    return parsed.result;
  }
};

class TestLogger final : public toolkit::HostLogger {
 public:
  explicit TestLogger(TestToolkit& toolkit) : toolkit_(&toolkit) {}

  void SetApplication(std::u16string_view name) override {
    toolkit_->LoggerCalled("SetApplication");
    toolkit_->applications.emplace_back(name);
  }
  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) override {
    toolkit_->LoggerCalled("Write");
    toolkit_->log.push_back({kind, std::u16string(source), number, std::u16string(message)});
  }

 private:
  Ref<TestToolkit> toolkit_;
};

class TestResponse final : public toolkit::HostResponse {
 public:
  TestResponse(TestToolkit& toolkit, std::u16string text) : toolkit_(toolkit), text_(std::move(text)) {}

  std::u16string Text() override {
    toolkit_.Called("ResponseText");
    return text_;
  }

 private:
  TestToolkit& toolkit_;
  std::u16string text_;
};

}  // namespace

Tree Tree::WithError(std::u16string newText) const {
  Tree tree = *this;
  tree.errorText = std::move(newText);
  return tree;
}

Tree Tree::WithWarning() const {
  Tree tree = *this;
  tree.warning = true;
  return tree;
}

Tree Tree::WithDate(double days) const {
  Tree tree = *this;
  tree.date = days;
  return tree;
}

Tree Tree::WithBuffer(std::u16string newText) const {
  Tree tree = *this;
  tree.buffer = std::move(newText);
  return tree;
}

Entry TraceEntry(std::u16string_view message, std::u16string_view source) {
  return {toolkit::kLogTrace, u"QorlTST." + std::u16string(source), 1, std::u16string(message)};
}

Entry HostErrorEntry(std::int32_t number, std::u16string_view source, std::u16string_view text) {
  return {toolkit::kLogError, u"QorlTST." + std::u16string(source), number, std::u16string(text)};
}

std::vector<Entry> Around(std::u16string_view operation, std::u16string_view className, std::vector<Entry> between) {
  const std::u16string name = std::u16string(operation) + u"(in " + std::u16string(className) + u") Function";
  const std::u16string source = std::u16string(className) + u"." + std::u16string(operation);
  between.insert(between.begin(), TraceEntry(u"Beginning of " + name, source));
  between.push_back(TraceEntry(u"End of " + name, source));
  return between;
}

std::vector<Entry> EmptyHeaderLog() {
  return Around(u"BuildHeaderLine", u"TstParser", Around(u"FillTextWithData", u"TstHeader"));
}

std::vector<Entry> Concat(std::vector<std::vector<Entry>> logs) {
  std::vector<Entry> all;
  for (std::vector<Entry>& log : logs) {
    all.insert(all.end(), std::make_move_iterator(log.begin()), std::make_move_iterator(log.end()));
  }
  return all;
}

TestToolkit::TestToolkit(Parsed always)
    : parser_([always = std::move(always)](std::u16string_view) { return always; }) {}

Ref<ParseNode> TestToolkit::CreateParser() {
  Called("CreateParser");
  return toolkit::Make<TestRoot>(*this, Tree{});
}

Ref<toolkit::HostLogger> TestToolkit::CreateLogger() {
  ++loggersCreated;
  LoggerCalled("CreateLogger");
  return toolkit::Make<TestLogger>(*this);
}

Ref<ParseNode> TestToolkit::Node(Tree tree) { return toolkit::Make<TestRoot>(*this, std::move(tree)); }

void TestToolkit::FailAt(std::size_t n, const RuntimeError& error) {
  failAt_ = calls.size() + n;
  failure_ = error;
}

void TestToolkit::Called(std::string call) {
  calls.push_back(std::move(call));
  if (calls.size() == failAt_) {
    throw RuntimeError(*failure_);
  }
}

void TestToolkit::LoggerCalled(const std::string& call) {
  loggerCalls.push_back(call);
  if (call == failingLoggerCall_) {
    throw RuntimeError(kMemberNotFound);
  }
}

Ref<toolkit::HostResponse> TestSession::SendCommand(std::u16string_view command, bool wait) {
  commands.push_back(std::u16string(command) + (wait ? u"" : u" without waiting"));
  toolkit_.Called("SendCommand");
  if (screens_.empty()) {
    return nullptr;
  }
  const std::optional<std::u16string> screen = screens_.front();
  screens_.pop_front();
  return screen ? toolkit::Make<TestResponse>(toolkit_, *screen) : Ref<TestResponse>();
}

void TestSession::SetOption(std::int32_t option, bool value) {
  commands.push_back(u"SetOption");
  toolkit_.Called("SetOption " + std::to_string(option) + (value ? " True" : " False"));
}

std::u16string Line(std::u16string_view text) {
  std::u16string line(text);
  line.resize(toolkit::kLineLength, u' ');
  return line;
}

std::u16string Screen(const std::vector<std::u16string>& lines) {
  std::u16string screen;
  for (const std::u16string& line : lines) {
    screen += Line(line);
  }
  return screen;
}

}  // namespace qorltst::testing
