// Random fare calculations, written by the generator beside this file and read by the simulator and the component.
#include <gtest/gtest.h>

#include <set>

#include "DisplaySupport.h"
#include "FareCalculationGenerator.h"
#include "FareCalculationModel.h"
#include "farecalc/AnyPFC.h"
#include "farecalc/AnySymbol.h"
#include "farecalc/CityDigit.h"
#include "farecalc/DepartureRoutingPoint.h"
#include "farecalc/EndLine.h"
#include "farecalc/ExtraSeat.h"
#include "farecalc/Fare.h"
#include "farecalc/FareCalculation.h"
#include "farecalc/FareHigherIntermediate.h"
#include "farecalc/FareMinimun.h"
#include "farecalc/HigherClassDifferential.h"
#include "farecalc/Itinerary.h"
#include "farecalc/ItineraryCompositeElement.h"
#include "farecalc/MileageEqualizationRule.h"
#include "farecalc/OtherSurcharge.h"
#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"
#include "simulator/Utf.h"
#include "tests/support/Printers.h"

namespace qorltst::simulator {
namespace {

constexpr std::uint32_t kCases = 500;

std::string Shown(const std::vector<std::u16string>& lines) {
  std::string shown;
  for (const std::u16string& line : lines) {
    shown += ToUtf8(line) + "\n";
  }
  return shown;
}

/// A display with the fare calculation, on one screen or on two.
std::vector<std::vector<std::u16string>> Display(const std::vector<std::u16string>& fareCalculation, std::size_t seed) {
  std::vector<std::u16string> lines{u"TST 00001 P/F", u"FARE F GBP 120.00"};
  lines.insert(lines.end(), fareCalculation.begin(), fareCalculation.end());
  const std::size_t shortest = std::max(lines.size() / 2 + 2, kFewestLinesPerScreen);
  auto screens = Paginate(lines, shortest + seed % 3);
  if (screens.size() > 2) {
    return {lines};
  }
  return screens;
}

/// The values that the component holds after retrieving the display; `result` is what the retrieval answered.
Values Retrieve(const std::vector<std::vector<std::u16string>>& screens, std::int32_t& result) {
  Exchange exchange{u"TQT", {}};
  for (const auto& screen : screens) {
    exchange.screens.push_back(JoinLines(screen));
  }
  const auto session = Make<RecordedSession>(Recording{exchange});
  const auto tst = Make<TST>(*Make<SimulatedToolkit>());
  result = tst->RetrieveCurrentTst(session.Get());
  return ValuesOf(*testing::ObjectOf(*tst, u"FareCalculation"));
}

TEST(RandomFareCalculations, AreReadAsTheyWereWritten) {
  for (std::uint32_t seed = 0; seed < kCases; ++seed) {
    const WrittenFareCalculation written = FareCalculationGenerator(seed).Write();
    std::int32_t result = -1;
    const Values values = Retrieve(Display(written.lines, seed), result);
    ASSERT_EQ(result, toolkit::kNoError) << "seed " << seed << "\n"
                                         << Shown(written.lines) << Differences({}, values).front();
    ASSERT_EQ(Differences(written.values, values), std::vector<std::string>()) << "seed " << seed << "\n"
                                                                               << Shown(written.lines);
  }
}

/// "Itineraries.CityCode" of "Itineraries[2].CityCode".
std::string WithoutIndexes(std::string path) {
  while (path.find('[') != std::string::npos) {
    path.erase(path.find('['), path.find(']') + 1 - path.find('['));
  }
  return path;
}

struct Place {
  std::string path;
  const ClassDescription& description;
};

/// Where objects of a fare calculation stand.
const std::vector<Place>& Places() {
  static const std::vector<Place> kPlaces{
      {"", FareCalculation::kDescription},
      {"DepartureRoutingPoint.", DepartureRoutingPoint::kDescription},
      {"Itineraries.", Itinerary::kDescription},
      {"Itineraries.AnySymbols.", AnySymbol::kDescription},
      {"Itineraries.OtherSurcharges.", OtherSurcharge::kDescription},
      {"Itineraries.MileageEqualizationRules.", MileageEqualizationRule::kDescription},
      {"Itineraries.ItineraryCompositeElements.", ItineraryCompositeElement::kDescription},
      {"Itineraries.ItineraryCompositeElements.OtherSurcharges.", OtherSurcharge::kDescription},
      {"Itineraries.ItineraryCompositeElements.MileageEqualizationRules.", MileageEqualizationRule::kDescription},
      {"ItineraryCompositeElements.", ItineraryCompositeElement::kDescription},
      {"ItineraryCompositeElements.OtherSurcharges.", OtherSurcharge::kDescription},
      {"ItineraryCompositeElements.MileageEqualizationRules.", MileageEqualizationRule::kDescription},
      {"FareMinimums.", FareMinimun::kDescription},
      {"FareMinimums.Fare.", Fare::kDescription},
      {"HigherClassDifferentials.", HigherClassDifferential::kDescription},
      {"HigherClassDifferentials.Fare.", Fare::kDescription},
      {"HigherClassDifferentials.FareHigherIntermediates.", FareHigherIntermediate::kDescription},
      {"ExtraSeats.", ExtraSeat::kDescription},
      {"ExtraSeats.Fare.", Fare::kDescription},
      {"EndLine.", EndLine::kDescription},
      {"EndLine.AnyPFCs.", AnyPFC::kDescription},
      {"EndLine.AnyPFCs.CityDigits.", CityDigit::kDescription},
  };
  return kPlaces;
}

TEST(RandomFareCalculations, FillEveryPropertyThatCanBeFilled) {
  std::set<std::string> filled;
  bool hasTwoScreens = false;
  for (std::uint32_t seed = 0; seed < kCases; ++seed) {
    const WrittenFareCalculation written = FareCalculationGenerator(seed).Write();
    hasTwoScreens = hasTwoScreens || Display(written.lines, seed).size() == 2;
    for (const auto& [path, value] : written.values) {
      filled.insert(WithoutIndexes(path));
    }
  }
  std::vector<std::string> missed;
  for (const Place& place : Places()) {
    for (const Member& member : place.description.members) {
      const std::string path = place.path + ToUtf8(member.name);
      if (!filled.contains(path) && !path.ends_with("ErrorText") && !path.ends_with("ClassDebugID")) {
        missed.push_back(path);
      }
    }
  }
  EXPECT_TRUE(hasTwoScreens);
  EXPECT_EQ(missed,
            (std::vector<std::string>{"FareCommonId", "FareCommonCurrencyCode", "Itineraries.FareCurrencyCode",
                                      "Itineraries.ItineraryCompositeElements.FareCurrencyCode",
                                      "ItineraryCompositeElements.FareCurrencyCode", "FareMinimums.Fare.CurrencyCode",
                                      "HigherClassDifferentials.Fare.CurrencyCode", "ExtraSeats.Fare.Text",
                                      "ExtraSeats.Fare.NumberStopAllowed", "ExtraSeats.Fare.StopOverChargeValue"}));
}

/// The line with some of its characters replaced, taken out or doubled.
std::u16string Garbled(std::u16string text, std::mt19937& random) {
  static constexpr std::u16string_view kCharacters = u"ABCDEIMPQSX0159 ./()-*#";
  for (std::size_t faults = 1 + random() % 6; faults > 0; --faults) {
    const std::size_t place = 6 + random() % (text.size() - 6);
    const char16_t character = kCharacters[random() % kCharacters.size()];
    switch (random() % 3) {
      case 0:
        text[place] = character;
        break;
      case 1:
        text.insert(place, 1, character);
        break;
      default:
        text.resize(std::max<std::size_t>(text.size() - random() % 3, 8));
    }
  }
  return text;
}

TEST(RandomFareCalculations, AreReadToTheEndEvenWhenTheyAreGarbled) {
  std::mt19937 random(1);
  std::uint32_t warnings = 0;
  for (std::uint32_t seed = 0; seed < 4 * kCases; ++seed) {
    const std::u16string text = Garbled(JoinLines(FareCalculationGenerator(seed).Write().lines), random);
    const Parsed parsed = Parsed::FromText(text);
    ASSERT_EQ(parsed.result, toolkit::kParseSuccess);
    const auto line = parsed.parser->FindNode(NodeTypeId::FareCalculationLine);
    ASSERT_TRUE(line);
    ASSERT_NE(line->HasWarning(), line->ErrorText().empty()) << ToUtf8(text);
    warnings += line->HasWarning() ? 1U : 0U;
  }
  EXPECT_GT(warnings, kCases);
}

}  // namespace
}  // namespace qorltst::simulator
