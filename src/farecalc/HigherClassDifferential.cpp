// The public table and the fill. See HigherClassDifferential.h.
#include "farecalc/HigherClassDifferential.h"

#include "farecalc/Fare.h"
#include "farecalc/FareGroups.h"
#include "farecalc/FareHigherIntermediate.h"
#include "frame/Gathering.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in HigherClassDifferential) Function",
              u"HigherClassDifferential.FillWithData"},
    .end = {u"End of FillWithData (in HigherClassDifferential) Function", u"HigherClassDifferential.FillWithData"},
    .errorEnd = {u"End of FillWithData (in HigherClassDifferential) Function with Errors",
                 u"HigherClassDifferential.FillWithData"}};
constexpr TraceTexts kIntermediatePointTexts{
    .begin = {u"Beginning of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
              u"HigherClassDifferential.BuildFareHigherIntPoint"},
    .end = {u"End of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
            u"HigherClassDifferential.BuildFareHigherIntPoint"},
    .errorEnd = {u"End of BuildFareHigherIntPoint (in HigherClassDifferential) Function with Errors",
                 u"HigherClassDifferential.BuildFareHigherIntPoint"}};
constexpr TraceTexts kFareTexts{
    .begin = {u"Beginning of BuildFare (in HigherClassDifferential) Function", u"HigherClassDifferential.BuildFare"},
    .end = {u"End of BuildFare (in HigherClassDifferential) Function", u"HigherClassDifferential.BuildFare"},
    .errorEnd = {u"End of BuildFare (in HigherClassDifferential) Function with Errors",
                 u"HigherClassDifferential.BuildFare"}};

}  // namespace

struct HigherClassDifferential::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&HigherClassDifferential::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&HigherClassDifferential::errorText_>(),
       .help = u"The parser's error text for the item."},
      {.name = u"InclusiveTourFare",
       .access = Field<&HigherClassDifferential::inclusiveTourFare_>(),
       .help = u"Whether an inclusive tour fare applies."},
      {.name = u"BulkTourFare",
       .access = Field<&HigherClassDifferential::bulkTourFare_>(),
       .help = u"Whether a bulk tour fare applies."},
      {.name = u"MileageId",
       .access = Field<&HigherClassDifferential::mileageId_>(),
       .help = u"Whether the mileage marker is present."},
      {.name = u"Fare", .access = Field<&HigherClassDifferential::fare_>(), .help = u"The amount of the differential."},
      {.name = u"FareHigherIntermediates",
       .access = Items<FareHigherIntermediate, &HigherClassDifferential::fareHigherIntermediates_>(),
       .help = u"The intermediate points."},
      {.name = u"MileagePercentage",
       .access = Field<&HigherClassDifferential::mileagePercentage_>(),
       .help = u"The mileage percentage."},
      {.name = u"CityPair", .access = Field<&HigherClassDifferential::cityPair_>(), .help = u"The city pair."},
  }};
};

constinit const ClassDescription HigherClassDifferential::kDescription = Table::kMembers.Describe(
    u"HigherClassDifferential", u"A higher class differential: city pair, amount, intermediate points and mileage.",
    &CreateObject<HigherClassDifferential>);

HigherClassDifferential::HigherClassDifferential(toolkit::Toolkit& toolkit)
    : LineElement(toolkit), fare_(Make<Fare>(toolkit)) {}

HigherClassDifferential::~HigherClassDifferential() = default;

void HigherClassDifferential::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::DifferentialCityPair, Text(cityPair_)),
         On(NodeTypeId::IntermediatePoints, [this](ParseNode& child) { BuildFareHigherIntPoint(child); }),
         On(NodeTypeId::FareWithStopOver, [this](ParseNode& child) { BuildFare(child); }),
         On(NodeTypeId::MileageItem, [this](ParseNode& child) { BuildMileageItem(child); }));
  });
}

void HigherClassDifferential::BuildFareHigherIntPoint(ParseNode& node) {
  Traced(kIntermediatePointTexts, [&] {
    Gathering points;
    Walk(node, On(NodeTypeId::FareIntermediatePoint,
                  [&](ParseNode& child) { points.AddFilled<FareHigherIntermediate>(Toolkit(), child); }));
    points.InstallIn(fareHigherIntermediates_);
  });
}

void HigherClassDifferential::BuildFare(ParseNode& node) {
  Traced(kFareTexts, [&] {
    const auto fare = Make<Fare>(Toolkit());
    fare->FillWithData(node);
    fare_ = fare;
  });
}

void HigherClassDifferential::BuildMileageItem(ParseNode& node) {
  mileageId_ = false;  // before the begin line; the tour flags are only ever set
  Traced(kItineraryMileageTexts, [&] {
    WalkMileageItem(node, {inclusiveTourFare_, bulkTourFare_, mileageId_, mileagePercentage_});
  });
}

}  // namespace qorltst
