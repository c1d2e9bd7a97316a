// Tests of fare calculation lines on their way through the parser into the TST.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "farecalc/FareCalculation.h"
#include "frame/TST.h"
#include "frame/TstParser.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Entry;
using testing::ObjectOf;
using testing::TraceEntry;
using testing::Tree;
using Texts = std::vector<std::string>;

const Entry kBegin =
    TraceEntry(u"Beginning of BuildFareCalculation (in TST parser) Function", u"TSTParser.BuildFareCalculation");
const Entry kEnd =
    TraceEntry(u"End of BuildFareCalculation (in TSTParser) Function", u"TSTParser.BuildFareCalculation");

/// PAR QX X/LYS M100.00 ... with one object of each class that a line can hold.
const Tree kLine{
    2869,
    u"the line",
    {{2870, u"departure", {{2872, u"", {{2750, u"I-"}, {2751, u"02JAN"}, {2753, u"PAR"}}}}},
     {2821,
      u"",
      {{889,
        u"itinerary",
        {{2754, u"QX"},
         {2763, u"LYS"},
         {2822, u"X", {{2758, u"X"}}},
         {2823, u"Q", {{1, u"Q25.00", {{2764, u"25.00"}}}}},
         {2824, u"E", {{2901, u"rule", {{92, u"BOD"}, {2902, u"", {{2769, u"M"}}}}}}},
         {2820, u"", {{2873, u"", {{2825, u"", {{2, u"inner", {{2754, u"ZZ"}, {2898, u"", {{2899, u""}}}}}}}}}}},
         {2907, u"", {{3, u"", {Tree{2755, u""}.WithBuffer(u"EH")}}}}}},
       {2820, u"", {{2873, u"", {{2825, u"", {{4, u"outer", {{2822, u"X"}, {2823, u"S", {{2764, u"7"}}}}}}}}}}},
       {2875, u"minimum", {{2781, u"P"}, {2898, u"fare", {{2717, u"500.00"}}}}},
       {2876, u"", {{2826, u"", {{2896, u"", {{92, u"PAR"}, {92, u"LON"}}}}}, {2898, u"", {{2899, u""}}}}},
       {2877, u"differential", {{2827, u"", {{2904, u"point", {{2908, u"", {{2780, u"C"}}}}}}}, {2898, u"difference"}}},
       {2878, u"seat", {{2772, u"EXST"}, {2717, u"80.00"}, {2879, u"", {{147, u"EUR"}}}}},
       {2898, u"", {{2717, u"100.00"}}}}},
     {2880,
      u"end",
      {{2774, u"END"},
       {2897, u"", {{2716, u"NUC"}, {2717, u"605.00"}, {2894, u"", {{2706, u"Y1"}}}}},
       {2829, u"", {{2888, u"XF", {{2833, u"", {{2889, u"JFK4.5", {{2777, u"4.5"}, {2789, u"JFK"}}}}}}}}}}}}};

class FareCalculationLineTest : public ::testing::Test {
 protected:
  std::int32_t Parse(std::vector<Tree> nodes) {
    nodes.insert(nodes.begin(), Tree{602, u"TST"});
    parsed_.nodes = std::move(nodes);
    return TstParser(*toolkit_).ParseTst(u"the text", *tst_);
  }

  [[nodiscard]] Texts FareCalculationOfTst() { return testing::Contents(*ObjectOf(*tst_, u"FareCalculation")); }

  testing::Parsed parsed_;
  Ref<testing::TestToolkit> toolkit_ = Make<testing::TestToolkit>([this](std::u16string_view) { return parsed_; });
  Ref<TST> tst_ = Make<TST>(*toolkit_);
};

TEST_F(FareCalculationLineTest, IsKeptWithAllThatItHolds) {
  EXPECT_EQ(Parse({kLine}), 0);
  EXPECT_EQ(FareCalculationOfTst(), (Texts{"Text=the line",
                                           "FareCommonLessId=True",
                                           "Itineraries(1)",
                                           "Itineraries(1).Text=itinerary",
                                           "Itineraries(1).GlobalRoutingId=EH",
                                           "Itineraries(1).AnySymbols(1)",
                                           "Itineraries(1).AnySymbols(1).StopOverNotAllowed=X",
                                           "Itineraries(1).ItineraryCompositeElements(1)",
                                           "Itineraries(1).ItineraryCompositeElements(1).Text=inner",
                                           "Itineraries(1).ItineraryCompositeElements(1).FareLessId=True",
                                           "Itineraries(1).ItineraryCompositeElements(1).CarrierCode=ZZ",
                                           "Itineraries(1).OtherSurcharges(1)",
                                           "Itineraries(1).OtherSurcharges(1).OtherSurchargeValue=25.00",
                                           "Itineraries(1).OtherSurcharges(1).Text=Q25.00",
                                           "Itineraries(1).MileageEqualizationRules(1)",
                                           "Itineraries(1).MileageEqualizationRules(1).Text=rule",
                                           "Itineraries(1).MileageEqualizationRules(1).MileageId=True",
                                           "Itineraries(1).MileageEqualizationRules(1).CityCode=BOD",
                                           "Itineraries(1).ItineraryCarrierCode=QX",
                                           "Itineraries(1).CityCode=LYS",
                                           "ExtraSeats(1)",
                                           "ExtraSeats(1).Text=seat",
                                           "ExtraSeats(1).ExtraSeatId=EXST",
                                           "ExtraSeats(1).Fare.CurrencyCode=EUR",
                                           "ExtraSeats(1).Fare.Amount=80.00",
                                           "FareMinimums(1)",
                                           "FareMinimums(1).Text=minimum",
                                           "FareMinimums(1).FareId=P",
                                           "FareMinimums(1).Fare.Text=fare",
                                           "FareMinimums(1).Fare.Amount=500.00",
                                           "ItineraryCompositeElements(1)",
                                           "ItineraryCompositeElements(1).Text=outer",
                                           "ItineraryCompositeElements(1).OtherSurcharges(1)",
                                           "ItineraryCompositeElements(1).OtherSurcharges(1).OtherSurchargeValue=7",
                                           "ItineraryCompositeElements(1).OtherSurcharges(1).Text=S",
                                           "ItineraryCompositeElements(1).ItinerarySymbol=X",
                                           "EndLine.EndId=True",
                                           "EndLine.AnyPFCs(1)",
                                           "EndLine.AnyPFCs(1).CityDigits(1)",
                                           "EndLine.AnyPFCs(1).CityDigits(1).CityDigit=4.5",
                                           "EndLine.AnyPFCs(1).CityDigits(1).CityCode=JFK",
                                           "EndLine.AnyPFCs(1).CityDigits(1).Text=JFK4.5",
                                           "EndLine.AnyPFCs(1).PaxFacilityCharge=True",
                                           "EndLine.AnyPFCs(1).Text=XF",
                                           "EndLine.FareAfterNucFareBasis=Y1",
                                           "EndLine.Text=end",
                                           "EndLine.TotalFareCurrencyCode=NUC",
                                           "EndLine.TotalFareAmount=605.00",
                                           "DepartureRoutingPoint.Text=departure",
                                           "DepartureRoutingPoint.InvoluntaryRerouting=True",
                                           "DepartureRoutingPoint.CityCode=PAR",
                                           "DepartureRoutingPoint.DepartureRoutingDate=02JAN",
                                           "HigherClassDifferentials(1)",
                                           "HigherClassDifferentials(1).Text=differential",
                                           "HigherClassDifferentials(1).Fare.Text=difference",
                                           "HigherClassDifferentials(1).FareHigherIntermediates(1)",
                                           "HigherClassDifferentials(1).FareHigherIntermediates(1).Class=C",
                                           "HigherClassDifferentials(1).FareHigherIntermediates(1).Text=point",
                                           "FareCommonAmount=100.00",
                                           "FareCommonCityCode=PARLON"}));
}

TEST_F(FareCalculationLineTest, IsBuiltBetweenLinesOfItsOwn) {
  Parse({{2869, u"the line"}});
  ASSERT_GT(toolkit_->log.size(), 5U);
  EXPECT_EQ(std::vector<Entry>(toolkit_->log.end() - 5, toolkit_->log.end()),
            (std::vector<Entry>{
                kBegin,
                TraceEntry(u"Beginning of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"),
                TraceEntry(u"End of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"), kEnd,
                TraceEntry(u"End of ParseTst(in TstParser) Function", u"TstParser.ParseTst")}));
}

TEST_F(FareCalculationLineTest, IsReplacedWholeByASecondLine) {
  EXPECT_EQ(Parse({kLine, {2869, u"second", {{2870, u"LON"}}}}), 0);
  EXPECT_EQ(FareCalculationOfTst(), (Texts{"Text=second", "DepartureRoutingPoint.Text=LON"}));
}

TEST_F(FareCalculationLineTest, IsKeptWhenALaterNodeFails) {
  EXPECT_THROW(Parse({{2869, u"the line"}, {2850, u"FARE", {{2717, u"9999999999999999"}}}}), RuntimeError);
  EXPECT_EQ(FareCalculationOfTst(), Texts{"Text=the line"});
}

TEST_F(FareCalculationLineTest, ThatFailsLeavesTheEarlierOneInPlace) {
  EXPECT_THROW(Parse({{2869, u"first"}, {2869, u"second", {{2821, u"", {{889, u"", {{2907, u"?"}}}}}}}}), RuntimeError);
  EXPECT_EQ(FareCalculationOfTst(), Texts{"Text=first"});
  EXPECT_EQ(toolkit_->log.back().message, u"Beginning of FillWithData (in Itinerary) Function");
}

TEST_F(FareCalculationLineTest, IsKeptByALaterRetrievalWithoutOne) {
  Parse({{2869, u"the line"}});
  Parse({});
  EXPECT_EQ(FareCalculationOfTst(), Texts{"Text=the line"});
}

TEST_F(FareCalculationLineTest, FailingAtAnyCallRaises9999AndTheTstHasNoneOfItAndNoErrorLineIsWritten) {
  Parse({kLine});
  const std::vector<Entry> wholeLog = std::exchange(toolkit_->log, {});
  const auto& calls = toolkit_->calls;
  const auto first = static_cast<std::size_t>(std::ranges::find(calls, "Text 2869") - calls.begin());
  const std::size_t last = calls.size() - 1;  // the next top-level node
  ASSERT_GT(last - first, 200U);
  for (std::size_t n = first; n < last; ++n) {
    SCOPED_TRACE(n);
    toolkit_->log.clear();
    tst_ = Make<TST>(*toolkit_);
    toolkit_->FailAt(n + 1, RuntimeError(toolkit::kObjectNotSet));
    try {
      Parse({kLine});
      ADD_FAILURE() << "nothing was raised";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x8004270FU);
      EXPECT_EQ(error.Source(), u"TstParser:ParseTst Method");
    }
    EXPECT_EQ(FareCalculationOfTst(), Texts());
    ASSERT_LT(toolkit_->log.size(), wholeLog.size());
    EXPECT_TRUE(std::equal(toolkit_->log.begin(), toolkit_->log.end(), wholeLog.begin()));
  }
}

}  // namespace
}  // namespace qorltst
