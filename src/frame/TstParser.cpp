// The walk over the top-level nodes. Which builder takes which is in TstBuilders.cpp. See TstParser.h.
#include "frame/TstParser.h"

#include <string>

#include "frame/Harvest.h"
#include "frame/TST.h"
#include "frame/TstBuilders.h"
#include "frame/Walk.h"
#include "toolkit/HostNumbers.h"

namespace qorltst {
namespace {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

constexpr std::u16string_view kSource = u"TstParser.ParseTst";
constexpr TraceLine kBegin{u"Beginning of ParseTst(in TstParser) Function", kSource};
constexpr TraceLine kEnd{u"End of ParseTst(in TstParser) Function", kSource};
constexpr TraceLine kNotATst{u"Not a TST. End ParseTst(in TstParser) Function", kSource};
constexpr TraceLine kParsingError{u"Parsing Error. End of ParseTst(in TstParser) Function with Error", kSource};
constexpr std::u16string_view kWarning = u"Parsing WARNING in ParseTst(in TstParser) Function. On object type: ";

std::u16string DecimalText(std::int32_t number) {
  const std::string text = std::to_string(number);
  return {text.begin(), text.end()};
}

}  // namespace

std::int32_t TstParser::ParseTst(std::u16string text, TST& tst) {
  Trace(kBegin);
  try {
    return Parse(std::move(text), tst);
  } catch (...) {
    const RuntimeError error = toolkit::CurrentRuntimeError();
    const PendingError pending(error);
    modErrorHandling::RaiseError(kUnexpectedError, u"TstParser:ParseTst Method");
    Trace(kParsingError);  // never reached, and 1006 is never returned from here: the raise above leaves first
    return toolkit::kParsingError;
  }
}

std::int32_t TstParser::Parse(std::u16string text, TST& tst) {
  const Ref<ParseNode> root = Toolkit().CreateParser();
  if (root->Parse(text, toolkit::kParseMode) != toolkit::kParseSuccess) {
    Trace(kParsingError);
    return toolkit::kParsingError;
  }
  if (!root->FindNode(NodeTypeId::TstRoot)) {
    Trace(kNotATst);
    return toolkit::kUnintendedResponse;
  }
  tst.SetTextToParse(std::move(text));
  const std::int32_t result = WalkNodes(*root, tst);
  Trace(kEnd);
  return result;
}

std::int32_t TstParser::WalkNodes(ParseNode& root, TST& tst) {
  std::int32_t result = toolkit::kNoError;
  Harvest harvest;
  ForEachChild(root, [&](ParseNode& node) {
    const bool hasWarning = node.HasWarning();
    const NodeTypeId type = node.TypeId();
    if (hasWarning) {
      result = toolkit::kParsingWarning;
      TraceWarning(type);
    }
    if (const DispatchRow* const row = FindBuilder(type)) {
      row->build(*this, node, tst, harvest);
    }
  });
  harvest.HandOver(tst);
  return result;
}

void TstParser::TraceWarning(NodeTypeId type) {
  Log().LogTrace(std::u16string(kWarning) + DecimalText(static_cast<std::int32_t>(type)), kSource);
}

}  // namespace qorltst
