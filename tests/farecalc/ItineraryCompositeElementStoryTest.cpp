// The calls, lines and values of an item of a composite element that holds one of everything. See
// ItineraryCompositeElementTest.cpp.
#include <gtest/gtest.h>

#include "farecalc/ItineraryCompositeElement.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Sets;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;

class ItineraryCompositeElementStoryTest : public testing::RecordTest<ItineraryCompositeElement> {};

const Tree kElement = Tree{
    5000,
    u"QX LYS M100.00",
    {{2754, u"QX"},
     {2822, u"X//", {{2758, u"?"}}},
     {2823, u"Q25.00", {{2764, u"25.00"}}},
     {2823, u"?"},
     {2824, u"E", {{2901, u"E/PAR"}, {3, u"?"}}},
     {2898, u"M", {{2717, u"100.00"}, {2899, u"", {{2771, u"9.00"}}}, {2903, u"", {{2764, u"5"}, {2767, u"2"}}}}},
     {2900, u"F", {{92, u"PAR"}}},
     {2902, u"15M", {{2769, u"M"}, {2768, u"15"}, {2766, u"BT"}}},
     {2903, u"S", {{2767, u"3"}, {2764, u"6"}}},
     {2904, u"H", {{93, u"C"}, {1130, u"PARROM"}}},
     {2906, u"L", {{92, u"LON"}}},
     {2907, u"EH", {Tree{2755, u""}.WithBuffer(u"EH")}},
     {2763, u"LYS"},
     {2770, u"E/XXX"},
     {2820, u"?"}}}.WithError(u"e");

Story Lists() {
  return Tell(
      {Asks(1, "Next 5000, TypeId 2822, Text 2822 => ItinerarySymbol=X//, Next 5000, TypeId 2823"),
       Writes(u"Beginning of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildOtherSurcharge"),
       Asks(2, "HasChildren 2823, Children 2823, Next 2823"),
       Writes(u"Beginning of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"),
       Asks(3, "Text 2823, ErrorText 2823, Children 2823, Next 2823, TypeId 2764, Text 2764, Next 2823"),
       Writes(u"End of FillWithData (in OtherSurcharge) Function", u"OtherSurcharge.FillWithData"),
       Asks(2, "Next 2823"),
       Writes(u"End of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildOtherSurcharge"),
       Asks(1, "Next 5000, TypeId 2823"),
       Writes(u"Beginning of BuildOtherSurcharge (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildOtherSurcharge"),
       Asks(2, "HasChildren 2823"), Asks(1, "Next 5000, TypeId 2824"),
       Writes(u"Beginning of BuildMileageEqRule (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildMileageEqRule)"),
       Asks(2, "Children 2824, Next 2824, TypeId 2901"),
       Writes(u"Beginning of FillWithData (in MileageEqualizationRule) Function",
              u"MileageEqualizationRule.FillWithData"),
       Asks(3, "Text 2901, ErrorText 2901, Children 2901, Next 2901"),
       Writes(u"End of FillWithData (in MileageEqualizationRule) Function", u"MileageEqualizationRule.FillWithData"),
       Asks(2, "Next 2824, TypeId 3, Next 2824"),
       Writes(u"End of BuildMileageEqRule (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildMileageEqRule")});
}

Story Groups() {
  return Tell(
      {Asks(1, "Next 5000, TypeId 2898"),
       Writes(u"Beginning of BuildFareWithStopOver (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildFareWithStopOver"),
       Asks(2, "Children 2898, Next 2898, TypeId 2717, Text 2717 => FareAmount=100.00"),
       Asks(2, "Next 2898, TypeId 2899 => FareLessId=True, Children 2899, Next 2899, TypeId 2771"),
       Asks(2, "Text 2771 => FareAmountToSub=9.00, Next 2899, Next 2898, TypeId 2903, Children 2903, Next 2903"),
       Asks(2, "TypeId 2764, Text 2764 => FareStopOverChargeValue=5, Next 2903"),
       Asks(2, "TypeId 2767, Text 2767 => FareNumberStopAllowed=2, Next 2903, Next 2898"),
       Asks(1, "Next 5000, TypeId 2900"),
       Writes(u"Beginning of BuildFictitiousPoint (in Itinerary) Function", u"Itinerary.BuildFictitiousPoint"),
       Asks(2, "Children 2900, Next 2900, TypeId 92, Text 92 => FictitiousCode=PAR, Next 2900"),
       Writes(u"End of BuildFictitiousPoint Function", u"Itinerary.BuildFictitiousPoint"),
       Asks(1, "Next 5000, TypeId 2902"),
       Writes(u"Beginning of BuildMileageItem (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildMileageItem"),
       Asks(2, "Children 2902, Next 2902, TypeId 2769 => MileageId=True, Next 2902, TypeId 2768"),
       Asks(2, "Text 2768 => MileageItemPercent=15, Next 2902, TypeId 2766 => BulkTourFare=True, Next 2902"),
       Writes(u"End of BuildMileageItem (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildMileageItem"),
       Asks(1, "Next 5000, TypeId 2903"),
       Writes(u"Beginning of BuildStopOverCharge (in Itinerary) Function", u"Itinerary.BuildStopOverCharge"),
       Asks(2, "Children 2903, Next 2903, TypeId 2767, Text 2767 => NumberStopAllowed=3, Next 2903"),
       Asks(2, "TypeId 2764, Text 2764 => StopOverChargeValue=6, Next 2903"),
       Writes(u"End of BuildStopOverCharge Function", u"Itinerary.BuildStopOverCharge"),
       Asks(1, "Next 5000, TypeId 2904"),
       Writes(u"Beginning of BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
              u"IntineraryCompositeElement.BuildFareIntermediatePoint"),
       Asks(2, "Children 2904, Next 2904, TypeId 93, Text 93 => FareHigherClass=C, Next 2904, TypeId 1130"),
       Asks(2, "Text 1130 => FareHigherCityPair=PARROM, Next 2904"),
       Writes(u"End BuildFareIntermediatePoint (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.BuildFareIntermediatePoint"),
       Asks(1, "Next 5000, TypeId 2906"),
       Writes(u"Beginning of BuildLowestCombination (in Itinerary) Function", u"Itinerary.BuildLowestCombination"),
       Asks(2, "Children 2906, Next 2906, TypeId 92, Text 92 => LowestCombinationCityCode=LON, Next 2906"),
       Writes(u"End of BuildLowestCombination Function", u"Itinerary.BuildLowestCombination")});
}

Story WholeStory() {
  return Tell(
      {Writes(u"Beginning of FillWithData (in ItinerayCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData"),
       Asks(1, "Text 5000 => Text=QX LYS M100.00, ErrorText 5000 => ErrorText=e, Children 5000"),
       Asks(1, "Next 5000, TypeId 2754, Text 2754 => CarrierCode=QX"), Lists(), Groups(),
       Asks(1, "Next 5000, TypeId 2907, FindNode 2755, Buffer 2755 => GlobalRoutingId=EH"),
       Asks(1, "Next 5000, TypeId 2763, Text 2763 => CityCode=LYS"),
       Asks(1, "Next 5000, TypeId 2770, Text 2770 => ExtraMileageAllowanceId=E/XXX, Next 5000, TypeId 2820"),
       Asks(1, "Next 5000"),
       Sets({"OtherSurcharges(1)", "OtherSurcharges(1).OtherSurchargeValue=25.00", "OtherSurcharges(1).Text=Q25.00",
             "MileageEqualizationRules(1)", "MileageEqualizationRules(1).Text=E/PAR"}),
       Writes(u"End of FillWithData (in ItineraryCompositeElement) Function",
              u"ItineraryCompositeElement.FillWithData")});
}

TEST_F(ItineraryCompositeElementStoryTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kElement, WholeStory()); }

TEST_F(ItineraryCompositeElementStoryTest, StopsWhereACallFailsAndShowsNoneOfItsCollections) {
  ExpectStoryToStopAtEveryFailure(kElement, WholeStory());
}

}  // namespace
}  // namespace qorltst
