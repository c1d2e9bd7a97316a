// The sample fare calculations of examples/displays, retrieved by the component: every value of the object model.
#include <gtest/gtest.h>

#include <sstream>

#include "DisplaySupport.h"
#include "FareCalculationModel.h"
#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "simulator/SimulatedToolkit.h"
#include "tests/support/Printers.h"

namespace qorltst::simulator {
namespace {

/// The values of the fare calculation in a sample display, which the component must read without a warning.
Values ModelOf(const std::string& file) {
  const auto session = RecordedSession::Load(SourceFolder() / "examples/displays" / file);
  const auto tst = Make<TST>(*Make<SimulatedToolkit>());
  EXPECT_EQ(tst->RetrieveCurrentTst(session.Get()), toolkit::kNoError);
  return ValuesOf(*testing::ObjectOf(*tst, u"FareCalculation"));
}

/// "path=value", a line each; the first line is left out.
Values Expected(const std::string& text) {
  Values values;
  std::istringstream stream(text);
  std::string line;
  std::getline(stream, line);
  while (std::getline(stream, line)) {
    const std::size_t equals = line.find('=');
    values[line.substr(0, equals)] = line.substr(equals + 1);
  }
  return values;
}

void ExpectModel(const std::string& file, const std::string& values) {
  EXPECT_EQ(Differences(Expected(values), ModelOf(file)), std::vector<std::string>());
}

TEST(FareCalculationSamples, HoldARoundTrip) {
  ExpectModel("fc-round-trip.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.Text=LON
EndLine=present
EndLine.AnyPFCs=1
EndLine.AnyPFCs[1].CombinedTax=True
EndLine.AnyPFCs[1].Text=XT 20.00GB 50.00FR
EndLine.EndId=True
EndLine.RateOfExchange=0.812345
EndLine.Text=NUC2606.00END ROE0.812345 XT 20.00GB 50.00FR NON-REFUNDABLE / VALID QX ONLY
EndLine.TotalFareAmount=2606.00
EndLine.TotalFareCurrencyCode=NUC
Itineraries=2
Itineraries[1].AnySymbols=1
Itineraries[1].AnySymbols[1].StopOverNotAllowed=X/
Itineraries[1].CityCode=TYO
Itineraries[1].FareAmount=1250.50
Itineraries[1].GlobalRoutingId=EH
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageItemId=True
Itineraries[1].MileagePercentage=10
Itineraries[1].OtherSurcharges=2
Itineraries[1].OtherSurcharges[1].OtherSurchargeValue=25.00
Itineraries[1].OtherSurcharges[1].Text=Q25.00
Itineraries[1].OtherSurcharges[2].OtherSurchargeValue=5.00
Itineraries[1].OtherSurcharges[2].Text=Q LONTYO5.00
Itineraries[1].StopOverChargeValue=50.00
Itineraries[1].StopOverNumberStopAllowed=2
Itineraries[1].Text=QX X/PAR QX(EH)TYO Q25.00Q LONTYO5.00 2S50.00 10M1250.50YRT
Itineraries[2].CityCode=LON
Itineraries[2].FareAmount=1250.50
Itineraries[2].ItineraryCarrierCode=ZZ
Itineraries[2].MileageItemId=True
Itineraries[2].StopOverChargeValue=25.00
Itineraries[2].StopOverNumberStopAllowed=3
Itineraries[2].Text=QX OSA     S25.00 S/3 ZZ LON M1250.50YRT/CH25
Text=FCALC LON QX X/PAR QX(EH)TYO Q25.00Q LONTYO5.00 2S50.00 10M1250.50YRT QX OSA     S25.00 S/3 ZZ LON M1250.50YRT/CH25 NUC2606.00END ROE0.812345 XT 20.00GB 50.00FR NON-REFUNDABLE / VALID QX ONLY
)");
}

TEST(FareCalculationSamples, HoldAnOpenJaw) {
  ExpectModel("fc-open-jaw.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.DepartureRoutingDate=03JAN27
DepartureRoutingPoint.Text=03JAN27 LON
EndLine=present
EndLine.EndId=True
EndLine.RateOfExchange=0.753100
EndLine.Text=NUC1630.50END ROE0.753100
EndLine.TotalFareAmount=1630.50
EndLine.TotalFareCurrencyCode=NUC
FareCommonAmount=60.00
FareCommonAmountToSub=10.00
FareCommonCityCode=LONTYOOSAPAR
FareCommonLessId=True
FareCommonStopOverChargeValue=20.00
Itineraries=2
Itineraries[1].AnySymbols=4
Itineraries[1].AnySymbols[1].ExtraMileageRoutingPoint=E/
Itineraries[1].AnySymbols[1].StopOverNotAllowed=X/
Itineraries[1].AnySymbols[2].ReducedMileageRoutingPoint=L/
Itineraries[1].AnySymbols[3].GapInRoutingIncludedInMileage=/-
Itineraries[1].AnySymbols[4].TicketedPointNotInMileage=*/
Itineraries[1].CityCode=TYO
Itineraries[1].ExtraMileageAllowanceId=E/XXX
Itineraries[1].FareAmount=780.25
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageEqualizationRules=2
Itineraries[1].MileageEqualizationRules[1].CityCode=BUE
Itineraries[1].MileageEqualizationRules[1].Text=B/BUE
Itineraries[1].MileageEqualizationRules[2].CityCode=RIO
Itineraries[1].MileageEqualizationRules[2].MileageId=True
Itineraries[1].MileageEqualizationRules[2].MileageItemPercentage=5
Itineraries[1].MileageEqualizationRules[2].Text=B/RIO/5M
Itineraries[1].MileageItemId=True
Itineraries[1].MileagePercentage=15
Itineraries[1].Text=QX X/E/BRU ZZ L/SIN /-BKK QX */TYO E/XXX B/BUE B/RIO/5M        15M780.25YRT
Itineraries[2].AnySymbols=2
Itineraries[2].AnySymbols[1].GapInRoutinNotInMileage=//
Itineraries[2].AnySymbols[2].OtherSymbol=T/
Itineraries[2].CityCode=PAR
Itineraries[2].FareAmount=780.25
Itineraries[2].ItineraryCarrierCode=ZZ
Itineraries[2].MileageEqualizationRules=1
Itineraries[2].MileageEqualizationRules[1].CityCode=MAD
Itineraries[2].MileageEqualizationRules[1].InclusiveTourFare=True
Itineraries[2].MileageEqualizationRules[1].MileageId=True
Itineraries[2].MileageEqualizationRules[1].Text=B/MAD/M/IT
Itineraries[2].Text=//OSA QX T/SEL ZZ PAR B/MAD/M/IT 780.25BHXAP3
Text=FCALC 03JAN27 LON QX X/E/BRU ZZ L/SIN /-BKK QX */TYO E/XXX B/BUE B/RIO/5M        15M780.25YRT //OSA QX T/SEL ZZ PAR B/MAD/M/IT 780.25BHXAP3 C/LONTYO/OSAPAR      60.00LESS10.00S20.00 NUC1630.50END ROE0.753100
)");
}

TEST(FareCalculationSamples, HoldSideTrips) {
  ExpectModel("fc-side-trip.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.Text=LON
EndLine=present
EndLine.EndId=True
EndLine.Text=END
Itineraries=2
Itineraries[1].CityCode=ATH
Itineraries[1].FareAmount=310.00
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].ItineraryCompositeElements=4
Itineraries[1].ItineraryCompositeElements[1].CarrierCode=ZZ
Itineraries[1].ItineraryCompositeElements[1].CityCode=PMO
Itineraries[1].ItineraryCompositeElements[1].GlobalRoutingId=EH
Itineraries[1].ItineraryCompositeElements[1].ItinerarySymbol=X/
Itineraries[1].ItineraryCompositeElements[1].OtherSurcharges=1
Itineraries[1].ItineraryCompositeElements[1].OtherSurcharges[1].OtherSurchargeValue=5.00
Itineraries[1].ItineraryCompositeElements[1].OtherSurcharges[1].Text=Q5.00
Itineraries[1].ItineraryCompositeElements[1].StopOverChargeValue=10.00
Itineraries[1].ItineraryCompositeElements[1].Text=ZZ X/PMO(EH)Q5.00 S10.00
Itineraries[1].ItineraryCompositeElements[2].CarrierCode=ZZ
Itineraries[1].ItineraryCompositeElements[2].CityCode=ROM
Itineraries[1].ItineraryCompositeElements[2].FareAmount=80.00
Itineraries[1].ItineraryCompositeElements[2].LowestCombinationCityCode=NAP
Itineraries[1].ItineraryCompositeElements[2].MileageId=True
Itineraries[1].ItineraryCompositeElements[2].Text=ZZ ROM LC/NAP M80.00YSIDE
Itineraries[1].ItineraryCompositeElements[3].CarrierCode=ZZ
Itineraries[1].ItineraryCompositeElements[3].CityCode=FLR
Itineraries[1].ItineraryCompositeElements[3].FareHigherCityPair=FLRROM
Itineraries[1].ItineraryCompositeElements[3].FareHigherClass=C
Itineraries[1].ItineraryCompositeElements[3].FictitiousCode=MIL
Itineraries[1].ItineraryCompositeElements[3].MileageEqualizationRules=1
Itineraries[1].ItineraryCompositeElements[3].MileageEqualizationRules[1].CityCode=PSA
Itineraries[1].ItineraryCompositeElements[3].MileageEqualizationRules[1].MileageId=True
Itineraries[1].ItineraryCompositeElements[3].MileageEqualizationRules[1].MileageItemPercentage=5
Itineraries[1].ItineraryCompositeElements[3].MileageEqualizationRules[1].Text=B/PSA/5M
Itineraries[1].ItineraryCompositeElements[3].Text=ZZ FLR      F/MIL FLRROM/C B/PSA/5M
Itineraries[1].ItineraryCompositeElements[4].CarrierCode=ZZ
Itineraries[1].ItineraryCompositeElements[4].CityCode=ROM
Itineraries[1].ItineraryCompositeElements[4].ExtraMileageAllowanceId=E/XXX
Itineraries[1].ItineraryCompositeElements[4].FareAmount=40.00
Itineraries[1].ItineraryCompositeElements[4].FareAmountToSub=5.00
Itineraries[1].ItineraryCompositeElements[4].FareLessId=True
Itineraries[1].ItineraryCompositeElements[4].FareNumberStopAllowed=1
Itineraries[1].ItineraryCompositeElements[4].Text=ZZ ROM E/XXX 40.00LESS5.00S/1
Itineraries[1].MileageItemId=True
Itineraries[1].Text=QX ROM (ZZ X/PMO(EH)Q5.00 S10.00 ZZ ROM LC/NAP M80.00YSIDE ZZ FLR      F/MIL FLRROM/C B/PSA/5M ZZ ROM E/XXX 40.00LESS5.00S/1) QX ATH M310.00YRT
Itineraries[2].CityCode=LON
Itineraries[2].InclusiveTourFare=True
Itineraries[2].ItineraryCarrierCode=QX
Itineraries[2].MileageItemId=True
Itineraries[2].Text=QX LON M/IT
ItineraryCompositeElements=2
ItineraryCompositeElements[1].CarrierCode=ZZ
ItineraryCompositeElements[1].CityCode=JTR
ItineraryCompositeElements[1].Text=ZZ JTR
ItineraryCompositeElements[2].BulkTourFare=True
ItineraryCompositeElements[2].CarrierCode=ZZ
ItineraryCompositeElements[2].CityCode=ATH
ItineraryCompositeElements[2].Text=ZZ ATH BT
Text=FCALC LON QX ROM (ZZ X/PMO(EH)Q5.00 S10.00 ZZ ROM LC/NAP M80.00YSIDE ZZ FLR      F/MIL FLRROM/C B/PSA/5M ZZ ROM E/XXX 40.00LESS5.00S/1) QX ATH M310.00YRT        (ZZ JTR ZZ ATH BT) QX LON M/IT END
)");
}

TEST(FareCalculationSamples, HoldAHigherIntermediatePoint) {
  ExpectModel("fc-hip.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.Text=LON
EndLine=present
EndLine.EndId=True
EndLine.RateOfExchange=0.856800
EndLine.Text=NUC2815.25END ROE0.856800
EndLine.TotalFareAmount=2815.25
EndLine.TotalFareCurrencyCode=NUC
HigherClassDifferentials=2
HigherClassDifferentials[1].CityPair=LONTYO
HigherClassDifferentials[1].Fare=present
HigherClassDifferentials[1].Fare.Amount=112.00
HigherClassDifferentials[1].Fare.Text=112.00
HigherClassDifferentials[1].FareHigherIntermediates=2
HigherClassDifferentials[1].FareHigherIntermediates[1].CityPair=LONPAR
HigherClassDifferentials[1].FareHigherIntermediates[1].Class=C
HigherClassDifferentials[1].FareHigherIntermediates[1].Text=LONPAR/C
HigherClassDifferentials[1].FareHigherIntermediates[2].CityPair=PARTYO
HigherClassDifferentials[1].FareHigherIntermediates[2].Class=F
HigherClassDifferentials[1].FareHigherIntermediates[2].Text=PARTYO/F
HigherClassDifferentials[1].MileageId=True
HigherClassDifferentials[1].MileagePercentage=5
HigherClassDifferentials[1].Text=D LONTYO LONPAR/C PARTYO/F 5M112.00
HigherClassDifferentials[2].CityPair=OSALON
HigherClassDifferentials[2].Fare=present
HigherClassDifferentials[2].Fare.Amount=12.00
HigherClassDifferentials[2].Fare.Text=12.00
HigherClassDifferentials[2].InclusiveTourFare=True
HigherClassDifferentials[2].MileageId=True
HigherClassDifferentials[2].Text=D OSALON M/IT 12.00
Itineraries=2
Itineraries[1].CityCode=TYO
Itineraries[1].FareAmount=1440.75
Itineraries[1].FareHigherCityPair=PARTYO
Itineraries[1].FareHigherClass=Y
Itineraries[1].GlobalRoutingId=EH
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageItemId=True
Itineraries[1].MileagePercentage=15
Itineraries[1].Text=QX PAR QX TYO (EH)15M PARTYO/Y1440.75YRT
Itineraries[2].CityCode=LON
Itineraries[2].FareAmount=1250.50
Itineraries[2].FictitiousCode=HEL
Itineraries[2].ItineraryCarrierCode=QX
Itineraries[2].LowestCombinationCityCode=SEL
Itineraries[2].MileageItemId=True
Itineraries[2].Text=QX OSA LC/SEL F/HEL QX LON    M1250.50YRT
Text=FCALC LON QX PAR QX TYO (EH)15M PARTYO/Y1440.75YRT QX OSA LC/SEL F/HEL QX LON    M1250.50YRT D LONTYO LONPAR/C PARTYO/F 5M112.00 D OSALON M/IT 12.00             NUC2815.25END ROE0.856800
)");
}

TEST(FareCalculationSamples, HoldFareMinimumChecks) {
  ExpectModel("fc-minimum.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.Text=LON
EndLine=present
EndLine.EndId=True
EndLine.FareAfterNucAmount=1120.00
EndLine.FareAfterNucCityPair1=LON
EndLine.FareAfterNucCityPair2=MEX
EndLine.FareAfterNucCurrencyCode=GBP
EndLine.FareAfterNucFareBasis=YRT
EndLine.FareAfterNucLowCombCityCode=MIA
EndLine.RateOfExchange=0.842105
EndLine.Text=NUC1330.00/LONMEX LC/MIA GBP1120.00YRT END        ROE0.842105
EndLine.TotalFareAmount=1330.00
EndLine.TotalFareCurrencyCode=NUC
FareCommonAmount=1330.00
FareMinimums=2
FareMinimums[1].CityPair1=LON
FareMinimums[1].CityPair2=MEX
FareMinimums[1].Fare=present
FareMinimums[1].Fare.Amount=25.00
FareMinimums[1].Fare.Text=25.00YRT
FareMinimums[1].FareBasis=YRT
FareMinimums[1].FareId=P
FareMinimums[1].LowestCombinationCityCode=MIA
FareMinimums[1].Text=P LONMEX LC/MIA 25.00YRT
FareMinimums[2].CityPair1=LON
FareMinimums[2].CityPair2=MEX
FareMinimums[2].Fare=present
FareMinimums[2].Fare.Amount=40.00
FareMinimums[2].Fare.AmountToSub=15.00
FareMinimums[2].Fare.LessId=True
FareMinimums[2].Fare.Text=40.00-15.00
FareMinimums[2].FareId=CTM
FareMinimums[2].Text=CTM LONMEX40.00-15.00
Itineraries=2
Itineraries[1].CityCode=MEX
Itineraries[1].FareAmount=640.00
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageItemId=True
Itineraries[1].Text=QX NYC QX MEX M640.00YOW
Itineraries[2].CityCode=LON
Itineraries[2].FareAmount=640.00
Itineraries[2].ItineraryCarrierCode=ZZ
Itineraries[2].MileageItemId=True
Itineraries[2].Text=ZZ LON M640.00YOW
Text=FCALC LON QX NYC QX MEX M640.00YOW ZZ LON M640.00YOW P LONMEX LC/MIA 25.00YRT    CTM LONMEX40.00-15.00 1330.00 NUC1330.00/LONMEX LC/MIA GBP1120.00YRT END        ROE0.842105
)");
}

TEST(FareCalculationSamples, HoldAnExchange) {
  ExpectModel("fc-exchange.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.DepartureRoutingDate=12NOV26
DepartureRoutingPoint.InvoluntaryRerouting=True
DepartureRoutingPoint.Text=I-12NOV26LON
EndLine=present
EndLine.AnyPFCs=4
EndLine.AnyPFCs[1].PreviousPaid=True
EndLine.AnyPFCs[1].Text=PD 12.00GB 4.50Y4
EndLine.AnyPFCs[2].PreviousPaid=True
EndLine.AnyPFCs[2].Text=PD EUR15.00
EndLine.AnyPFCs[3].PreviousPaid=True
EndLine.AnyPFCs[3].Text=PD
EndLine.AnyPFCs[4].CombinedTax=True
EndLine.AnyPFCs[4].Text=XT 8.00FR
EndLine.EndId=True
EndLine.RateOfExchange=0.812345
EndLine.Text=NUC490.00END ROE0.812345 PD 12.00GB 4.50Y4 PD EUR15.00 PD XT 8.00FR
EndLine.TotalFareAmount=490.00
EndLine.TotalFareCurrencyCode=NUC
ExtraSeats=2
ExtraSeats[1].CityCode=LON
ExtraSeats[1].ExtraSeatId=EXST
ExtraSeats[1].Fare=present
ExtraSeats[1].Fare.Amount=120.00
ExtraSeats[1].Fare.AmountToSub=20.00
ExtraSeats[1].Fare.CurrencyCode=GBP
ExtraSeats[1].Fare.LessId=True
ExtraSeats[1].Text=EXST LON GBP120.00LESS20.00
ExtraSeats[2].CityCode=PAR
ExtraSeats[2].ExtraSeatId=CBBG
ExtraSeats[2].Fare=present
ExtraSeats[2].Fare.Amount=50.00
ExtraSeats[2].Text=CBBG PAR 50.00
Itineraries=1
Itineraries[1].CityCode=PAR
Itineraries[1].FareAmount=340.00
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageItemId=True
Itineraries[1].Text=QX PAR M340.00YRT
Text=FCALC I-12NOV26LON QX PAR M340.00YRT EXST LON GBP120.00LESS20.00 CBBG PAR 50.00  NUC490.00END ROE0.812345 PD 12.00GB 4.50Y4 PD EUR15.00 PD XT 8.00FR
)");
}

TEST(FareCalculationSamples, HoldFacilityCharges) {
  ExpectModel("fc-pfc.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=NYC
DepartureRoutingPoint.Text=NYC
EndLine=present
EndLine.AnyPFCs=4
EndLine.AnyPFCs[1].CityDigits=3
EndLine.AnyPFCs[1].CityDigits[1].CityCode=JFK
EndLine.AnyPFCs[1].CityDigits[1].CityDigit=4.5
EndLine.AnyPFCs[1].CityDigits[1].Text=JFK4.5
EndLine.AnyPFCs[1].CityDigits[2].CityCode=LAX
EndLine.AnyPFCs[1].CityDigits[2].CityDigit=4.5
EndLine.AnyPFCs[1].CityDigits[2].Text=LAX4.5
EndLine.AnyPFCs[1].CityDigits[3].CityCode=LAX
EndLine.AnyPFCs[1].CityDigits[3].CityDigit=3
EndLine.AnyPFCs[1].CityDigits[3].Text=LAX3
EndLine.AnyPFCs[1].PaxFacilityCharge=True
EndLine.AnyPFCs[1].Text=XF JFK4.5LAX4.5 LAX3
EndLine.AnyPFCs[2].CityDigits=2
EndLine.AnyPFCs[2].CityDigits[1].CityCode=JFK
EndLine.AnyPFCs[2].CityDigits[1].Text=JFK
EndLine.AnyPFCs[2].CityDigits[2].CityCode=LAX
EndLine.AnyPFCs[2].CityDigits[2].Text=LAX
EndLine.AnyPFCs[2].DomesticUSFlight=True
EndLine.AnyPFCs[2].Text=ZPJFKLAX
EndLine.AnyPFCs[3].CityDigits=1
EndLine.AnyPFCs[3].CityDigits[1].CityCode=SFO
EndLine.AnyPFCs[3].CityDigits[1].CityDigit=4.1
EndLine.AnyPFCs[3].CityDigits[1].Text=SFO4.1
EndLine.AnyPFCs[3].DomesticUSFlight=True
EndLine.AnyPFCs[3].Text=ZP SFO4.1
EndLine.AnyPFCs[4].CombinedTax=True
EndLine.AnyPFCs[4].Text=XT 9.00XZ
EndLine.EndId=True
EndLine.Text=USD410.00END XF JFK4.5LAX4.5 LAX3      ZPJFKLAX ZP SFO4.1 XT 9.00XZ
EndLine.TotalFareAmount=410.00
EndLine.TotalFareCurrencyCode=USD
Itineraries=2
Itineraries[1].CityCode=LAX
Itineraries[1].FareAmount=205.00
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].Text=QX LAX205.00YRT
Itineraries[2].CityCode=NYC
Itineraries[2].FareAmount=205.00
Itineraries[2].ItineraryCarrierCode=QX
Itineraries[2].Text=QX NYC205.00YRT
Text=FCALC NYC QX LAX205.00YRT QX NYC205.00YRT USD410.00END XF JFK4.5LAX4.5 LAX3      ZPJFKLAX ZP SFO4.1 XT 9.00XZ
)");
}

TEST(FareCalculationSamples, HoldAFareCalculationOnTwoScreens) {
  const Recording recording = ReadRecording(SourceFolder() / "examples/displays/fc-two-screens.txt");
  ASSERT_EQ(recording.front().screens.size(), 2U);
  EXPECT_EQ(recording.front().screens.front().find(u"END ROE"), std::u16string::npos);
  EXPECT_EQ(recording.front().screens.back().find(u"FCALC"), std::u16string::npos);
  ExpectModel("fc-two-screens.txt", R"(
DepartureRoutingPoint=present
DepartureRoutingPoint.CityCode=LON
DepartureRoutingPoint.Text=LON
EndLine=present
EndLine.AnyPFCs=3
EndLine.AnyPFCs[1].CombinedTax=True
EndLine.AnyPFCs[1].Text=XT 20.00GB 61.30XZ 8.50AU
EndLine.AnyPFCs[2].CityDigits=3
EndLine.AnyPFCs[2].CityDigits[1].CityCode=SFO
EndLine.AnyPFCs[2].CityDigits[1].CityDigit=4.5
EndLine.AnyPFCs[2].CityDigits[1].Text=SFO4.5
EndLine.AnyPFCs[2].CityDigits[2].CityCode=CHI
EndLine.AnyPFCs[2].CityDigits[2].CityDigit=4.5
EndLine.AnyPFCs[2].CityDigits[2].Text=CHI4.5
EndLine.AnyPFCs[2].CityDigits[3].CityCode=JFK
EndLine.AnyPFCs[2].CityDigits[3].CityDigit=4.5
EndLine.AnyPFCs[2].CityDigits[3].Text=JFK4.5
EndLine.AnyPFCs[2].PaxFacilityCharge=True
EndLine.AnyPFCs[2].Text=XF SFO4.5CHI4.5JFK4.5
EndLine.AnyPFCs[3].CityDigits=3
EndLine.AnyPFCs[3].CityDigits[1].CityCode=SFO
EndLine.AnyPFCs[3].CityDigits[1].Text=SFO
EndLine.AnyPFCs[3].CityDigits[2].CityCode=CHI
EndLine.AnyPFCs[3].CityDigits[2].Text=CHI
EndLine.AnyPFCs[3].CityDigits[3].CityCode=JFK
EndLine.AnyPFCs[3].CityDigits[3].Text=JFK
EndLine.AnyPFCs[3].DomesticUSFlight=True
EndLine.AnyPFCs[3].Text=ZPSFOCHIJFK
EndLine.EndId=True
EndLine.RateOfExchange=1.049821
EndLine.Text=NUC4105.45END ROE1.049821 XT 20.00GB 61.30XZ 8.50AU XF SFO4.5CHI4.5JFK4.5       ZPSFOCHIJFK
EndLine.TotalFareAmount=4105.45
EndLine.TotalFareCurrencyCode=NUC
FareMinimums=1
FareMinimums[1].CityPair1=SYD
FareMinimums[1].CityPair2=NYC
FareMinimums[1].Fare=present
FareMinimums[1].Fare.Amount=60.00
FareMinimums[1].Fare.Text=60.00
FareMinimums[1].FareId=P
FareMinimums[1].LowestCombinationCityCode=LAX
FareMinimums[1].Text=P SYDNYC LC/LAX 60.00
HigherClassDifferentials=1
HigherClassDifferentials[1].CityPair=NYCLON
HigherClassDifferentials[1].Fare=present
HigherClassDifferentials[1].Fare.Amount=44.00
HigherClassDifferentials[1].Fare.Text=44.00
HigherClassDifferentials[1].MileageId=True
HigherClassDifferentials[1].Text=D NYCLON M44.00
Itineraries=7
Itineraries[1].AnySymbols=1
Itineraries[1].AnySymbols[1].StopOverNotAllowed=X/
Itineraries[1].CityCode=SIN
Itineraries[1].FareAmount=810.20
Itineraries[1].ItineraryCarrierCode=QX
Itineraries[1].MileageItemId=True
Itineraries[1].Text=QX X/DXB QX SIN M810.20YRT
Itineraries[2].CityCode=SYD
Itineraries[2].FareAmount=420.00
Itineraries[2].ItineraryCarrierCode=ZZ
Itineraries[2].MileageItemId=True
Itineraries[2].Text=ZZ SYD M420.00YOW
Itineraries[3].CityCode=AKL
Itineraries[3].FareAmount=305.50
Itineraries[3].ItineraryCarrierCode=ZZ
Itineraries[3].MileageItemId=True
Itineraries[3].MileagePercentage=5
Itineraries[3].Text=ZZ AKL 5M305.50YOW
Itineraries[4].AnySymbols=1
Itineraries[4].AnySymbols[1].StopOverNotAllowed=X/
Itineraries[4].CityCode=LAX
Itineraries[4].FareAmount=1120.00
Itineraries[4].FareHigherCityPair=AKLLAX
Itineraries[4].FareHigherClass=Y
Itineraries[4].ItineraryCarrierCode=ZZ
Itineraries[4].MileageItemId=True
Itineraries[4].MileagePercentage=25
Itineraries[4].OtherSurcharges=1
Itineraries[4].OtherSurcharges[1].OtherSurchargeValue=35.00
Itineraries[4].OtherSurcharges[1].Text=Q35.00
Itineraries[4].Text=ZZ X/PPT ZZ LAX Q35.00 25M AKLLAX/Y1120.00YRT
Itineraries[5].AnySymbols=1
Itineraries[5].AnySymbols[1].GapInRoutingIncludedInMileage=/-
Itineraries[5].CityCode=CHI
Itineraries[5].FareAmount=180.00
Itineraries[5].ItineraryCarrierCode=QX
Itineraries[5].Text=/-SFO QX CHI 180.00YLE
Itineraries[6].CityCode=NYC
Itineraries[6].FareAmount=142.75
Itineraries[6].ItineraryCarrierCode=QX
Itineraries[6].Text=QX NYC     142.75YLE
Itineraries[7].AnySymbols=1
Itineraries[7].AnySymbols[1].StopOverNotAllowed=X/
Itineraries[7].CityCode=LON
Itineraries[7].FareAmount=988.00
Itineraries[7].ItineraryCarrierCode=QX
Itineraries[7].MileageItemId=True
Itineraries[7].Text=QX X/KEF QX LON M988.00YRT
Text=FCALC LON QX X/DXB QX SIN M810.20YRT ZZ SYD M420.00YOW ZZ AKL 5M305.50YOW        ZZ X/PPT ZZ LAX Q35.00 25M AKLLAX/Y1120.00YRT /-SFO QX CHI 180.00YLE QX NYC     142.75YLE P SYDNYC LC/LAX 60.00 QX X/KEF QX LON M988.00YRT D NYCLON M44.00      NUC4105.45END ROE1.049821 XT 20.00GB 61.30XZ 8.50AU XF SFO4.5CHI4.5JFK4.5       ZPSFOCHIJFK
)");
}

}  // namespace
}  // namespace qorltst::simulator
