// See Measured.h.
#include "bench/cost/Measured.h"

#include <filesystem>
#include <stdexcept>

#include "bench/cost/Plan.h"
#include "simulator/Node.h"
#include "simulator/RecordingReader.h"
#include "simulator/ScreenParser.h"

namespace qorltst::cost {
namespace {

using simulator::Node;
using toolkit::HostResponse;
using toolkit::NodeTypeId;
using toolkit::ParseNode;

constexpr std::size_t kWidth = toolkit::kLineLength;

std::u16string Padded(std::u16string line) {
  line.resize(kWidth, u' ');
  return line;
}

/// The parser object: asks marks of a single screen, and hands on the display's tree.
class MeasuredParser final : public ParseNode {
 public:
  explicit MeasuredParser(Ref<ParseNode> tree) : tree_(std::move(tree)) {}

  std::int32_t Parse(std::u16string_view text, std::int32_t /*mode*/) override {
    more_ = text.ends_with(u'>');
    return toolkit::kParseSuccess;
  }
  Ref<ParseNode> FindNode(NodeTypeId type) override {
    if (type == NodeTypeId::MoreScreens) {
      return more_ ? tree_ : nullptr;
    }
    return tree_->FindNode(type);
  }
  Ref<toolkit::NodeEnumerator> Children() override { return tree_->Children(); }
  NodeTypeId TypeId() override { return NodeTypeId::None; }
  std::u16string Text() override { return {}; }
  std::u16string ErrorText() override { return {}; }
  bool HasWarning() override { return false; }
  bool HasChildren() override { return true; }
  toolkit::Date DateValue() override { return {}; }
  Ref<toolkit::BufferOwner> Item(std::int32_t /*index*/) override { return nullptr; }
  std::u16string Buffer() override { return {}; }

 private:
  Ref<ParseNode> tree_;
  bool more_ = false;
};

class MeasuredLogger final : public toolkit::HostLogger {
 public:
  explicit MeasuredLogger(Notes* notes) : notes_(notes) {}

  void SetApplication(std::u16string_view /*name*/) override {}
  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) override {
    if (notes_ != nullptr) {
      ++notes_->counts.lines;
      notes_->lines.push_back({kind, std::u16string(source), number, std::u16string(message)});
    }
  }

 private:
  Notes* notes_;
};

void Count(Notes* notes) noexcept {
  if (notes != nullptr) {
    ++notes->counts.calls;
  }
}

class MeasuredResponse final : public HostResponse {
 public:
  MeasuredResponse(const std::u16string& text, Notes* notes) : text_(text), notes_(notes) {}
  std::u16string Text() override {
    Count(notes_);
    return text_;
  }

 private:
  const std::u16string& text_;
  Notes* notes_;
};

class MeasuredSession final : public toolkit::HostSession {
 public:
  MeasuredSession(const Display& display, Notes* notes) : display_(display), notes_(notes) {}

  Ref<HostResponse> SendCommand(std::u16string_view /*command*/, bool /*wait*/) override {
    Count(notes_);
    return Make<MeasuredResponse>(display_.screens.at(next_++), notes_);
  }
  void SetOption(std::int32_t /*option*/, bool /*value*/) override { Count(notes_); }

 private:
  const Display& display_;
  Notes* notes_;
  std::size_t next_ = 0;
};

Node Segment(std::size_t number) {
  const std::string digits = std::to_string(number);
  const std::u16string text(digits.begin(), digits.end());
  return Node(230, u"AIR " + text + u" QX 411 Y 12NOV 0910 OK",
              {Node(2699, text), Node(92, u"LON"), Node(3, u"QX"), Node(95, u"411"), Node(93, u"Y"), Node(94, u"12NOV"),
               Node(99, u"0910"), Node(96, u"OK"), Node(2707, u"YLE6M"), Node(2711, u"20K")});
}

Ref<simulator::TreeNode> TreeWithSegments(std::size_t count) {
  const Ref<simulator::TreeNode> tree = simulator::Tree({Node(602, u"TST 00001", {Node(2689, u"00001")})});
  for (std::size_t i = 1; i <= count; ++i) {
    tree->Add(Segment(i));
  }
  return tree;
}

}  // namespace

Display FromFile(const std::string& path) {
  const simulator::Recording recording = simulator::ReadRecording(std::filesystem::path(path));
  std::u16string whole;
  for (const std::u16string& screen : recording.at(0).screens) {
    whole += screen;
  }
  auto parser = Make<simulator::ScreenParser>();
  if (recording.at(0).screens.size() != 1 || parser->Parse(whole, toolkit::kParseMode) != toolkit::kParseSuccess) {
    throw std::runtime_error(path + ": a display of one screen is wanted");
  }
  return {{whole}, parser};
}

Display WithSegments(std::size_t count) { return {{Padded(u"TST 00001")}, TreeWithSegments(count)}; }

Display WithScreens(std::size_t count) {
  std::u16string body = Padded(u"TST 00001");
  for (int line = 0; line < 22; ++line) {
    body += Padded(u"A LINE OF A SCREEN");
  }
  std::u16string more = body + std::u16string(kWidth - 1, u' ') + u'>';
  Display display{std::vector<std::u16string>(count - 1, more), TreeWithSegments(1)};
  display.screens.push_back(body + Padded(u"END"));
  return display;
}

Ref<ParseNode> MeasuredToolkit::CreateParser() {
  Count(notes_);
  const Ref<ParseNode> parser = Make<MeasuredParser>(display_.tree);
  if (notes_ == nullptr) {
    return parser;
  }
  notes_->plans.push_back(std::make_shared<Plan>());
  return Noted(parser, *notes_->plans.back(), notes_->counts);
}

Ref<toolkit::HostLogger> MeasuredToolkit::CreateLogger() { return Make<MeasuredLogger>(notes_); }

Ref<toolkit::HostSession> MeasuredToolkit::Session() { return Make<MeasuredSession>(display_, notes_); }

}  // namespace qorltst::cost
