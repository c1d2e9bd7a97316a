// Walks the lines of a display and gives each to its kind. See DisplayParser.h; the kinds are in LineKind.cpp.
#include "simulator/DisplayParser.h"

#include <algorithm>

#include "simulator/DisplayError.h"
#include "simulator/LineKind.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

constexpr bool IsControl(char16_t character) { return character < 0x20 || (character >= 0x7F && character <= 0x9F); }

/// Displays are printable text; anything else means that the transfer went wrong.
void CheckCharacters(std::u16string_view text) {
  const auto control = static_cast<std::size_t>(std::ranges::find_if(text, IsControl) - text.begin());
  const std::size_t surrogate = FindLoneSurrogate(text).value_or(text.size());
  if (control < surrogate) {
    throw DisplayError(kDamagedText, DescribePlace(control) + u": control character");
  }
  if (surrogate < text.size()) {
    throw DisplayError(kDamagedText, DescribePlace(surrogate) + u": half a surrogate pair");
  }
}

class DisplayParser {
 public:
  void Read(const DisplayLine& line) {
    const LineKind* const kind = FindLineKind(line);
    if (kind == nullptr) {
      ReadUnknown(line);
    } else if (kind->type != NodeTypeId::None) {
      ReadKnown(line, *kind);
    }
  }

  [[nodiscard]] std::vector<Ref<TreeNode>> TakeNodes() { return std::move(nodes_); }

 private:
  void ReadUnknown(const DisplayLine& line) {
    if (insideTst_) {
      const LineReader reader(line, AddNode(kUnknownLine, line));
      reader.Warn({}, u"unknown line");
    }
  }

  void ReadKnown(const DisplayLine& line, const LineKind& kind) {
    LineReader reader(line, AddNode(kind.type, line));
    if (kind.type == NodeTypeId::TstRoot) {
      if (insideTst_) {
        reader.Warn({}, u"second header");
      }
      insideTst_ = true;
    }
    if (kind.read != nullptr) {
      kind.read(reader);
    }
    if (!reader.AtEnd()) {
      reader.Warn(reader.Peek(), u"unexpected text");
    }
  }

  TreeNode& AddNode(NodeTypeId type, const DisplayLine& line) {
    return *nodes_.emplace_back(Make<TreeNode>(type, line.text));
  }

  std::vector<Ref<TreeNode>> nodes_;
  bool insideTst_ = false;
};

}  // namespace

std::vector<Ref<TreeNode>> ParseDisplay(std::u16string_view text) {
  CheckCharacters(text);
  DisplayParser parser;
  for (const DisplayLine& line : SplitDisplay(text)) {
    parser.Read(line);
  }
  return parser.TakeNodes();
}

}  // namespace qorltst::simulator
