// What a fare component (Itinerary) and an item of a composite element (ItineraryCompositeElement) share.
#pragma once

#include <string>

#include "farecalc/FareGroups.h"
#include "frame/Gathering.h"
#include "frame/LineElement.h"

namespace qorltst {

/// A point of the fare calculation with its carrier, fare, mileage and stop-overs. The two classes name some of these
/// differently, mark a less fare each in its own way, and read symbols, surcharges and composite elements themselves.
class RoutingElement : public LineElement {
 protected:
  explicit RoutingElement(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

  /// The texts of the operations that each class writes under its own name. The other three (lowest combination,
  /// stop-over charge, fictitious point) are written under the name of `Itinerary` by both.
  struct BuildTexts {
    TraceTexts fareWithStopOver;
    TraceTexts mileageItem;
    TraceTexts intermediatePoint;
    TraceTexts mileageEqRule;
  };

  /// Reads the children that both classes know, and by `own` those of the class. Mileage equalization rules are
  /// gathered in `rules`.
  template <class MarkLess, class... Actions>
  void WalkPoint(toolkit::ParseNode& node, const BuildTexts& texts, Gathering& rules, MarkLess markLess,
                 const Rule<Actions>&... own);

  std::u16string carrierCode_;
  std::u16string cityCode_;
  std::u16string extraMileageAllowanceId_;
  std::u16string globalRoutingId_;
  std::u16string fareAmount_;
  std::u16string fareAmountToSub_;
  std::u16string fareCurrencyCode_;  // never set, and that is meant
  std::u16string fareStopOverChargeValue_;
  std::u16string fareNumberStopAllowed_;
  std::u16string stopOverChargeValue_;
  std::u16string numberStopAllowed_;
  std::u16string fictitiousCode_;
  std::u16string lowestCombinationCityCode_;
  std::u16string fareHigherClass_;
  std::u16string fareHigherCityPair_;
  std::u16string mileagePercentage_;
  bool mileageId_ = false;
  bool inclusiveTourFare_ = false;
  bool bulkTourFare_ = false;
  CollectionProperty otherSurcharges_;
  CollectionProperty mileageEqualizationRules_;

 private:
  void BuildMileageItem(toolkit::ParseNode& node, const TraceTexts& texts);
  void BuildFareIntermediatePoint(toolkit::ParseNode& node, const TraceTexts& texts);
  void BuildMileageEqRule(toolkit::ParseNode& node, const TraceTexts& texts, Gathering& rules);
  void BuildLowestCombination(toolkit::ParseNode& node);
  void BuildStopOverCharge(toolkit::ParseNode& node);
  void BuildFictitiousPoint(toolkit::ParseNode& node);
  void ReadGlobalRouting(toolkit::ParseNode& node);
};

template <class MarkLess, class... Actions>
void RoutingElement::WalkPoint(toolkit::ParseNode& node, const BuildTexts& texts, Gathering& rules, MarkLess markLess,
                               const Rule<Actions>&... own) {
  using toolkit::NodeTypeId;
  using toolkit::ParseNode;
  const auto fare = [&](ParseNode& child) {
    Traced(texts.fareWithStopOver, [&] {
      WalkFareWithStopOver(child, {fareAmount_, fareAmountToSub_, fareStopOverChargeValue_, fareNumberStopAllowed_},
                           markLess);
    });
  };
  Walk(node, On(NodeTypeId::CarrierCode, Text(carrierCode_)), On(NodeTypeId::ComponentCity, Text(cityCode_)),
       On(NodeTypeId::ExtraMileageAllowance, Text(extraMileageAllowanceId_)),
       On(NodeTypeId::MileageEqualization,
          [&](ParseNode& child) { BuildMileageEqRule(child, texts.mileageEqRule, rules); }),
       On(NodeTypeId::FareWithStopOver, fare),
       On(NodeTypeId::FictitiousPoint, [this](ParseNode& child) { BuildFictitiousPoint(child); }),
       On(NodeTypeId::MileageItem, [&](ParseNode& child) { BuildMileageItem(child, texts.mileageItem); }),
       On(NodeTypeId::StopOver, [this](ParseNode& child) { BuildStopOverCharge(child); }),
       On(NodeTypeId::FareIntermediatePoint,
          [&](ParseNode& child) { BuildFareIntermediatePoint(child, texts.intermediatePoint); }),
       On(NodeTypeId::LowestCombination, [this](ParseNode& child) { BuildLowestCombination(child); }),
       On(NodeTypeId::GlobalRouting, [this](ParseNode& child) { ReadGlobalRouting(child); }), own...);
}

}  // namespace qorltst
