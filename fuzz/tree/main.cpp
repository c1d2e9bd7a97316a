// Parse trees, hosts and toolkits that the simulator never makes, and that fail at any call, straight into the
// component.
#include <algorithm>

#include "frame/TST.h"
#include "fuzz/support/Check.h"
#include "fuzz/support/ModelText.h"
#include "fuzz/support/Outcome.h"
#include "fuzz/support/ScenarioToolkit.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::fuzz {
namespace {

using ScreenKind = ScenarioScreen::Kind;

/// Every node is asked for a handful of properties, and each screen and each parser costs a few calls more.
constexpr std::size_t kMostCallsForEach = 16;

/// How many nodes, screens and parsers there are. A surcharge of a composite element is filled from all its children as
/// often as it has children, which callers see in the log; nothing else is read more than once.
std::size_t SizeOf(const Scenario& scenario) {
  std::size_t size = 4 + scenario.screens.size() + scenario.parsers.size();
  for (const ScenarioTree& tree : scenario.trees) {
    size += tree.size();
    for (const ScenarioNode& node : tree) {
      size += node.type == NodeTypeId::OtherSurcharges ? node.children.size() * node.children.size() : 0;
    }
  }
  return size;
}

Outcome Retrieve(const Scenario& scenario, bool failingLoggers) {
  const auto toolkit = Make<ScenarioToolkit>(scenario, failingLoggers);
  const auto tst = Make<TST>(*toolkit);
  const auto session = toolkit->Session();
  Outcome outcome;
  outcome.result = scenario.hasOwnCommand ? tst->RetrieveSpecificTst(session.Get(), u"TQT/T2")
                                          : tst->RetrieveCurrentTst(session.Get());
  Demand(toolkit->Calls() <= kMostCallsForEach * SizeOf(scenario), "the calls grow with the tree and not faster");
  outcome.model = TextOfModel(*tst);
  outcome.log = toolkit->Log()->Entries();
  return outcome;
}

/// Whether the host keeps silent where the first screen is expected.
bool IsSilent(const Scenario& scenario) {
  const bool answers = !scenario.screens.empty() && scenario.screens.front().kind != ScreenKind::Nothing;
  return !scenario.hasSession || (!answers && (scenario.hasOwnCommand || !scenario.failingOption));
}

bool HasWarning(const ScenarioTree& tree) {
  const std::vector<std::size_t>& nodes = tree.front().children;
  return std::ranges::any_of(nodes, [&](std::size_t node) { return tree[node].warning; });
}

void CheckResult(const Scenario& scenario, const Outcome& outcome) {
  const bool refused = std::ranges::any_of(
      scenario.parsers, [](const ScenarioParser& parser) { return parser.kind == ScenarioParser::Kind::Refuses; });
  Demand((outcome.result == toolkit::kSessionProblem) == IsSilent(scenario), "a silent host is a session problem");
  Demand(outcome.result != toolkit::kParsingError || refused, "a parse error is one of the parser's");
  Demand(outcome.result != toolkit::kParsingWarning || std::ranges::any_of(scenario.trees, HasWarning),
         "a warning is one of the nodes'");
}

void Check(std::span<const std::uint8_t> input) {
  const Scenario scenario = ReadScenario(input);
  const Outcome outcome = CheckedOutcome([&] { return Retrieve(scenario, false); });
  CheckResult(scenario, outcome);
  const Outcome silent = Retrieve(scenario, true);
  Demand(silent.result == outcome.result && silent.model == outcome.model, "a failing logger changes nothing");
}

}  // namespace
}  // namespace qorltst::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qorltst::fuzz::Check({data, size});
  return 0;
}
