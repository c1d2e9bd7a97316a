// Every input is a scenario: numbers wrap around and what is missing is zero. See Scenario.h.
#include "fuzz/support/ByteReader.h"
#include "fuzz/support/DisplayInput.h"
#include "fuzz/support/NodeCode.h"
#include "fuzz/support/Scenario.h"

namespace qorltst::fuzz {
namespace {

constexpr unsigned kMostScreens = 8;
constexpr unsigned kMostParsers = 12;
constexpr unsigned kMostTrees = 3;

NodeTypeId TypeOf(std::uint8_t code, ByteReader& reader) {
  return code == kAnyType ? static_cast<NodeTypeId>(reader.Number()) : kNodeTypes[code % kNodeTypes.size()];
}

/// The node without its children; whether it has some is told apart.
ScenarioNode ReadNode(std::uint8_t type, ByteReader& reader, bool& hasChildren) {
  ScenarioNode node{.type = TypeOf(type, reader)};
  const unsigned marks = reader.Byte();
  node.warning = (marks & kHasWarning) != 0;
  node.hasBuffer = (marks & kHasNoBuffer) == 0;
  if ((marks & kHasText) != 0) {
    node.text = reader.Text();
  }
  if ((marks & kHasErrorText) != 0) {
    node.errorText = reader.Text();
  }
  if ((marks & kHasDate) != 0) {
    node.date = reader.Double();
  }
  node.buffer = (marks & kHasOwnBuffer) != 0 ? reader.Text() : node.text;
  if ((marks & kFails) != 0) {
    node.failing = static_cast<FailingCall>(reader.Byte() % (static_cast<unsigned>(FailingCall::FindNode) + 1));
    node.error = reader.Byte();
  }
  hasChildren = (marks & kHasChildren) != 0;
  return node;
}

/// Trees may be as deep as the input is long, so nothing here calls itself.
ScenarioTree ReadTree(ByteReader& reader) {
  ScenarioTree tree(1);
  std::vector<std::size_t> open{0};
  while (!open.empty()) {
    const std::uint8_t type = reader.Byte();
    if (type == kEndOfNodes) {
      tree[open.back()].end = tree.size();
      open.pop_back();
      continue;
    }
    bool hasChildren = false;
    tree.push_back(ReadNode(type, reader, hasChildren));
    const std::size_t position = tree.size() - 1;
    tree[position].end = tree.size();
    tree[open.back()].children.push_back(position);
    if (hasChildren) {
      open.push_back(position);
    }
  }
  return tree;
}

ScenarioScreen ReadScreen(ByteReader& reader) {
  ScenarioScreen screen;
  const unsigned kind = reader.Byte() % 8;
  if (kind <= static_cast<unsigned>(ScenarioScreen::Kind::FailingText)) {
    screen.kind = static_cast<ScenarioScreen::Kind>(kind);
  }
  if (screen.kind == ScenarioScreen::Kind::Text) {
    screen.text = FilledUp(reader.Text());
  } else {
    screen.error = reader.Byte();
  }
  return screen;
}

ScenarioParser ReadParser(ByteReader& reader, std::size_t trees) {
  ScenarioParser parser;
  const unsigned kind = reader.Byte() % 8;
  if (kind <= static_cast<unsigned>(ScenarioParser::Kind::FailingParse)) {
    parser.kind = static_cast<ScenarioParser::Kind>(kind);
  }
  parser.tree = reader.Byte() % trees;
  parser.error = reader.Byte();
  return parser;
}

}  // namespace

Scenario ReadScenario(std::span<const std::uint8_t> input) {
  ByteReader reader(input);
  Scenario scenario;
  const unsigned host = reader.Byte();
  scenario.hasSession = (host & 1U) == 0;
  scenario.hasOwnCommand = (host & 2U) != 0;
  scenario.failingOption = (host & 4U) != 0;
  const std::size_t trees = reader.Byte() % kMostTrees + 1;
  for (unsigned left = reader.Byte() % kMostScreens; left > 0; --left) {
    scenario.screens.push_back(ReadScreen(reader));
  }
  for (unsigned left = reader.Byte() % kMostParsers + 1; left > 0; --left) {
    scenario.parsers.push_back(ReadParser(reader, trees));
  }
  while (scenario.trees.size() < trees) {
    scenario.trees.push_back(ReadTree(reader));
  }
  return scenario;
}

}  // namespace qorltst::fuzz
