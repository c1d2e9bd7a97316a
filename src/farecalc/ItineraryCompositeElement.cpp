// The public table and the fill. See ItineraryCompositeElement.h.
#include "farecalc/ItineraryCompositeElement.h"

#include "farecalc/MileageEqualizationRule.h"
#include "farecalc/OtherSurcharge.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct ItineraryCompositeElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&ItineraryCompositeElement::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&ItineraryCompositeElement::errorText_>(),
       .help = u"The parser's error text for the item."},
      {.name = u"MileageId",
       .access = Field<&ItineraryCompositeElement::mileageId_>(),
       .help = u"Whether the mileage marker is present."},
      {.name = u"FareStopOverChargeValue",
       .access = Field<&ItineraryCompositeElement::fareStopOverChargeValue_>(),
       .help = u"The stop-over charge of the fare."},
      {.name = u"FareNumberStopAllowed",
       .access = Field<&ItineraryCompositeElement::fareNumberStopAllowed_>(),
       .help = u"The number of stop-overs that the fare allows."},
      {.name = u"LowestCombinationCityCode",
       .access = Field<&ItineraryCompositeElement::lowestCombinationCityCode_>(),
       .help = u"The lowest combination city."},
      {.name = u"FareLessId",
       .access = Field<&ItineraryCompositeElement::fareLessId_>(),
       .help = u"True as a text when an amount is to be subtracted from the fare."},
      {.name = u"ExtraMileageAllowanceId",
       .access = Field<&ItineraryCompositeElement::extraMileageAllowanceId_>(),
       .help = u"The extra mileage allowance indicator."},
      {.name = u"GlobalRoutingId",
       .access = Field<&ItineraryCompositeElement::globalRoutingId_>(),
       .help = u"The global routing indicator."},
      {.name = u"OtherSurcharges",
       .access = Items<OtherSurcharge, &ItineraryCompositeElement::otherSurcharges_>(),
       .help = u"The surcharges."},
      {.name = u"MileageEqualizationRules",
       .access = Items<MileageEqualizationRule, &ItineraryCompositeElement::mileageEqualizationRules_>(),
       .help = u"The mileage equalizations."},
      {.name = u"NumberStopAllowed",
       .access = Field<&ItineraryCompositeElement::numberStopAllowed_>(),
       .help = u"The number of stop-overs allowed."},
      {.name = u"StopOverChargeValue",
       .access = Field<&ItineraryCompositeElement::stopOverChargeValue_>(),
       .help = u"The stop-over charge."},
      {.name = u"FareCurrencyCode",
       .access = Field<&ItineraryCompositeElement::fareCurrencyCode_>(),
       .help = u"Always empty."},
      {.name = u"FareAmountToSub",
       .access = Field<&ItineraryCompositeElement::fareAmountToSub_>(),
       .help = u"The amount to subtract from the fare."},
      {.name = u"FareAmount",
       .access = Field<&ItineraryCompositeElement::fareAmount_>(),
       .help = u"The fare as displayed."},
      {.name = u"MileageItemPercent",
       .access = Field<&ItineraryCompositeElement::mileagePercentage_>(),
       .help = u"The mileage percentage."},
      {.name = u"FareHigherCityPair",
       .access = Field<&ItineraryCompositeElement::fareHigherCityPair_>(),
       .help = u"The city pair of the higher intermediate point (HIP)."},
      {.name = u"FareHigherClass",
       .access = Field<&ItineraryCompositeElement::fareHigherClass_>(),
       .help = u"The booking class of the higher intermediate point (HIP)."},
      {.name = u"CarrierCode", .access = Field<&ItineraryCompositeElement::carrierCode_>(), .help = u"The carrier."},
      {.name = u"ItinerarySymbol",
       .access = Field<&ItineraryCompositeElement::itinerarySymbol_>(),
       .help = u"The symbols at the point as displayed."},
      {.name = u"FictitiousCode",
       .access = Field<&ItineraryCompositeElement::fictitiousCode_>(),
       .help = u"The fictitious point."},
      {.name = u"CityCode", .access = Field<&ItineraryCompositeElement::cityCode_>(), .help = u"The city."},
      {.name = u"InclusiveTourFare",
       .access = Field<&ItineraryCompositeElement::inclusiveTourFare_>(),
       .help = u"Whether an inclusive tour fare applies."},
      {.name = u"BulkTourFare",
       .access = Field<&ItineraryCompositeElement::bulkTourFare_>(),
       .help = u"Whether a bulk tour fare applies."},
  }};
};

constinit const ClassDescription ItineraryCompositeElement::kDescription =
    Table::kMembers.Describe(u"ItineraryCompositeElement",
                             u"An item of a composite element: a city with its carrier, fare, mileage and stop-overs.",
                             &CreateObject<ItineraryCompositeElement>);

// The misspelt texts and sources and the one with a parenthesis are part of the log; a fare has no end line.
struct ItineraryCompositeElement::Texts {
  static constexpr TraceTexts kFill{
      .begin = {u"Beginning of FillWithData (in ItinerayCompositeElement) Function",
                u"ItineraryCompositeElement.FillWithData"},
      .end = {u"End of FillWithData (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"},
      .errorEnd = {u"End of FillWithData (in ItineraryCompositeElement) Function with Errors",
                   u"ItineraryCompositeElement.FillWithData"}};
  static constexpr TraceTexts kOtherSurcharge{
      .begin = {u"Beginning of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
                u"ItineraryCompositeElement.BuildOtherSurcharge"},
      .end = {u"End of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildOtherSurcharge"},
      .errorEnd = {u"End of BuildOtherSurcharge (in ItineraryCompositeElement) Function with Error",
                   u"ItineraryCompositeElement.BuildOtherSurcharge"}};
  static constexpr BuildTexts kBuild{
      .fareWithStopOver =
          {.begin = {u"Beginning of BuildFareWithStopOver (in ItineraryCompositeElement) Function",
                     u"ItineraryCompositeElement.BuildFareWithStopOver"},
           .end = {},
           .errorEnd = {u"End of BuildFareWithStopOver (in ItineraryCompositeElement) Function with Errors",
                        u"ItineraryCompositeElement.BuildFareWithStopOver"}},
      .mileageItem = {.begin = {u"Beginning of BuildMileageItem (in ItineraryCompositeElement) Function",
                                u"ItineraryCompositeElement.BuildMileageItem"},
                      .end = {u"End of BuildMileageItem (in ItineraryCompositeElement) Function",
                              u"ItineraryCompositeElement.BuildMileageItem"},
                      .errorEnd = {u"End of BuildMileageItem (in ItineraryCompositeElement) Function with Error",
                                   u"ItineraryCompositeElement.BuildMileageItem"}},
      .intermediatePoint =
          {.begin = {u"Beginning of BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
                     u"IntineraryCompositeElement.BuildFareIntermediatePoint"},
           .end = {u"End BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
                   u"ItineraryCompositeElement.BuildFareIntermediatePoint"},
           .errorEnd = {u"End of BuildFareIntermediatePoint (in ItineraryCompositeElement) Function with Error",
                        u"ItineraryCompositeElement.BuildFareIntermediatePoint"}},
      .mileageEqRule = {.begin = {u"Beginning of BuildMileageEqRule (in ItineraryCompositeElement) Function",
                                  u"ItineraryCompositeElement.BuildMileageEqRule)"},
                        .end = {u"End of BuildMileageEqRule (in ItineraryCompositeElement) Function",
                                u"ItineraryCompositeElement.BuildMileageEqRule"},
                        .errorEnd = {u"End of BuildMileageEqRule (in ItineraryCompositeElement) Function with Errors",
                                     u"ItineraryCompositeElement.BuildMileageEqRule"}}};
};

void ItineraryCompositeElement::FillWithData(ParseNode& node) {
  Traced(Texts::kFill, [&] {
    Gathering surcharges;
    Gathering rules;
    TakeTexts(node);
    WalkPoint(
        node, Texts::kBuild, rules, [this] { fareLessId_ = kLessText; },
        On(NodeTypeId::Symbols, Text(itinerarySymbol_)),
        On(NodeTypeId::OtherSurcharges, [&](ParseNode& child) { BuildOtherSurcharge(child, surcharges); }));
    surcharges.InstallIn(otherSurcharges_);
    rules.InstallIn(mileageEqualizationRules_);
  });
}

/// The node is one surcharge, filled from the node itself as often as it has children; this is meant. A node without
/// children is none, and then there is no end line either.
void ItineraryCompositeElement::BuildOtherSurcharge(ParseNode& node, Gathering& surcharges) {
  const auto surcharge = Make<OtherSurcharge>(Toolkit());
  Trace(Texts::kOtherSurcharge.begin);
  const bool isSurcharge = Trapped(Texts::kOtherSurcharge.errorEnd, [&] {
    if (!node.HasChildren()) {
      return false;
    }
    ForEachChild(node, [&](ParseNode& /*child*/) { surcharge->FillWithData(node); });
    return true;
  });
  if (isSurcharge) {
    Trace(Texts::kOtherSurcharge.end);
    surcharges.Add(surcharge);
  }
}

}  // namespace qorltst
