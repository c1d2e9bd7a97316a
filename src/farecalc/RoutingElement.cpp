// See RoutingElement.h.
#include "farecalc/RoutingElement.h"

#include "farecalc/MileageEqualizationRule.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

namespace {

constexpr TraceTexts kLowestCombinationTexts{
    .begin = {u"Beginning of BuildLowestCombination (in Itinerary) Function", u"Itinerary.BuildLowestCombination"},
    .end = {u"End of BuildLowestCombination Function", u"Itinerary.BuildLowestCombination"},
    .errorEnd = {u"End of BuildLowestCombination Function with Errors", u"Itinerary.BuildLowestCombination"}};
constexpr TraceTexts kStopOverChargeTexts{
    .begin = {u"Beginning of BuildStopOverCharge (in Itinerary) Function", u"Itinerary.BuildStopOverCharge"},
    .end = {u"End of BuildStopOverCharge Function", u"Itinerary.BuildStopOverCharge"},
    .errorEnd = {u"End of BuildStopOverCharge Function with Errors", u"Itinerary.BuildStopOverCharge"}};
constexpr TraceTexts kFictitiousPointTexts{
    .begin = {u"Beginning of BuildFictitiousPoint (in Itinerary) Function", u"Itinerary.BuildFictitiousPoint"},
    .end = {u"End of BuildFictitiousPoint Function", u"Itinerary.BuildFictitiousPoint"},
    .errorEnd = {u"End of BuildFictitiousPoint Function with Errors", u"Itinerary.BuildFictitiousPoint"}};

}  // namespace

void RoutingElement::BuildMileageItem(ParseNode& node, const TraceTexts& texts) {
  mileageId_ = false;  // before the begin line; the tour flags are only ever set
  Traced(texts, [&] { WalkMileageItem(node, {inclusiveTourFare_, bulkTourFare_, mileageId_, mileagePercentage_}); });
}

void RoutingElement::BuildFareIntermediatePoint(ParseNode& node, const TraceTexts& texts) {
  Traced(texts, [&] {
    Walk(node, On(NodeTypeId::BookingClass, Text(fareHigherClass_)),
         On(NodeTypeId::CityPair, Text(fareHigherCityPair_)));
  });
}

void RoutingElement::BuildMileageEqRule(ParseNode& node, const TraceTexts& texts, Gathering& rules) {
  Traced(texts, [&] {
    Walk(node, On(NodeTypeId::MileageEqualizationItem,
                  [&](ParseNode& child) { rules.AddFilled<MileageEqualizationRule>(Toolkit(), child); }));
  });
}

void RoutingElement::BuildLowestCombination(ParseNode& node) {
  Traced(kLowestCombinationTexts, [&] { Walk(node, On(NodeTypeId::City, Text(lowestCombinationCityCode_))); });
}

void RoutingElement::BuildStopOverCharge(ParseNode& node) {
  Traced(kStopOverChargeTexts, [&] {
    Walk(node, On(NodeTypeId::StopOverValue, Text(stopOverChargeValue_)),
         On(NodeTypeId::StopsAllowed, Text(numberStopAllowed_)));
  });
}

void RoutingElement::BuildFictitiousPoint(ParseNode& node) {
  Traced(kFictitiousPointTexts, [&] { Walk(node, On(NodeTypeId::City, Text(fictitiousCode_))); });
}

void RoutingElement::ReadGlobalRouting(ParseNode& node) {
  globalRoutingId_ = BufferOf(node.FindNode(NodeTypeId::GlobalIndicator));
}

}  // namespace qorltst
