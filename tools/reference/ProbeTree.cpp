// See ProbeTree.h.
#include "tools/reference/ProbeTree.h"

#include "toolkit/HostNumbers.h"

namespace qorltst::reference {
namespace {

using toolkit::Make;
using toolkit::Ref;

struct Probe {
  const ProbePlan& plan;
  ProbeNotes& notes;
};

class ProbeBuffer final : public toolkit::BufferOwner {
 public:
  explicit ProbeBuffer(std::u16string_view text) : text_(text) {}

  std::u16string Buffer() override { return std::u16string(text_); }

 private:
  std::u16string_view text_;
};

/// A node at a depth of the path, 0 being the parser itself, or a child behind the path's end, or one aside.
class ProbeNode final : public toolkit::ParseNode {
 public:
  ProbeNode(Probe probe, NodeTypeId type, std::size_t depth, bool isAside)
      : probe_(probe), type_(type), depth_(depth), isAside_(isAside) {}

  std::int32_t Parse(std::u16string_view /*text*/, std::int32_t /*mode*/) override { return toolkit::kParseSuccess; }

  Ref<ParseNode> FindNode(NodeTypeId type) override {
    NoteContents();
    if (depth_ == 0 || isAside_ || IsBehindEnd()) {
      // The parser is only asked whether the display is a TST; of the others, nothing depends on what is in there.
      return Make<ProbeNode>(probe_, type, depth_ + 1, true);
    }
    if (IsEnd()) {
      probe_.notes.typesSought.insert(type);
    }
    return IsInside() && probe_.plan.path[depth_] == type ? Make<ProbeNode>(probe_, type, depth_ + 1, false) : nullptr;
  }

  NodeTypeId TypeId() override {
    if (IsBehindEnd()) {
      probe_.notes.typesRead.insert(type_);
    }
    return type_;
  }

  std::u16string Text() override { return Content(kProbeText); }
  std::u16string ErrorText() override { return Content(kProbeErrorText); }
  std::u16string Buffer() override { return Content(kProbeBuffer); }
  bool HasWarning() override { return false; }

  bool HasChildren() override {
    NoteContents();
    return true;
  }

  toolkit::Date DateValue() override {
    NoteContents();
    return {isAside_ ? 0 : kProbeDate};
  }

  Ref<toolkit::BufferOwner> Item(std::int32_t /*index*/) override {
    NoteContents();
    return Make<ProbeBuffer>(isAside_ ? kAsideText : kProbeBuffer);
  }

  Ref<toolkit::NodeEnumerator> Children() override;

 private:
  [[nodiscard]] bool IsEnd() const { return !isAside_ && depth_ == probe_.plan.path.size(); }
  [[nodiscard]] bool IsBehindEnd() const { return depth_ > probe_.plan.path.size(); }
  [[nodiscard]] bool IsInside() const { return !isAside_ && depth_ < probe_.plan.path.size(); }

  void NoteContents() {
    if (IsBehindEnd()) {
      probe_.notes.contentsRead.insert(type_);
    }
  }

  std::u16string Content(std::u16string_view text) {
    NoteContents();
    return std::u16string(isAside_ ? kAsideText : text);
  }

  Probe probe_;
  NodeTypeId type_;
  std::size_t depth_;
  bool isAside_;
};

class ProbeEnumerator final : public toolkit::NodeEnumerator {
 public:
  explicit ProbeEnumerator(std::vector<Ref<toolkit::ParseNode>> nodes) : nodes_(std::move(nodes)) {}

  Ref<toolkit::ParseNode> Next() override { return next_ < nodes_.size() ? nodes_[next_++] : nullptr; }

 private:
  std::vector<Ref<toolkit::ParseNode>> nodes_;
  std::size_t next_ = 0;
};

Ref<toolkit::NodeEnumerator> ProbeNode::Children() {
  NoteContents();
  std::vector<Ref<toolkit::ParseNode>> nodes;
  if (IsInside()) {
    const bool isLast = depth_ + 1 == probe_.plan.path.size();
    for (const NodeTypeId type : probe_.plan.inFront) {
      if (isLast || type == kUnknownType) {
        nodes.emplace_back(Make<ProbeNode>(probe_, type, depth_ + 1, true));
      }
    }
    nodes.emplace_back(Make<ProbeNode>(probe_, probe_.plan.path[depth_], depth_ + 1, false));
  } else if (IsEnd()) {
    probe_.notes.childrenWalked = true;
    for (const NodeTypeId type : probe_.plan.children) {
      nodes.emplace_back(Make<ProbeNode>(probe_, type, depth_ + 1, false));
    }
  }
  return Make<ProbeEnumerator>(std::move(nodes));
}

class SilentLogger final : public toolkit::HostLogger {
 public:
  void SetApplication(std::u16string_view /*name*/) override {}
  void Write(std::int32_t /*kind*/, std::u16string_view /*source*/, std::int32_t /*number*/,
             std::u16string_view /*message*/) override {}
};

class ProbeToolkit final : public toolkit::Toolkit {
 public:
  explicit ProbeToolkit(Probe probe) : probe_(probe) {}

  Ref<toolkit::ParseNode> CreateParser() override {
    return Make<ProbeNode>(probe_, NodeTypeId::None, std::size_t{0}, false);
  }
  Ref<toolkit::HostLogger> CreateLogger() override { return Make<SilentLogger>(); }

 private:
  Probe probe_;
};

}  // namespace

Ref<toolkit::Toolkit> MakeProbeToolkit(const ProbePlan& plan, ProbeNotes& notes) {
  return Make<ProbeToolkit>(Probe{plan, notes});
}

}  // namespace qorltst::reference
