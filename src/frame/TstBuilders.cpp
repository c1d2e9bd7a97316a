// One row for each line kind. A collection's elements are gathered in the harvest; a single object goes to the `TST` as
// soon as it is filled. See TstBuilders.h.
#include "frame/TstBuilders.h"

#include <algorithm>
#include <array>

#include "elements/ARNKSegment.h"
#include "elements/AirOpenSegment.h"
#include "elements/AirSegment.h"
#include "elements/FEElement.h"
#include "elements/FMElement.h"
#include "elements/FOElement.h"
#include "elements/FPElement.h"
#include "elements/FTElement.h"
#include "elements/FVElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/NameElement.h"
#include "elements/PublishedAndNetFares.h"
#include "elements/TSTHeader.h"
#include "elements/TaxElement.h"
#include "farecalc/FareCalculation.h"
#include "frame/Walk.h"

namespace qorltst {
namespace {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

template <detail::FixedText Builder>
constexpr const TraceTexts& kTexts = kUsualTexts<Builder, u"TstParser">;

/// The builder of the open segments alone writes nothing.
constexpr TraceTexts kNoTexts{};

/// A line that the `TST` keeps itself.
template <void (TST::*Fill)(ParseNode&)>
void TstLine(TstParser& /*parser*/, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  (tst.*Fill)(node);
}

/// A line that is one element of a collection.
template <class ElementClass, CollectionKind CollectionOf, const TraceTexts& Texts>
void OneElement(TstParser& parser, ParseNode& node, TST& /*tst*/, Harvest& harvest) {
  parser.Traced(Texts, [&] { harvest.Of(CollectionOf).AddFilled<ElementClass>(parser.Toolkit(), node); });
}

/// A line whose container holds one element in each child; without the container there is none.
template <class ElementClass, CollectionKind CollectionOf, NodeTypeId Container, const TraceTexts& Texts>
void ContainedElements(TstParser& parser, ParseNode& node, TST& /*tst*/, Harvest& harvest) {
  parser.Traced(Texts, [&] {
    if (const auto container = node.FindNode(Container)) {
      ForEachChild(*container, [&](ParseNode& child) {
        harvest.Of(CollectionOf).AddFilled<ElementClass>(parser.Toolkit(), child);
      });
    }
  });
}

/// A block whose children of one type are one element each; other children are ignored.
template <NodeTypeId Type, auto Build>
void EachChild(TstParser& parser, ParseNode& node, TST& tst, Harvest& harvest) {
  Walk(node, On(Type, [&](ParseNode& child) { Build(parser, child, tst, harvest); }));
}

template <class ElementClass>
void FillFromChildren(ElementClass& element, ParseNode& node) {
  ForEachChild(node, [&](ParseNode& child) { element.FillWithData(child); });
}

void HeaderLine(TstParser& parser, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  parser.Traced(kTexts<u"BuildHeaderLine">, [&] {
    const auto header = Make<TSTHeader>(parser.Toolkit());
    header->FillTextWithData(node);
    FillFromChildren(*header, node);
    tst.SetTSTHeader(header);
  });
}

void LastLine(TstParser& parser, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  parser.Traced(kTexts<u"BuildItineraryLastLine">, [&] {
    const auto lastLine = Make<ItineraryLastLine>(parser.Toolkit());
    FillFromChildren(*lastLine, node);
    tst.SetItineraryLastLine(lastLine);
  });
}

void EndorsementLine(TstParser& parser, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  parser.Traced(kTexts<u"BuildFEElement">, [&] {
    const auto endorsement = Make<FEElement>(parser.Toolkit());
    endorsement->FillUpLevelData(node);
    FillFromChildren(*endorsement, node);
    tst.SetFEElement(endorsement);
  });
}

// The blank and the letter case of these texts are their own.
constexpr TraceTexts kFareCalculationTexts{
    .begin = {u"Beginning of BuildFareCalculation (in TST parser) Function", u"TSTParser.BuildFareCalculation"},
    .end = {u"End of BuildFareCalculation (in TSTParser) Function", u"TSTParser.BuildFareCalculation"},
    .errorEnd = {u"End of BuildFareCalculation (in TSTParser) Function with Error", u"TSTParser.BuildFareCalculation"}};

void FareCalculationLine(TstParser& parser, ParseNode& node, TST& tst, Harvest& /*harvest*/) {
  parser.Traced(kFareCalculationTexts, [&] {
    const auto fareCalculation = Make<FareCalculation>(parser.Toolkit());
    fareCalculation->FillWithData(node);
    tst.SetFareCalculation(fareCalculation);
  });
}

using Kind = CollectionKind;

constexpr auto kTaxLine =
    &ContainedElements<TaxElement, Kind::Taxes, NodeTypeId::TaxContainer, kTexts<u"BuildTaxCollection">>;
constexpr auto kFare = &OneElement<PublishedAndNetFares, Kind::PublishedAndNetFares, kTexts<u"BuildFarePubCollection">>;

/// In the order of the types; a type that is not here is skipped silently.
constexpr std::array kDispatch{
    DispatchRow{NodeTypeId::AirSegment, &OneElement<AirSegment, Kind::AirSegments, kTexts<u"BuildAirLine">>},
    DispatchRow{NodeTypeId::ArnkSegment, &OneElement<ARNKSegment, Kind::ArnkSegments, kTexts<u"BuildARNKLine">>},
    DispatchRow{NodeTypeId::TstRoot, &HeaderLine},
    DispatchRow{NodeTypeId::PaymentRestrictionLine, &TstLine<&TST::FillPaymentRestrictionLine>},
    DispatchRow{
        NodeTypeId::NameLine,
        &ContainedElements<NameElement, Kind::Names, NodeTypeId::NameContainer, kTexts<u"BuildNameCollection">>},
    DispatchRow{NodeTypeId::AirOpenSegment, &OneElement<AirOpenSegment, Kind::OpenSegments, kNoTexts>},
    DispatchRow{NodeTypeId::ItineraryLastLine, &LastLine},
    DispatchRow{NodeTypeId::FareLine, &TstLine<&TST::FillFareWithData>},
    DispatchRow{NodeTypeId::EquivalentLine, &TstLine<&TST::FillEquivWithData>},
    DispatchRow{NodeTypeId::TaxLine, kTaxLine},
    DispatchRow{NodeTypeId::TotalLine, &TstLine<&TST::FillTotalWithData>},
    DispatchRow{NodeTypeId::EndorsementLine, &EndorsementLine},
    DispatchRow{NodeTypeId::CommissionLine, &OneElement<FMElement, Kind::Commissions, kTexts<u"BuildCommissionLine">>},
    DispatchRow{NodeTypeId::OriginalIssueLine,
                &OneElement<FOElement, Kind::OriginalIssues, kTexts<u"BuildOriginalIssue">>},
    DispatchRow{NodeTypeId::FormOfPaymentLine,
                &OneElement<FPElement, Kind::FormsOfPayment, kTexts<u"BuildFormOfPaymentLine">>},
    DispatchRow{NodeTypeId::TourCodeLine, &OneElement<FTElement, Kind::TourCodes, kTexts<u"BuildFTLine">>},
    DispatchRow{NodeTypeId::ValidatingCarrierLine,
                &OneElement<FVElement, Kind::ValidatingCarriers, kTexts<u"BuildFVLine">>},
    DispatchRow{NodeTypeId::FareCalculationLine, &FareCalculationLine},
    DispatchRow{NodeTypeId::PublishedAndNetFaresBlock, &EachChild<NodeTypeId::PublishedOrNetFare, kFare>},
    DispatchRow{NodeTypeId::ZapOffLine, &TstLine<&TST::FillZapOffValue>},
    DispatchRow{NodeTypeId::NetFareLine, &TstLine<&TST::FillNetFareLineWithData>},
    DispatchRow{NodeTypeId::AdditionalTaxLine, kTaxLine},
};
static_assert(std::ranges::is_sorted(kDispatch, std::ranges::less_equal{}, &DispatchRow::type));

}  // namespace

const DispatchRow* FindBuilder(NodeTypeId type) noexcept {
  const auto* const row = std::ranges::lower_bound(kDispatch, type, {}, &DispatchRow::type);
  return row != kDispatch.end() && row->type == type ? row : nullptr;
}

}  // namespace qorltst
