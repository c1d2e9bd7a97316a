// Each leaf takes a row, each level a column as wide as its longest text; a parent stands beside the middle of its
// children. See Drawing.h.
#include "tools/reference/Drawing.h"

#include <algorithm>
#include <string>
#include <vector>

#include "simulator/Utf.h"

namespace qorltst::reference {
namespace {

using simulator::ToUtf8;

constexpr int kMargin = 16;
constexpr int kRowHeight = 46;
constexpr int kBoxHeight = 36;
constexpr int kColumnGap = 36;
constexpr int kTextIndent = 8;
constexpr double kCharacterWidth = 7.3;
constexpr int kStackOffset = 3;
constexpr int kFirstBaseline = 15;
constexpr int kSecondBaseline = 29;

constexpr const char* kStyle = R"(  <style>
    .page { fill: #ffffff; }
    .box { fill: #eef3f8; stroke: #4a6580; }
    .line { fill: none; stroke: #4a6580; }
    text { font: 12px "DejaVu Sans Mono", Consolas, Menlo, monospace; fill: #1c2833; }
    .name { font-weight: bold; }
    @media (prefers-color-scheme: dark) {
      .page { fill: #14191f; }
      .box { fill: #243240; stroke: #8fb0cf; }
      .line { stroke: #8fb0cf; }
      text { fill: #e8eef4; }
    }
  </style>
)";

/// A node with its place. Y is the middle of its box.
struct Placed {
  const ModelNode* node;
  std::size_t level;
  int y;
  std::vector<Placed> children;
};

Placed Place(const ModelNode& node, std::size_t level, int& rows) {
  Placed placed{&node, level, 0, {}};
  for (const ModelNode& child : node.children) {
    placed.children.push_back(Place(child, level + 1, rows));
  }
  placed.y = placed.children.empty() ? kMargin + rows++ * kRowHeight + kRowHeight / 2
                                     : (placed.children.front().y + placed.children.back().y) / 2;
  return placed;
}

std::string FirstLine(const ModelNode& node) { return ToUtf8(node.property.empty() ? node.type->name : node.property); }

std::string SecondLine(const ModelNode& node) {
  if (node.property.empty()) {
    return "the root";
  }
  return (node.isCollection ? "0..n " : "") + ToUtf8(node.type->name);
}

struct Column {
  int left = 0;
  int width = 0;
};

void Widen(std::vector<Column>& columns, const Placed& placed) {
  columns.resize(std::max(columns.size(), placed.level + 1));
  const std::size_t longest = std::max(FirstLine(*placed.node).size(), SecondLine(*placed.node).size());
  Column& column = columns[placed.level];
  column.width =
      std::max(column.width, static_cast<int>(static_cast<double>(longest) * kCharacterWidth) + 2 * kTextIndent);
  for (const Placed& child : placed.children) {
    Widen(columns, child);
  }
}

std::vector<Column> ColumnsOf(const Placed& root) {
  std::vector<Column> columns;
  Widen(columns, root);
  int left = kMargin;
  for (Column& column : columns) {
    column.left = left;
    left += column.width + kColumnGap;
  }
  return columns;
}

class Drawing {
 public:
  Drawing(std::ostream& out, std::vector<Column> columns) : out_(out), columns_(std::move(columns)) {}

  void Draw(const Placed& placed) {
    for (const Placed& child : placed.children) {
      DrawLine(placed, child);
    }
    DrawBox(placed);
    for (const Placed& child : placed.children) {
      Draw(child);
    }
  }

  [[nodiscard]] int Width() const { return columns_.back().left + columns_.back().width + kMargin; }

 private:
  void DrawLine(const Placed& from, const Placed& to) {
    const Column& column = columns_[from.level];
    const int start = column.left + column.width;
    out_ << "  <path class='line' d='M" << start << ' ' << from.y << "H" << start + kColumnGap / 2 << "V" << to.y << "H"
         << columns_[to.level].left << "'/>\n";
  }

  /// A collection is a small stack.
  void DrawBox(const Placed& placed) {
    if (placed.node->isCollection) {
      DrawRectangle(placed, kStackOffset);
    }
    DrawRectangle(placed, 0);
    DrawText(placed, kFirstBaseline, " class='name'", FirstLine(*placed.node));
    DrawText(placed, kSecondBaseline, "", SecondLine(*placed.node));
  }

  void DrawRectangle(const Placed& placed, int offset) {
    const Column& column = columns_[placed.level];
    out_ << "  <rect class='box' x='" << column.left + offset << "' y='" << Top(placed) + offset << "' width='"
         << column.width << "' height='" << kBoxHeight << "' rx='4'/>\n";
  }

  void DrawText(const Placed& placed, int baseline, const char* attributes, const std::string& text) {
    out_ << "  <text" << attributes << " x='" << columns_[placed.level].left + kTextIndent << "' y='"
         << Top(placed) + baseline << "'>" << text << "</text>\n";
  }

  static int Top(const Placed& placed) { return placed.y - kBoxHeight / 2; }

  std::ostream& out_;
  std::vector<Column> columns_;
};

/// "TST has AirSegments (0..n AirSegment), FareCalculation (FareCalculation). FareCalculation has ..."
void Describe(std::ostream& out, const ModelNode& node) {
  if (node.children.empty()) {
    return;
  }
  out << ' ' << ToUtf8(node.type->name) << " has ";
  const char* separator = "";
  for (const ModelNode& child : node.children) {
    out << std::exchange(separator, ", ") << FirstLine(child) << " (" << SecondLine(child) << ")";
  }
  out << '.';
  for (const ModelNode& child : node.children) {
    Describe(out, child);
  }
}

}  // namespace

void DrawModel(std::ostream& out, const ModelNode& tree) {
  int rows = 0;
  const Placed root = Place(tree, 0, rows);
  Drawing drawing(out, ColumnsOf(root));
  const int width = drawing.Width();
  const int height = 2 * kMargin + rows * kRowHeight;
  out << "<svg xmlns='http://www.w3.org/2000/svg' width='" << width << "' height='" << height << "' viewBox='0 0 "
      << width << ' ' << height << "' role='img' aria-labelledby='title description'>\n"
      << "  <!-- Made from the class tables by ./run reference; do not edit. -->\n"
      << "  <title id='title'>The object model below " << ToUtf8(tree.type->name) << "</title>\n"
      << "  <desc id='description'>A tree from left to right; a stack stands for a collection.";
  Describe(out, tree);
  out << "</desc>\n" << kStyle << "  <rect class='page' width='" << width << "' height='" << height << "'/>\n";
  drawing.Draw(root);
  out << "</svg>\n";
}

}  // namespace qorltst::reference
