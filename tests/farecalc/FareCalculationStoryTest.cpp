// The calls, lines and values of a fare calculation that holds one of everything. See FareCalculationTest.cpp.
#include <gtest/gtest.h>

#include "farecalc/FareCalculation.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;

class FareCalculationStoryTest : public testing::RecordTest<FareCalculation> {};

const Tree kFareCalculation = Tree{
    2869,
    u"PAR QX LYS NUC100.00END",
    {{2870, u"PAR", {{2752, u"PAR"}}},
     {2821,
      u"",
      {{889, u"QX LYS", {{2763, u"LYS"}}},
       {2820, u"", {{2873, u"", {{2825, u"", {{3, u"C"}}}, {4, u"?"}}}}},
       {2875, u"P"},
       {2876,
        u"",
        {{2826, u"", {{2896, u"", {{92, u"PAR"}, {93, u"?"}}}, {5, u"?"}}},
         {2898, u"", {{2899, u"", {{2771, u"9"}}}, {2903, u"", {{2764, u"5"}, {2767, u"2"}}}}}}},
       {2877, u"D"},
       {2878, u"S"},
       {2898, u"", {{2717, u"100.00"}, {2899, u"?"}}},
       {6, u"?"}}},
     {2880, u"END", {{2774, u"END"}}},
     {7, u"?"}}}.WithError(u"e");

Story DeparturePoint() {
  return Tell(
      {Asks(1, "Next 2869, TypeId 2870"),
       Writes(u"Beginning of BuildDeparturePoint (in FareCalculation) Function",
              u"FareCalculation.BuildDeparturePoint"),
       Asks(3, "Text 2870, ErrorText 2870, Children 2870, Next 2870, TypeId 2752, Text 2752, Next 2870"),
       Writes(u"End of FillWithData (in DepartureRoutingPoint) Function", u"DepartureRoutingPoint.FillWithData"),
       Sets({"DepartureRoutingPoint.Text=PAR", "DepartureRoutingPoint.CityCode=PAR"}),
       Writes(u"End of BuildDeparturePoint (in FareCalculation) Function", u"FareCalculation.BuileDeparurePoint")});
}

Story Itineraries() {
  return Tell(
      {Asks(2, "Children 2821, Next 2821, TypeId 889"),
       Writes(u"Beginning of BuildItineraries (in FareCalculation) Function", u"FareCalculation.BuildItineraries"),
       Writes(u"Beginning of FillWithData (in Itinerary) Function", u"Intinerary.FillWithData"),
       Asks(4, "Text 889, ErrorText 889, Children 889, Next 889, TypeId 2763, Text 2763, Next 889"),
       Writes(u"End of FillWithData (in Itinerary) Function", u"Itinerary.FillWithData"),
       Asks(2, "Next 2821, TypeId 2820"),
       Writes(u"Beginning of BuildCompositeElement (in FareCalculation) Function",
              u"FareCalculation.BuildCompositeElement"),
       Asks(3, "Children 2820, Next 2820, TypeId 2873, Children 2873, Next 2873, TypeId 2825, Children 2825"),
       Asks(3, "Next 2825"),
       Writes(u"Beginning of FillWithData (in ItinerayCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"),
       Asks(4, "Text 3, ErrorText 3, Children 3, Next 3"),
       Writes(u"End of FillWithData (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"),
       Asks(3, "Next 2825, Next 2873, TypeId 4, Next 2873, Next 2820"),
       Writes(u"End of BuildCompositeElement (in FareCalculation) Function",
              u"FareCalculation.BuildCompositeElement")});
}

Story MinimumAndCommonFare() {
  return Tell(
      {Asks(2, "Next 2821, TypeId 2875"),
       Writes(u"Beginning of BuildFareMinimum (in FareCalculation) Function", u"FareCalculation.BuildFareMinimum"),
       Writes(u"Beginning of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData"),
       Asks(4, "Text 2875, ErrorText 2875, Children 2875, Next 2875"),
       Writes(u"End of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData"),
       Writes(u"End of BuildFareMinimum (in FareCalculaion) Function", u"FareCalculation.BuildFareMinimum"),
       Asks(2, "Next 2821, TypeId 2876"),
       Writes(u"Beginning of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon"),
       Asks(3, "Children 2876, Next 2876, TypeId 2826, Children 2826, Next 2826, TypeId 2896, Children 2896"),
       Asks(3, "Next 2896, TypeId 92, Text 92 => FareCommonCityCode=PAR, Next 2896, TypeId 93, Next 2896"),
       Asks(3, "Next 2826, TypeId 5, Next 2826, Next 2876, TypeId 2898"),
       Writes(u"Beginning of BuildFareWithStopOver (in Itinerary) Function", u"Itinerary.BuildFareWithStopOver"),
       Asks(4, "Children 2898, Next 2898, TypeId 2899 => FareCommonLessId=True, Children 2899, Next 2899"),
       Asks(4, "TypeId 2771, Text 2771 => FareCommonAmountToSub=9, Next 2899, Next 2898, TypeId 2903"),
       Asks(4, "Children 2903, Next 2903, TypeId 2764, Text 2764 => FareCommonStopOverChargeValue=5, Next 2903"),
       Asks(4, "TypeId 2767, Text 2767 => FareCommonNumberStopAllowed=2, Next 2903, Next 2898"),
       Writes(u"End of BuildFareWithStopOver (in Itinierary) Function", u"Itinerary.BuildFareWithStopOver"),
       Asks(3, "Next 2876"),
       Writes(u"End of BuildFareCommon (in FareCalculation) Function", u"FareCalculation.BuildFareCommon")});
}

Story DifferentialAndSeat() {
  return Tell(
      {Asks(2, "Next 2821, TypeId 2877"),
       Writes(u"Beginning of BuildHigherClassDiff (in FareCalculation) Function",
              u"FareCalculation.BuildHigherClassDiff"),
       Writes(u"Beginning of FillWithData (in HigherClassDifferential) Function",
              u"HigherClassDifferential.FillWithData"),
       Asks(4, "Text 2877, ErrorText 2877, Children 2877, Next 2877"),
       Writes(u"End of FillWithData (in HigherClassDifferential) Function", u"HigherClassDifferential.FillWithData"),
       Writes(u"End of BuildHigherClassDiff (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff"),
       Asks(2, "Next 2821, TypeId 2878"),
       Writes(u"Beginning of BuildExtraSeat (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff"),
       Writes(u"Beginning of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData"),
       Asks(4, "Text 2878, ErrorText 2878, Children 2878, Next 2878"),
       Writes(u"End of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData"),
       Writes(u"End of BuildExtraSeat (in FareCalculation) Function", u"FareCalculation.BuildHigherClassDiff")});
}

Story End() {
  return Tell({Asks(1, "Next 2869, TypeId 2880"),
               Writes(u"Beginning of BuildEndLine (in FareCalculation) Function", u"FareCalculation.BuildEndLine"),
               Writes(u"Beginning of FillWithData (in EndLine) Function", u"FareCalculation.EndLine"),
               Asks(2, "Text 2880, ErrorText 2880"), Asks(3, "Children 2880, Next 2880, TypeId 2774, Next 2880"),
               Writes(u"End of FillWithData (in EndLine) Function", u"FareCalculation.EndLine"),
               Sets({"EndLine.Text=END", "EndLine.EndId=True"}),
               Writes(u"End of BuildEndLine (in FareCalculation) Function", u"FareCalculation.BuildEndLine")});
}

Story WholeStory() {
  return Tell(
      {Writes(u"Beginning of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"),
       Asks(1, "Text 2869 => Text=PAR QX LYS NUC100.00END, ErrorText 2869 => ErrorText=e, Children 2869"),
       DeparturePoint(), Asks(1, "Next 2869, TypeId 2821"),
       Writes(u"Beginning of BuildItineraryAndTheRest (in FareCalculation) Function",
              u"FareCalculation.BuildItineraryAndTheRest"),
       Itineraries(), MinimumAndCommonFare(), DifferentialAndSeat(),
       Asks(2, "Next 2821, TypeId 2898, Children 2898, Next 2898, TypeId 2717, Text 2717 => FareCommonAmount=100.00"),
       Asks(2, "Next 2898, TypeId 2899, Next 2898, Next 2821, TypeId 6, Next 2821"),
       Sets({"Itineraries(1)", "Itineraries(1).Text=QX LYS", "Itineraries(1).CityCode=LYS",
             "ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=C", "FareMinimums(1)",
             "FareMinimums(1).Text=P", "HigherClassDifferentials(1)", "HigherClassDifferentials(1).Text=D",
             "ExtraSeats(1)", "ExtraSeats(1).Text=S"}),
       Writes(u"End of BuldItineraryAndTheRest (in FareCalculation) Function",
              u"FareCalculation.BuildItineraryAndTheRest"),
       End(), Asks(1, "Next 2869, TypeId 7, Next 2869"),
       Writes(u"End of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData")});
}

TEST_F(FareCalculationStoryTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kFareCalculation, WholeStory()); }

TEST_F(FareCalculationStoryTest, StopsWhereACallFailsAndShowsNoItemOfTheItinerariesBegun) {
  ExpectStoryToStopAtEveryFailure(kFareCalculation, WholeStory());
}

}  // namespace
}  // namespace qorltst
