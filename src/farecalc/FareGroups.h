// The groups of a fare calculation that several classes read alike.
#pragma once

#include <string>
#include <string_view>

#include "frame/Trace.h"
#include "frame/Walk.h"
#include "toolkit/ParseNode.h"

namespace qorltst {

/// What some classes hold where an amount is to be subtracted; others hold a flag.
inline constexpr std::u16string_view kLessText = u"True";

/// Where a fare with its stop-overs goes.
struct FareTargets {
  std::u16string& amount;
  std::u16string& amountToSub;
  std::u16string& stopOverValue;
  std::u16string& stopsAllowed;
};

/// Reads a fare with its stop-overs; `markLess` notes, in the class's own way, that an amount is to be subtracted.
template <class MarkLess>
void WalkFareWithStopOver(toolkit::ParseNode& node, const FareTargets& targets, MarkLess markLess) {
  using toolkit::NodeTypeId;
  const auto less = [&](toolkit::ParseNode& group) {
    markLess();
    Walk(group, On(NodeTypeId::AmountToSubtract, Text(targets.amountToSub)));
  };
  Walk(node, On(NodeTypeId::FareAmount, Text(targets.amount)), On(NodeTypeId::LessFare, less),
       On(NodeTypeId::StopOver, Children(On(NodeTypeId::StopOverValue, Text(targets.stopOverValue)),
                                         On(NodeTypeId::StopsAllowed, Text(targets.stopsAllowed)))));
}

/// Where a mileage item goes.
struct MileageTargets {
  bool& inclusiveTour;
  bool& bulkTour;
  bool& marker;
  std::u16string& percentage;
};

/// Reads a mileage item. It only ever sets flags; who wants the marker reset does so before.
void WalkMileageItem(toolkit::ParseNode& node, const MileageTargets& targets);

/// Calls `visit(item)` for each composite item, whatever its type, over all groups of a composite element.
template <class Visit>
void ForEachCompositeItem(toolkit::ParseNode& node, Visit visit) {
  using toolkit::NodeTypeId;
  const auto items = [&](toolkit::ParseNode& group) { ForEachChild(group, visit); };
  Walk(node, On(NodeTypeId::CompositeGroup, Children(On(NodeTypeId::CompositeItems, items))));
}

/// Texts that other classes write under the name of `Itinerary` too; log readers match them.
inline constexpr TraceTexts kItineraryFareTexts{
    .begin = {u"Beginning of BuildFareWithStopOver (in Itinerary) Function", u"Itinerary.BuildFareWithStopOver"},
    .end = {u"End of BuildFareWithStopOver (in Itinierary) Function", u"Itinerary.BuildFareWithStopOver"},
    .errorEnd = {u"End of BuildFareWithStopOver (in Itinerary) Function with Errors",
                 u"Itinerary.BuildFareWithStopOver"}};
inline constexpr TraceTexts kItineraryMileageTexts{
    .begin = {u"Beginning of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"},
    .end = {u"End of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"},
    .errorEnd = {u"End of BuildMileageItem (in Itinerary) Function with Error", u"Itinerary.BuildMileageItem"}};

}  // namespace qorltst
