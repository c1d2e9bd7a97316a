// The public table and the fill. See FareCalculation.h.
#include "farecalc/FareCalculation.h"

#include "farecalc/DepartureRoutingPoint.h"
#include "farecalc/EndLine.h"
#include "farecalc/ExtraSeat.h"
#include "farecalc/FareGroups.h"
#include "farecalc/FareMinimun.h"
#include "farecalc/HigherClassDifferential.h"
#include "farecalc/Itinerary.h"
#include "farecalc/ItineraryCompositeElement.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The misspelt texts and the sources of other classes are part of the log; log readers match them.
constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"},
    .end = {u"End of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"},
    .errorEnd = {u"End of FillWithData (in FareCalculation) Function with Error", u"FareCalculation.FillWithData"}};
constexpr TraceTexts kDeparturePointTexts{
    .begin = {u"Beginning of BuildDeparturePoint (in FareCalculation) Function",
              u"FareCalculation.BuildDeparturePoint"},
    .end = {u"End of BuildDeparturePoint (in FareCalculation) Function", u"FareCalculation.BuileDeparurePoint"},
    .errorEnd = {u"End of BuildDeparturePoint (in FareCalculation) Function with error",
                 u"FareCalculation.BuildDeparturePoint"}};
constexpr TraceTexts kEndLineTexts{
    .begin = {u"Beginning of BuildEndLine (in FareCalculation) Function", u"FareCalculation.BuildEndLine"},
    .end = {u"End of BuildEndLine (in FareCalculation) Function", u"FareCalculation.BuildEndLine"},
    .errorEnd = {u"End of BuildEndLine (in FareCalculation) Function with error", u"FareCalculation.BuildEndLine"}};
constexpr TraceTexts kItineraryAndTheRestTexts{
    .begin = {u"Beginning of BuildItineraryAndTheRest (in FareCalculation) Function",
              u"FareCalculation.BuildItineraryAndTheRest"},
    .end = {u"End of BuldItineraryAndTheRest (in FareCalculation) Function",
            u"FareCalculation.BuildItineraryAndTheRest"},
    .errorEnd = {u"End of BuildItineraryAndTheRest (in FareCalculation) Function with Errors",
                 u"FareCaclculation.BuildItineraryAndTheRest"}};
constexpr TraceTexts kItinerariesTexts{
    .begin = {u"Beginning of BuildItineraries (in FareCalculation) Function", u"FareCalculation.BuildItineraries"},
    .end = {},
    .errorEnd = {u"End of BuildItineraries (in FareCalculation) Function with Errors",
                 u"FareCaculation.BuildItineraries"}};
constexpr TraceTexts kCompositeElementTexts{
    .begin = {u"Beginning of BuildCompositeElement (in FareCalculation) Function",
              u"FareCalculation.BuildCompositeElement"},
    .end = {u"End of BuildCompositeElement (in FareCalculation) Function", u"FareCalculation.BuildCompositeElement"},
    .errorEnd = {u"End of BuildCompositeElement (in Itinerary) Function with Error",
                 u"Itinerary.BuildCompositeElement"}};
constexpr TraceTexts kFareMinimumTexts{
    .begin = {u"Beginning of BuildFareMinimum (in FareCalculation) Function", u"FareCalculation.BuildFareMinimum"},
    .end = {u"End of BuildFareMinimum (in FareCalculaion) Function", u"FareCalculation.BuildFareMinimum"},
    .errorEnd = {u"End of BuildFareMinimum (in FareCalculation) Function with Errors",
                 u"FareCalculation.BuildFareMinimum"}};
constexpr TraceTexts kHigherClassDiffTexts{
    .begin = {u"Beginning of BuildHigherClassDiff (in FareCalculation) Function",
              u"FareCalculation.BuildHigherClassDiff"},
    .end = {u"End of BuildHigherClassDiff (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff"},
    .errorEnd = {u"End of BuildHigherClassDiff (in FareCalculation) Function with Errors",
                 u"FareCalculation.BuildHigherClassDiff"}};
constexpr TraceTexts kFareCommonTexts{
    .begin = {u"Beginning of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon"},
    .end = {u"End of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon"},
    .errorEnd = {u"End of BuildFareCommon (in FareCalculation) Function with Errors",
                 u"FareCalculation.BuildFareCommon"}};
constexpr TraceTexts kExtraSeatTexts{
    .begin = {u"Beginning of BuildExtraSeat (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff"},
    .end = {u"End of BuildExtraSeat (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff"},
    .errorEnd = {u"End of BuildExtraSeat (in FareCalculation) Function with Errors",
                 u"FareCalculation.BuildHigherClassDiff"}};

}  // namespace

struct FareCalculation::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"FareCommonStopOverChargeValue",
       .access = Field<&FareCalculation::fareCommonStopOverChargeValue_>(),
       .help = u"The stop-over charge of the common fare."},
      {.name = u"FareCommonNumberStopAllowed",
       .access = Field<&FareCalculation::fareCommonNumberStopAllowed_>(),
       .help = u"The number of stop-overs that the common fare allows."},
      {.name = u"Text", .access = Field<&FareCalculation::text_>(), .help = u"The fare calculation line as displayed."},
      {.name = u"ErrorText",
       .access = Field<&FareCalculation::errorText_>(),
       .help = u"The parser's error text for the fare calculation line."},
      {.name = u"FareCommonLessId",
       .access = Field<&FareCalculation::fareCommonLessId_>(),
       .help = u"True as a text when an amount is to be subtracted from the common fare."},
      {.name = u"FareCommonId", .access = Field<&FareCalculation::fareCommonId_>(), .help = u"Always empty."},
      {.name = u"Itineraries",
       .access = Items<Itinerary, &FareCalculation::itineraries_>(),
       .help = u"The fare components."},
      {.name = u"ExtraSeats",
       .access = Items<ExtraSeat, &FareCalculation::extraSeats_>(),
       .help = u"The extra seats and cabin baggage."},
      {.name = u"FareMinimums",
       .access = Items<FareMinimun, &FareCalculation::fareMinimums_>(),
       .help = u"The fare minimum checks."},
      ClassDebugIdMember(),
      {.name = u"ItineraryCompositeElements",
       .access = Items<ItineraryCompositeElement, &FareCalculation::itineraryCompositeElements_>(),
       .help = u"The composite elements outside the fare components."},
      {.name = u"EndLine",
       .access = Field<&FareCalculation::endLine_>(),
       .help = u"The end of the fare calculation: total, rate of exchange, facility charges."},
      {.name = u"DepartureRoutingPoint",
       .access = Field<&FareCalculation::departureRoutingPoint_>(),
       .help = u"The departure point."},
      {.name = u"HigherClassDifferentials",
       .access = Items<HigherClassDifferential, &FareCalculation::higherClassDifferentials_>(),
       .help = u"The higher class differentials."},
      {.name = u"FareCommonCurrencyCode",
       .access = Field<&FareCalculation::fareCommonCurrencyCode_>(),
       .help = u"Always empty."},
      {.name = u"FareCommonAmountToSub",
       .access = Field<&FareCalculation::fareCommonAmountToSub_>(),
       .help = u"The amount to subtract from the common fare."},
      {.name = u"FareCommonAmount",
       .access = Field<&FareCalculation::fareCommonAmount_>(),
       .help = u"The amount of the common fare."},
      {.name = u"FareCommonCityCode",
       .access = Field<&FareCalculation::fareCommonCityCode_>(),
       .help = u"The cities of the common fare, one after another."},
  }};
};

constinit const ClassDescription FareCalculation::kDescription = Table::kMembers.Describe(
    u"FareCalculation", u"The fare calculation: departure point, fare components, checks and the end of the line.",
    &CreateObject<FareCalculation>);

FareCalculation::FareCalculation(toolkit::Toolkit& toolkit)
    : LineElement(toolkit),
      departureRoutingPoint_(Make<DepartureRoutingPoint>(toolkit)),
      endLine_(Make<EndLine>(toolkit)) {}

FareCalculation::~FareCalculation() = default;

void FareCalculation::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::ItinerariesAndTheRest, [this](ParseNode& child) { BuildItineraryAndTheRest(child); }),
         On(NodeTypeId::DeparturePoint, [this](ParseNode& child) { BuildDeparturePoint(child); }),
         On(NodeTypeId::EndLine, [this](ParseNode& child) { BuildEndLine(child); }));
  });
}

void FareCalculation::BuildDeparturePoint(ParseNode& node) {
  const auto point = Make<DepartureRoutingPoint>(Toolkit());
  Traced(kDeparturePointTexts, [&] {
    point->FillWithData(node);
    departureRoutingPoint_ = point;
  });
}

void FareCalculation::BuildEndLine(ParseNode& node) {
  const auto endLine = Make<EndLine>(Toolkit());
  Traced(kEndLineTexts, [&] {
    endLine->FillWithData(node);
    endLine_ = endLine;
  });
}

void FareCalculation::BuildItineraryAndTheRest(ParseNode& node) {
  Traced(kItineraryAndTheRestTexts, [&] {
    Gathering itineraries;
    Gathering elements;
    Gathering minimums;
    Gathering differentials;
    Gathering seats;
    Walk(node,
         On(NodeTypeId::Itinerary,
            [&](ParseNode& child) { BuildItem<Itinerary>(kItinerariesTexts, child, itineraries); }),
         On(NodeTypeId::CompositeElement, [&](ParseNode& child) { BuildCompositeElement(child, elements); }),
         On(NodeTypeId::FareMinimum,
            [&](ParseNode& child) { BuildItem<FareMinimun>(kFareMinimumTexts, child, minimums); }),
         On(NodeTypeId::FareCommon, [this](ParseNode& child) { BuildFareCommon(child); }),
         On(NodeTypeId::HigherClassDifferential,
            [&](ParseNode& child) { BuildItem<HigherClassDifferential>(kHigherClassDiffTexts, child, differentials); }),
         On(NodeTypeId::ExtraSeatFare, [&](ParseNode& child) { BuildItem<ExtraSeat>(kExtraSeatTexts, child, seats); }),
         On(NodeTypeId::FareWithStopOver, Children(On(NodeTypeId::FareAmount, Text(fareCommonAmount_)))));
    itineraries.InstallIn(itineraries_);
    elements.InstallIn(itineraryCompositeElements_);
    minimums.InstallIn(fareMinimums_);
    differentials.InstallIn(higherClassDifferentials_);
    seats.InstallIn(extraSeats_);
  });
}

template <class Item>
void FareCalculation::BuildItem(const TraceTexts& texts, ParseNode& node, Gathering& items) {
  const auto item = Make<Item>(Toolkit());
  Traced(texts, [&] { item->FillWithData(node); });
  items.Add(item);
}

void FareCalculation::BuildCompositeElement(ParseNode& node, Gathering& elements) {
  Traced(kCompositeElementTexts, [&] {
    ForEachCompositeItem(node,
                         [&](ParseNode& item) { elements.AddFilled<ItineraryCompositeElement>(Toolkit(), item); });
  });
}

void FareCalculation::BuildFareCommon(ParseNode& node) {
  Traced(kFareCommonTexts, [&] {
    Walk(
        node,
        On(NodeTypeId::FareCommonCities, Children(On(NodeTypeId::FareCommonCityGroup,
                                                     Children(On(NodeTypeId::City, AppendText(fareCommonCityCode_)))))),
        On(NodeTypeId::FareWithStopOver, [this](ParseNode& child) { BuildFareWithStopOver(child); }));
  });
}

void FareCalculation::BuildFareWithStopOver(ParseNode& node) {
  Traced(kItineraryFareTexts, [&] {
    WalkFareWithStopOver(
        node, {fareCommonAmount_, fareCommonAmountToSub_, fareCommonStopOverChargeValue_, fareCommonNumberStopAllowed_},
        [this] { fareCommonLessId_ = kLessText; });
  });
}

}  // namespace qorltst
