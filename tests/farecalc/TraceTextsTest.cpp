// The lines of each operation on an empty node of its own: misspelt, borrowed and absent ones included.
#include <gtest/gtest.h>

#include "farecalc/EndLine.h"
#include "farecalc/FareCalculation.h"
#include "farecalc/HigherClassDifferential.h"
#include "farecalc/Itinerary.h"
#include "farecalc/ItineraryCompositeElement.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Entry;
using testing::TraceEntry;
using testing::Tree;

/// The lines that a group without children writes inside its owner's fill.
struct GroupLines {
  std::int32_t group;
  std::vector<Entry> lines;
};

/// Fills a fresh object from a node that holds this one child; its whole log.
template <class Record>
std::vector<Entry> LogOf(const Tree& child) {
  const auto toolkit = Make<testing::TestToolkit>();
  Make<Record>(*toolkit)->FillWithData(*toolkit->Node({1, u"", {child}}));
  return toolkit->log;
}

template <class Record>
void ExpectLines(const Entry& begin, const Entry& end, const std::vector<GroupLines>& groups) {
  for (const GroupLines& group : groups) {
    SCOPED_TRACE(group.group);
    EXPECT_EQ(LogOf<Record>({group.group, u"group"}), testing::Concat({{begin}, group.lines, {end}}));
  }
}

TEST(FareCalculationTraceTextsTest, OfTheBuildersOfAFareComponent) {
  ExpectLines<Itinerary>(
      TraceEntry(u"Beginning of FillWithData (in Itinerary) Function", u"Intinerary.FillWithData"),
      TraceEntry(u"End of FillWithData (in Itinerary) Function", u"Itinerary.FillWithData"),
      {{2754, {}},
       {2820,
        {TraceEntry(u"Beginning of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement"),
         TraceEntry(u"End of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement")}},
       // A node without children is no symbol, and its operation has no end line.
       {2822,
        {TraceEntry(u"Beginning of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList")}},
       {2823,
        {TraceEntry(u"Beginning of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"),
         TraceEntry(u"End of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges")}},
       {2824,
        {TraceEntry(u"Beginning of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule)"),
         TraceEntry(u"End of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule")}},
       {2898,
        {TraceEntry(u"Beginning of BuildFareWithStopOver (in Itinerary) Function", u"Itinerary.BuildFareWithStopOver"),
         TraceEntry(u"End of BuildFareWithStopOver (in Itinierary) Function", u"Itinerary.BuildFareWithStopOver")}},
       {2900,
        {TraceEntry(u"Beginning of BuildFictitiousPoint (in Itinerary) Function", u"Itinerary.BuildFictitiousPoint"),
         TraceEntry(u"End of BuildFictitiousPoint Function", u"Itinerary.BuildFictitiousPoint")}},
       {2902,
        {TraceEntry(u"Beginning of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
         TraceEntry(u"End of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem")}},
       {2903,
        {TraceEntry(u"Beginning of BuildStopOverCharge (in Itinerary) Function", u"Itinerary.BuildStopOverCharge"),
         TraceEntry(u"End of BuildStopOverCharge Function", u"Itinerary.BuildStopOverCharge")}},
       {2904,
        {TraceEntry(u"Beginning of BuildFareIntermediatePoint (in Itinerary) Function",
                    u"Intinerary.BuildFareIntermediatePoint"),
         TraceEntry(u"End BuildFareIntermediatePoint (in Itinerary) Function",
                    u"Itinerary.BuildFareIntermediatePoint")}},
       {2906,
        {TraceEntry(u"Beginning of BuildLowestCombination (in Itinerary) Function",
                    u"Itinerary.BuildLowestCombination"),
         TraceEntry(u"End of BuildLowestCombination Function", u"Itinerary.BuildLowestCombination")}}});
}

TEST(FareCalculationTraceTextsTest, OfTheBuildersOfAnItemOfACompositeElement) {
  ExpectLines<ItineraryCompositeElement>(
      TraceEntry(u"Beginning of FillWithData (in ItinerayCompositeElement) Function",
                 u"ItineraryCompositeElement.FillWithData"),
      TraceEntry(u"End of FillWithData (in ItineraryCompositeElement) Function",
                 u"ItineraryCompositeElement.FillWithData"),
      {{2820, {}},
       {2822, {}},
       // A node without children is no surcharge, and its operation has no end line.
       {2823,
        {TraceEntry(u"Beginning of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildOtherSurcharge")}},
       {2824,
        {TraceEntry(u"Beginning of BuildMileageEqRule (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildMileageEqRule)"),
         TraceEntry(u"End of BuildMileageEqRule (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildMileageEqRule")}},
       {2898,
        {TraceEntry(u"Beginning of BuildFareWithStopOver (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildFareWithStopOver")}},
       {2900,
        {TraceEntry(u"Beginning of BuildFictitiousPoint (in Itinerary) Function", u"Itinerary.BuildFictitiousPoint"),
         TraceEntry(u"End of BuildFictitiousPoint Function", u"Itinerary.BuildFictitiousPoint")}},
       {2902,
        {TraceEntry(u"Beginning of BuildMileageItem (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildMileageItem"),
         TraceEntry(u"End of BuildMileageItem (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildMileageItem")}},
       {2903,
        {TraceEntry(u"Beginning of BuildStopOverCharge (in Itinerary) Function", u"Itinerary.BuildStopOverCharge"),
         TraceEntry(u"End of BuildStopOverCharge Function", u"Itinerary.BuildStopOverCharge")}},
       {2904,
        {TraceEntry(u"Beginning of BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
                    u"IntineraryCompositeElement.BuildFareIntermediatePoint"),
         TraceEntry(u"End BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
                    u"ItineraryCompositeElement.BuildFareIntermediatePoint")}},
       {2906,
        {TraceEntry(u"Beginning of BuildLowestCombination (in Itinerary) Function",
                    u"Itinerary.BuildLowestCombination"),
         TraceEntry(u"End of BuildLowestCombination Function", u"Itinerary.BuildLowestCombination")}}});
}

TEST(FareCalculationTraceTextsTest, OfTheBuildersOfAnEndLineHaveNoBeginLine) {
  ExpectLines<EndLine>(TraceEntry(u"Beginning of FillWithData (in EndLine) Function", u"FareCalculation.EndLine"),
                       TraceEntry(u"End of FillWithData (in EndLine) Function", u"FareCalculation.EndLine"),
                       {{2774, {}},
                        {2829, {TraceEntry(u"End of BuildAnyPFC (in EndLine) Function", u"FareCalculation.EndLine")}},
                        {2881, {TraceEntry(u"End of BuildFreeFlow (in EndLine) Function", u"FareCalculation.EndLine")}},
                        {2895, {}},
                        {2897, {}}});
}

TEST(FareCalculationTraceTextsTest, OfTheBuildersOfADifferential) {
  ExpectLines<HigherClassDifferential>(
      TraceEntry(u"Beginning of FillWithData (in HigherClassDifferential) Function",
                 u"HigherClassDifferential.FillWithData"),
      TraceEntry(u"End of FillWithData (in HigherClassDifferential) Function", u"HigherClassDifferential.FillWithData"),
      {{2827,
        {TraceEntry(u"Beginning of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
                    u"HigherClassDifferential.BuildFareHigherIntPoint"),
         TraceEntry(u"End of BuildFareHigherIntPoint (in HigherClassDifferential) Function",
                    u"HigherClassDifferential.BuildFareHigherIntPoint")}},
       {2898,
        {TraceEntry(u"Beginning of BuildFare (in HigherClassDifferential) Function",
                    u"HigherClassDifferential.BuildFare"),
         TraceEntry(u"Beginning of FillWithData (in Fare) Function", u"Fare.FillWithData"),
         TraceEntry(u"End of FillWithData (in Fare) Function", u"Fare.FillWithData"),
         TraceEntry(u"End of BuildFare (in HigherClassDifferential) Function", u"HigherClassDifferential.BuildFare")}},
       // Under the name of the fare component, and that is meant.
       {2902,
        {TraceEntry(u"Beginning of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
         TraceEntry(u"End of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem")}}});
}

TEST(FareCalculationTraceTextsTest, OfAnEmptyFareAmongTheItinerariesAreNone) {
  EXPECT_EQ(LogOf<FareCalculation>({2821, u"", {{2898, u""}}}),
            (std::vector<Entry>{
                TraceEntry(u"Beginning of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"),
                TraceEntry(u"Beginning of BuildItineraryAndTheRest (in FareCalculation) Function",
                           u"FareCalculation.BuildItineraryAndTheRest"),
                TraceEntry(u"End of BuldItineraryAndTheRest (in FareCalculation) Function",
                           u"FareCalculation.BuildItineraryAndTheRest"),
                TraceEntry(u"End of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData")}));
}

TEST(FareCalculationTraceTextsTest, OfAnEmptyCommonFareAreItsOwnAndThoseOfAFareComponent) {
  const std::vector<Entry> log = LogOf<FareCalculation>({2821, u"", {{2876, u"", {{2898, u""}}}}});
  ASSERT_EQ(log.size(), 8U);
  EXPECT_EQ(
      std::vector<Entry>(log.begin() + 2, log.end() - 2),
      (std::vector<Entry>{
          TraceEntry(u"Beginning of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon"),
          TraceEntry(u"Beginning of BuildFareWithStopOver (in Itinerary) Function", u"Itinerary.BuildFareWithStopOver"),
          TraceEntry(u"End of BuildFareWithStopOver (in Itinierary) Function", u"Itinerary.BuildFareWithStopOver"),
          TraceEntry(u"End of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon")}));
}

}  // namespace
}  // namespace qorltst
