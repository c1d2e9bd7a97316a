// Displays: paged out by the recorded session, read by the simulated toolkit, retrieved by the component. What comes
// out is held against the parse tree of the text that the component says it parsed.
#include <algorithm>
#include <array>

#include "frame/ClassDescription.h"
#include "frame/Collection.h"
#include "frame/TST.h"
#include "fuzz/support/Check.h"
#include "fuzz/support/DisplayInput.h"
#include "fuzz/support/ModelText.h"
#include "fuzz/support/Outcome.h"
#include "simulator/RecordedSession.h"
#include "simulator/ScreenParser.h"
#include "simulator/SimulatedToolkit.h"

namespace qorltst::fuzz {
namespace {

using simulator::ScreenParser;
using toolkit::NodeTypeId;
using toolkit::ParseNode;

/// A kind of line, each of which is one element of a collection of the root.
struct Counted {
  NodeTypeId type;
  std::u16string_view collection;
};

constexpr std::array kCounted{
    Counted{NodeTypeId::AirSegment, u"AirSegments"},           Counted{NodeTypeId::AirOpenSegment, u"AirOpenSegments"},
    Counted{NodeTypeId::ArnkSegment, u"ARNKSegments"},         Counted{NodeTypeId::CommissionLine, u"FMElements"},
    Counted{NodeTypeId::OriginalIssueLine, u"FOElements"},     Counted{NodeTypeId::FormOfPaymentLine, u"FPElements"},
    Counted{NodeTypeId::ValidatingCarrierLine, u"FVElements"}, Counted{NodeTypeId::TourCodeLine, u"FTElements"}};

template <class Field>
auto PropertyOf(TST& tst, std::u16string_view name) {
  return std::get<Field>(tst.Description().FindByName(name)->access).in(tst);
}

/// The top-level nodes of the text that was parsed.
std::vector<Ref<ParseNode>> NodesOf(std::u16string_view text) {
  const auto parser = Make<ScreenParser>();
  Demand(parser->Parse(text, toolkit::kParseMode) == toolkit::kParseSuccess, "the parsed text can be read");
  Demand(static_cast<bool>(parser->FindNode(NodeTypeId::TstRoot)), "the parsed text is a TST");
  std::vector<Ref<ParseNode>> nodes;
  const auto children = parser->Children();
  while (Ref<ParseNode> node = children->Next()) {
    nodes.push_back(std::move(node));
  }
  return nodes;
}

void CheckAgainstTree(TST& tst, std::int32_t result) {
  const auto nodes = NodesOf(PropertyOf<StringField>(tst, u"Text"));
  const bool warning = std::ranges::any_of(nodes, [](const auto& node) { return node->HasWarning(); });
  Demand(result == (warning ? toolkit::kParsingWarning : toolkit::kNoError), "the result tells of warnings");
  for (const Counted& row : kCounted) {
    const auto lines = std::ranges::count_if(nodes, [&](const auto& node) { return node->TypeId() == row.type; });
    const auto& collection = static_cast<const Collection&>(*PropertyOf<ObjectField>(tst, row.collection));
    Demand(collection.Count() == lines, "a collection has an element for each of its lines");
  }
}

std::int32_t RetrieveInto(TST& tst, const simulator::Recording& recording) {
  return tst.RetrieveCurrentTst(Make<simulator::RecordedSession>(recording).Get());
}

Outcome Retrieve(const simulator::Recording& recording, bool twice) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto tst = Make<TST>(*toolkit);
  Outcome outcome;
  outcome.result = RetrieveInto(*tst, recording);
  outcome.log = toolkit->Log()->Entries();
  outcome.model = TextOfModel(*tst);
  if (outcome.Walked()) {
    CheckAgainstTree(*tst, outcome.result);
  }
  if (twice) {
    toolkit->Log()->Clear();
    Demand(RetrieveInto(*tst, recording) == outcome.result, "a second retrieval has the result of the first");
    Demand(toolkit->Log()->Entries() == outcome.log, "a second retrieval has the log of the first");
    Demand(TextOfModel(*tst) == outcome.model, "a second retrieval of the same display changes nothing");
  }
  return outcome;
}

/// The first screen decides whether the display is one at all; where no other follows, it is all of it.
void CheckFirstScreen(std::u16string_view screen, std::int32_t result) {
  const std::size_t nul = screen.find(u'\0');
  const auto parser = Make<ScreenParser>();
  const bool read =
      parser->Parse(screen.substr(0, nul == 0 ? screen.npos : nul), toolkit::kParseMode) == toolkit::kParseSuccess;
  if (!read || !parser->FindNode(NodeTypeId::TstRoot)) {
    Demand(result == toolkit::kUnintendedResponse, "a display that is no TST is told apart");
  } else if (!parser->FindNode(NodeTypeId::MoreScreens)) {
    Demand(result == toolkit::kNoError || result == toolkit::kParsingWarning, "a TST on one screen is parsed");
  }
}

void Check(std::span<const std::uint8_t> input) {
  const std::vector<std::u16string> screens = ScreensOf(input);
  const simulator::Recording recording{{u"TQT", screens}};
  const Outcome outcome = CheckedOutcome([&, times = 0]() mutable { return Retrieve(recording, times++ == 0); });
  Demand((outcome.result == toolkit::kSessionProblem) == screens.empty(), "the session answers or does not");
  if (!screens.empty()) {
    CheckFirstScreen(screens.front(), outcome.result);
  }
}

}  // namespace
}  // namespace qorltst::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qorltst::fuzz::Check({data, size});
  return 0;
}
