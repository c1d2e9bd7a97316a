// The walk over the top-level nodes and the table that sends each to its builder. See TstParser.h.
#include "frame/TstParser.h"

#include <algorithm>
#include <array>
#include <string>

#include "frame/Collection.h"
#include "frame/TST.h"
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

/// The elements of one parse, by kind, in display order. Only a whole walk hands them over.
class Harvest {
 public:
  Harvest() {
    for (Ref<Collection>& collection : collections_) {
      collection = Make<Collection>();
    }
  }

  void Add(CollectionKind kind, Ref<Object> element) {
    collections_[static_cast<std::size_t>(kind)]->Add(std::move(element));
  }

  /// Replaces those collections of `tst` for which there is something, in the order of the kinds.
  void HandOver(TST& tst) const {
    for (std::size_t kind = 0; kind < kCollectionKinds; ++kind) {
      if (collections_[kind]->Count() > 0) {
        tst.SetCollection(static_cast<CollectionKind>(kind), collections_[kind]);
      }
    }
  }

 private:
  std::array<Ref<Collection>, kCollectionKinds> collections_;
};

/// One kind of top-level node and what is done with it.
struct DispatchRow {
  NodeTypeId type;
  void (*build)(TstParser& parser, ParseNode& node, TST& tst, Harvest& harvest);
};

/// A line that the `TST` keeps itself.
template <void (TST::*Fill)(ParseNode&)>
void TstLine(TstParser& /*parser*/, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  (tst.*Fill)(node);
}

/// In the order of the types; a type that is not here is skipped silently.
constexpr std::array kDispatch{
    DispatchRow{NodeTypeId::PaymentRestrictionLine, &TstLine<&TST::FillPaymentRestrictionLine>},
    DispatchRow{NodeTypeId::FareLine, &TstLine<&TST::FillFareWithData>},
    DispatchRow{NodeTypeId::EquivalentLine, &TstLine<&TST::FillEquivWithData>},
    DispatchRow{NodeTypeId::TotalLine, &TstLine<&TST::FillTotalWithData>},
    DispatchRow{NodeTypeId::ZapOffLine, &TstLine<&TST::FillZapOffValue>},
    DispatchRow{NodeTypeId::NetFareLine, &TstLine<&TST::FillNetFareLineWithData>},
};
static_assert(std::ranges::is_sorted(kDispatch, std::ranges::less_equal{}, &DispatchRow::type));

std::u16string DecimalText(std::int32_t number) {
  const std::string text = std::to_string(number);
  return {text.begin(), text.end()};
}

}  // namespace

std::int32_t TstParser::ParseTst(std::u16string_view text, TST& tst) {
  Trace(kBegin);
  try {
    return Parse(text, tst);
  } catch (...) {
    const RuntimeError error = toolkit::CurrentRuntimeError();
    const PendingError pending(error);
    modErrorHandling::RaiseError(kUnexpectedError, u"TstParser:ParseTst Method");
    Trace(kParsingError);  // never reached, and 1006 is never returned from here: the raise above leaves first
    return toolkit::kParsingError;
  }
}

std::int32_t TstParser::Parse(std::u16string_view text, TST& tst) {
  const Ref<ParseNode> root = Toolkit().CreateParser();
  if (root->Parse(text, toolkit::kParseMode) != toolkit::kParseSuccess) {
    Trace(kParsingError);
    return toolkit::kParsingError;
  }
  if (!root->FindNode(NodeTypeId::TstRoot)) {
    Trace(kNotATst);
    return toolkit::kUnintendedResponse;
  }
  tst.SetTextToParse(text);
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
    const auto row = std::ranges::lower_bound(kDispatch, type, {}, &DispatchRow::type);
    if (row != kDispatch.end() && row->type == type) {
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
