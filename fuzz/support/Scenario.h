// What a host and its toolkit do during one retrieval, as an input says it: answers, parsers, trees, and what fails.
// The toolkit that acts on it is ScenarioToolkit.h.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "simulator/TreeNode.h"
#include "toolkit/NodeTypeId.h"

namespace qorltst::fuzz {

using toolkit::NodeTypeId;
using toolkit::Ref;

/// Which call of a node raises.
enum class FailingCall : std::uint8_t {
  None,
  TypeId,
  Text,
  ErrorText,
  HasWarning,
  HasChildren,
  DateValue,
  Item,
  Buffer,
  Children,
  FirstNext,
  LastNext,
  FindNode,
};

struct ScenarioNode {
  NodeTypeId type{};
  std::u16string text = {};
  std::u16string errorText = {};
  std::u16string buffer = {};
  double date = 0;
  bool warning = false;
  bool hasBuffer = true;
  FailingCall failing = FailingCall::None;
  std::uint8_t error = 0;
  /// Positions in the tree.
  std::vector<std::size_t> children = {};
  /// The position behind its last descendant.
  std::size_t end = 0;
};

/// In display order, depth first; the root stands first.
using ScenarioTree = std::vector<ScenarioNode>;

struct ScenarioScreen {
  enum class Kind : std::uint8_t { Text, Nothing, FailingCommand, FailingText };
  Kind kind = Kind::Text;
  std::u16string text = {};
  std::uint8_t error = 0;
};

struct ScenarioParser {
  enum class Kind : std::uint8_t { Reads, Refuses, FailingCreation, FailingParse };
  Kind kind = Kind::Reads;
  std::size_t tree = 0;
  std::uint8_t error = 0;
};

struct Scenario {
  bool hasSession = true;
  bool hasOwnCommand = false;
  bool failingOption = false;
  /// Behind the last one the host gives no answer.
  std::vector<ScenarioScreen> screens;
  /// The last one goes on for ever. At least one.
  std::vector<ScenarioParser> parsers;
  /// At least one.
  std::vector<ScenarioTree> trees;
};

[[nodiscard]] Scenario ReadScenario(std::span<const std::uint8_t> input);

/// The input of a host that gives one screen, which every parser reads as this tree.
[[nodiscard]] std::string ScenarioInput(simulator::TreeNode& root);

}  // namespace qorltst::fuzz
