// The calls, lines and values of a fare component that holds one of everything. See ItineraryTest.cpp.
#include <gtest/gtest.h>

#include "farecalc/Itinerary.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;

class ItineraryStoryTest : public testing::RecordTest<Itinerary> {};

const Tree kItinerary = Tree{
    889,
    u"QX ROM M100.00",
    {{2754, u"QX"},
     {2820, u"", {{2873, u"", {{2825, u"", {{5000, u"LYS"}}}, {1, u"?"}}}, {2, u"?"}}},
     {2822, u"X", {{2758, u"X"}}},
     {2822, u"?"},
     {2823, u"Q", {{7, u"Q25.00"}}},
     {2823, u"?"},
     {2824, u"E", {{2901, u"E/PAR"}, {3, u"?"}}},
     {2898, u"M", {{2717, u"100.00"}, {2899, u"", {{2771, u"9.00"}}}, {2903, u"", {{2764, u"5"}, {2767, u"2"}}}}},
     {2900, u"F", {{92, u"PAR"}}},
     {2902, u"15M", {{2769, u"M"}, {2768, u"15"}}},
     {2903, u"S", {{2767, u"3"}, {2764, u"6"}}},
     {2904, u"H", {{93, u"C"}, {1130, u"PARROM"}}},
     {2906, u"L", {{92, u"LON"}}},
     {2907, u"EH", {Tree{2755, u""}.WithBuffer(u"EH")}},
     {2763, u"ROM"},
     {2770, u"E/XXX"},
     {9, u"?"}}}.WithError(u"e");

Story Lists() {
  return Tell(
      {Asks(1, "Next 889, TypeId 2820"),
       Writes(u"Beginning of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement"),
       Asks(2, "Children 2820, Next 2820, TypeId 2873, Children 2873, Next 2873, TypeId 2825, Children 2825"),
       Asks(2, "Next 2825"),
       Writes(u"Beginning of FillWithData (in ItinerayCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"),
       Asks(3, "Text 5000, ErrorText 5000, Children 5000, Next 5000"),
       Writes(u"End of FillWithData (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"),
       Asks(2, "Next 2825, Next 2873, TypeId 1, Next 2873, Next 2820, TypeId 2, Next 2820"),
       Writes(u"End of BuildCompositeElement (in Itinerary) Function", u"Itinerary.BuildCompositeElement"),
       Asks(1, "Next 889, TypeId 2822"),
       Writes(u"Beginning of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList"),
       Asks(2, "HasChildren 2822"),
       Writes(u"Beginning of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData"),
       Asks(3, "Children 2822, Next 2822, TypeId 2758, Text 2758, Next 2822"),
       Writes(u"End of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData"),
       Writes(u"End of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList"),
       Asks(1, "Next 889, TypeId 2822"),
       Writes(u"Beginning of BuildAnySymbolList (in Itinerary) Function", u"Itinerary.BuildAnySymbolList"),
       Asks(2, "HasChildren 2822"),
       Asks(1, "Next 889, TypeId 2823"),
       Writes(u"Beginning of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"),
       Asks(2, "HasChildren 2823, Children 2823, Next 2823"),
       Writes(u"Beginning of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"),
       Asks(3, "Text 7, ErrorText 7, Children 7, Next 7"),
       Writes(u"End of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"),
       Asks(2, "Next 2823"),
       Writes(u"End of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"),
       Asks(1, "Next 889, TypeId 2823"),
       Writes(u"Beginning of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"),
       Asks(2, "HasChildren 2823"),
       Writes(u"End of BuildOtherSurcharges (in Itinerary) Function", u"Itinerary.BuildOtherSurcharges"),
       Asks(1, "Next 889, TypeId 2824"),
       Writes(u"Beginning of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule)"),
       Asks(2, "Children 2824, Next 2824, TypeId 2901"),
       Writes(u"Beginning of FillWithData (in MileageEqualizationRule) Function",
              u"MileageEqualizationRule.FillWithData"),
       Asks(3, "Text 2901, ErrorText 2901, Children 2901, Next 2901"),
       Writes(u"End of FillWithData (in MileageEqualizationRule) Function", u"MileageEqualizationRule.FillWithData"),
       Asks(2, "Next 2824, TypeId 3, Next 2824"),
       Writes(u"End of BuildMileageEqRule (in Itinerary) Function", u"Itinerary.BuildMileageEqRule")});
}

Story Groups() {
  return Tell(
      {Asks(1, "Next 889, TypeId 2898"),
       Writes(u"Beginning of BuildFareWithStopOver (in Itinerary) Function", u"Itinerary.BuildFareWithStopOver"),
       Asks(2, "Children 2898, Next 2898, TypeId 2717, Text 2717 => FareAmount=100.00"),
       Asks(2, "Next 2898, TypeId 2899 => FareLessId=True, Children 2899, Next 2899, TypeId 2771"),
       Asks(2, "Text 2771 => FareAmountToSub=9.00, Next 2899, Next 2898, TypeId 2903, Children 2903, Next 2903"),
       Asks(2, "TypeId 2764, Text 2764 => FareStopOverChargeValue=5, Next 2903"),
       Asks(2, "TypeId 2767, Text 2767 => FareNumberStopAllowed=2, Next 2903, Next 2898"),
       Writes(u"End of BuildFareWithStopOver (in Itinierary) Function", u"Itinerary.BuildFareWithStopOver"),
       Asks(1, "Next 889, TypeId 2900"),
       Writes(u"Beginning of BuildFictitiousPoint (in Itinerary) Function", u"Itinerary.BuildFictitiousPoint"),
       Asks(2, "Children 2900, Next 2900, TypeId 92, Text 92 => FictitiousCode=PAR, Next 2900"),
       Writes(u"End of BuildFictitiousPoint Function", u"Itinerary.BuildFictitiousPoint"),
       Asks(1, "Next 889, TypeId 2902"),
       Writes(u"Beginning of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
       Asks(2, "Children 2902, Next 2902, TypeId 2769 => MileageItemId=True, Next 2902, TypeId 2768"),
       Asks(2, "Text 2768 => MileagePercentage=15, Next 2902"),
       Writes(u"End of BuildMileageItem (in Itinerary) Function", u"Itinerary.BuildMileageItem"),
       Asks(1, "Next 889, TypeId 2903"),
       Writes(u"Beginning of BuildStopOverCharge (in Itinerary) Function", u"Itinerary.BuildStopOverCharge"),
       Asks(2, "Children 2903, Next 2903, TypeId 2767, Text 2767 => StopOverNumberStopAllowed=3, Next 2903"),
       Asks(2, "TypeId 2764, Text 2764 => StopOverChargeValue=6, Next 2903"),
       Writes(u"End of BuildStopOverCharge Function", u"Itinerary.BuildStopOverCharge"),
       Asks(1, "Next 889, TypeId 2904"),
       Writes(u"Beginning of BuildFareIntermediatePoint (in Itinerary) Function",
              u"Intinerary.BuildFareIntermediatePoint"),
       Asks(2, "Children 2904, Next 2904, TypeId 93, Text 93 => FareHigherClass=C, Next 2904, TypeId 1130"),
       Asks(2, "Text 1130 => FareHigherCityPair=PARROM, Next 2904"),
       Writes(u"End BuildFareIntermediatePoint (in Itinerary) Function", u"Itinerary.BuildFareIntermediatePoint"),
       Asks(1, "Next 889, TypeId 2906"),
       Writes(u"Beginning of BuildLowestCombination (in Itinerary) Function", u"Itinerary.BuildLowestCombination"),
       Asks(2, "Children 2906, Next 2906, TypeId 92, Text 92 => LowestCombinationCityCode=LON, Next 2906"),
       Writes(u"End of BuildLowestCombination Function", u"Itinerary.BuildLowestCombination")});
}

Story WholeStory() {
  return Tell(
      {Writes(u"Beginning of FillWithData (in Itinerary) Function", u"Intinerary.FillWithData"),
       Asks(1, "Text 889 => Text=QX ROM M100.00, ErrorText 889 => ErrorText=e, Children 889"),
       Asks(1, "Next 889, TypeId 2754, Text 2754 => ItineraryCarrierCode=QX"), Lists(), Groups(),
       Asks(1, "Next 889, TypeId 2907, FindNode 2755, Buffer 2755 => GlobalRoutingId=EH"),
       Asks(1, "Next 889, TypeId 2763, Text 2763 => CityCode=ROM"),
       Asks(1, "Next 889, TypeId 2770, Text 2770 => ExtraMileageAllowanceId=E/XXX, Next 889, TypeId 9, Next 889"),
       Sets({"AnySymbols(1)", "AnySymbols(1).StopOverNotAllowed=X", "OtherSurcharges(1)",
             "OtherSurcharges(1).Text=Q25.00", "MileageEqualizationRules(1)", "MileageEqualizationRules(1).Text=E/PAR",
             "ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=LYS"}),
       Writes(u"End of FillWithData (in Itinerary) Function", u"Itinerary.FillWithData")});
}

TEST_F(ItineraryStoryTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kItinerary, WholeStory()); }

TEST_F(ItineraryStoryTest, StopsWhereACallFailsAndShowsNoneOfItsCollections) {
  ExpectStoryToStopAtEveryFailure(kItinerary, WholeStory());
}

}  // namespace
}  // namespace qorltst
