// The public table and the fill. See Itinerary.h.
#include "farecalc/Itinerary.h"

#include "farecalc/AnySymbol.h"
#include "farecalc/ItineraryCompositeElement.h"
#include "farecalc/MileageEqualizationRule.h"
#include "farecalc/OtherSurcharge.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct Itinerary::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&Itinerary::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&Itinerary::errorText_>(),
       .help = u"The parser's error text for the item."},
      {.name = u"FareStopOverChargeValue",
       .access = Field<&Itinerary::fareStopOverChargeValue_>(),
       .help = u"The stop-over charge of the fare."},
      {.name = u"FareNumberStopAllowed",
       .access = Field<&Itinerary::fareNumberStopAllowed_>(),
       .help = u"The number of stop-overs that the fare allows."},
      {.name = u"InclusiveTourFare",
       .access = Field<&Itinerary::inclusiveTourFare_>(),
       .help = u"Whether an inclusive tour fare applies."},
      {.name = u"BulkTourFare",
       .access = Field<&Itinerary::bulkTourFare_>(),
       .help = u"Whether a bulk tour fare applies."},
      {.name = u"MileageItemId",
       .access = Field<&Itinerary::mileageId_>(),
       .help = u"Whether the mileage marker is present."},
      {.name = u"FictitiousCode", .access = Field<&Itinerary::fictitiousCode_>(), .help = u"The fictitious point."},
      {.name = u"ExtraMileageAllowanceId",
       .access = Field<&Itinerary::extraMileageAllowanceId_>(),
       .help = u"The extra mileage allowance indicator."},
      {.name = u"FareLessId",
       .access = Field<&Itinerary::fareLessId_>(),
       .help = u"Whether an amount is to be subtracted from the fare."},
      {.name = u"GlobalRoutingId",
       .access = Field<&Itinerary::globalRoutingId_>(),
       .help = u"The global routing indicator."},
      {.name = u"AnySymbols",
       .access = Items<AnySymbol, &Itinerary::anySymbols_>(),
       .help = u"The symbols at the point."},
      {.name = u"ItineraryCompositeElements",
       .access = Items<ItineraryCompositeElement, &Itinerary::itineraryCompositeElements_>(),
       .help = u"The composite elements."},
      {.name = u"OtherSurcharges",
       .access = Items<OtherSurcharge, &Itinerary::otherSurcharges_>(),
       .help = u"The surcharges."},
      {.name = u"MileageEqualizationRules",
       .access = Items<MileageEqualizationRule, &Itinerary::mileageEqualizationRules_>(),
       .help = u"The mileage equalizations."},
      {.name = u"FareHigherClass",
       .access = Field<&Itinerary::fareHigherClass_>(),
       .help = u"The booking class of the higher intermediate point (HIP)."},
      {.name = u"FareHigherCityPair",
       .access = Field<&Itinerary::fareHigherCityPair_>(),
       .help = u"The city pair of the higher intermediate point (HIP)."},
      {.name = u"ItineraryCarrierCode", .access = Field<&Itinerary::carrierCode_>(), .help = u"The carrier."},
      {.name = u"StopOverNumberStopAllowed",
       .access = Field<&Itinerary::numberStopAllowed_>(),
       .help = u"The number of stop-overs allowed."},
      {.name = u"StopOverChargeValue",
       .access = Field<&Itinerary::stopOverChargeValue_>(),
       .help = u"The stop-over charge."},
      {.name = u"FareCurrencyCode", .access = Field<&Itinerary::fareCurrencyCode_>(), .help = u"Always empty."},
      {.name = u"FareAmountToSub",
       .access = Field<&Itinerary::fareAmountToSub_>(),
       .help = u"The amount to subtract from the fare."},
      {.name = u"FareAmount", .access = Field<&Itinerary::fareAmount_>(), .help = u"The fare as displayed."},
      {.name = u"LowestCombinationCityCode",
       .access = Field<&Itinerary::lowestCombinationCityCode_>(),
       .help = u"The lowest combination city."},
      {.name = u"MileagePercentage",
       .access = Field<&Itinerary::mileagePercentage_>(),
       .help = u"The mileage percentage."},
      {.name = u"CityCode", .access = Field<&Itinerary::cityCode_>(), .help = u"The city."},
  }};
};

constinit const ClassDescription Itinerary::kDescription = Table::kMembers.Describe(
    u"Itinerary", u"A fare component: the carrier and city that end it, its fare, mileage and stop-overs.",
    &CreateObject<Itinerary>);

// The misspelt sources and the one with a parenthesis are part of the log.
struct Itinerary::Texts {
  static constexpr TraceTexts kFill{
      .begin = {u"Beginning of FillWithData (in Itinerary) Function", u"Intinerary.FillWithData"},
      .end = {u"End of FillWithData (in Itinerary) Function", u"Itinerary.FillWithData"},
      .errorEnd = {u"End of FillWithData (in Itinerary) Function with Errors", u"Itinerary.FillWithData"}};
  static constexpr TraceTexts kAnySymbolList{
      .begin = {u"Beginning of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList"},
      .end = {u"End of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList"},
      .errorEnd = {u"End of BuildAnySymbolList (in Itinerary) Function with Error", u"Itinerary.BuildSymbolList"}};
  static constexpr TraceTexts kOtherSurcharges{
      .begin = {u"Beginning of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"},
      .end = {u"End of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"},
      .errorEnd = {u"End of BuildOtherSurcharges (in Itinerary) Function with Error",
                   u"Itinerary.BuildOtherSurcharges"}};
  static constexpr TraceTexts kCompositeElement{
      .begin = {u"Beginning of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement"},
      .end = {u"End of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement"},
      .errorEnd = {u"End of BuildCompositeElement (in Itinerary) Function with Error",
                   u"Itinerary.BuildCompositeElement"}};
  static constexpr BuildTexts kBuild{
      .fareWithStopOver = kItineraryFareTexts,
      .mileageItem = kItineraryMileageTexts,
      .intermediatePoint = {.begin = {u"Beginning of BuildFareIntermediatePoint (in Itinerary) Function",
                                      u"Intinerary.BuildFareIntermediatePoint"},
                            .end = {u"End BuildFareIntermediatePoint (in Itinerary) Function",
                                    u"Itinerary.BuildFareIntermediatePoint"},
                            .errorEnd = {u"End of BuildFareIntermediatePoint (in Itinerary) Function with Error",
                                         u"Itinerary.BuildFareIntermediatePoint"}},
      .mileageEqRule = {
          .begin = {u"Beginning of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule)"},
          .end = {u"End of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule"},
          .errorEnd = {u"End of BuildMileageEqRule (in Itinerary) Function with Errors",
                       u"Itinerary.BuildMileageEqRule"}}};
};

void Itinerary::FillWithData(ParseNode& node) {
  Traced(Texts::kFill, [&] {
    Gathering symbols;
    Gathering surcharges;
    Gathering rules;
    Gathering elements;
    TakeTexts(node);
    WalkPoint(
        node, Texts::kBuild, rules, [this] { fareLessId_ = true; },
        On(NodeTypeId::CompositeElement, [&](ParseNode& child) { BuildCompositeElement(child, elements); }),
        On(NodeTypeId::Symbols, [&](ParseNode& child) { BuildAnySymbolList(child, symbols); }),
        On(NodeTypeId::OtherSurcharges, [&](ParseNode& child) { BuildOtherSurcharges(child, surcharges); }));
    symbols.InstallIn(anySymbols_);
    surcharges.InstallIn(otherSurcharges_);
    rules.InstallIn(mileageEqualizationRules_);
    elements.InstallIn(itineraryCompositeElements_);
  });
}

/// A node without children is no symbol, and then there is no end line either.
void Itinerary::BuildAnySymbolList(ParseNode& node, Gathering& symbols) {
  const auto symbol = Make<AnySymbol>(Toolkit());
  Trace(Texts::kAnySymbolList.begin);
  const bool isSymbol = Trapped(Texts::kAnySymbolList.errorEnd, [&] {
    if (!node.HasChildren()) {
      return false;
    }
    symbol->FillWithData(node);
    return true;
  });
  if (isSymbol) {
    Trace(Texts::kAnySymbolList.end);
    symbols.Add(symbol);
  }
}

/// Each child is one surcharge; in a composite element the node itself is one.
void Itinerary::BuildOtherSurcharges(ParseNode& node, Gathering& surcharges) {
  Traced(Texts::kOtherSurcharges, [&] {
    if (node.HasChildren()) {
      ForEachChild(node, [&](ParseNode& child) { surcharges.AddFilled<OtherSurcharge>(Toolkit(), child); });
    }
  });
}

void Itinerary::BuildCompositeElement(ParseNode& node, Gathering& elements) {
  Traced(Texts::kCompositeElement, [&] {
    ForEachCompositeItem(node,
                         [&](ParseNode& item) { elements.AddFilled<ItineraryCompositeElement>(Toolkit(), item); });
  });
}

}  // namespace qorltst
