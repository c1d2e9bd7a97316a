// Writes random fare calculations from the grammar in docs/display-format.md, together with the values that the
// component must find in them. It shares nothing with the parser.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "FareCalculationText.h"

namespace qorltst::simulator {

class FareCalculationGenerator {
 public:
  /// The same seed writes the same fare calculation.
  explicit FareCalculationGenerator(std::uint32_t seed) : random_(seed) {}

  /// Writes one fare calculation. Only once.
  [[nodiscard]] WrittenFareCalculation Write();

 private:
  /// What a fare component and an item of a side trip call differently.
  struct PointNames;
  static const PointNames kComponentNames;
  static const PointNames kItemNames;

  /// What would belong to the item written last if it came next.
  struct OpenItem {
    bool takesRouting = false;
    bool takesFare = false;
    bool takesTotal = false;
  };

  using Production = void (FareCalculationGenerator::*)(const std::string& path, const PointNames& names);

  void DeparturePoint();
  void Items();
  void Component();
  void SideTrip(const std::string& path);
  void SideTripItem(const std::string& path, bool isLast);
  void Leg(const std::string& path, const PointNames& names);
  void Symbols(const std::string& path, const PointNames& names, bool isGap);
  void PointParts(const std::string& path, const PointNames& names);
  /// Whether the end of the component was written.
  bool ComponentEnd(const std::string& path, const PointNames& names, OpenItem& open);

  void GlobalRouting(const std::string& path, const PointNames& names);
  void Surcharge(const std::string& path, const PointNames& names);
  void StopOver(const std::string& path, const PointNames& names);
  void Mileage(const std::string& path, const PointNames& names);
  void IntermediatePoint(const std::string& path, const PointNames& names);
  void LowestCombination(const std::string& path, const PointNames& names);
  void FictitiousPoint(const std::string& path, const PointNames& names);
  void ExtraMileage(const std::string& path, const PointNames& names);
  void Equalization(const std::string& path, const PointNames& names);

  /// "5M", "M/IT", "BT"; with `isTour` one that may stand for a fare. The first piece may stand tight.
  void MileageItem(bool isTour, bool isTight, const std::string& markerPath, const std::string& percentPath,
                   const std::string& path);

  /// Where the values of a fare go; without a path a value goes nowhere.
  struct FarePaths {
    std::string amount = {};
    std::string less = {};
    std::string amountToSubtract = {};
    std::string stopOverValue = {};
    std::string stopsAllowed = {};
    std::string basis = {};
  };
  void Fare(const FarePaths& paths);
  void FareObject(const std::string& path, const std::string& basisPath);
  void StopOverValues(const std::string& valuePath, const std::string& numberPath, bool isTight);

  void Minimum();
  void Differential();
  void CommonFare();
  void ExtraSeat();
  void LoneFare();

  void EndLine();
  void Total();
  void FareAfterNuc();
  void Charge();
  void AirportCharge(const std::string& path, bool isFacilityCharge);
  void Taxes(bool hasCodes);
  void FreeFlow();

  [[nodiscard]] std::size_t Below(std::size_t limit) { return random_() % limit; }
  [[nodiscard]] bool Chance(std::size_t percent) { return Below(100) < percent; }
  template <class Choices>
  [[nodiscard]] std::u16string_view Pick(const Choices& choices) {
    return choices[Below(choices.size())];
  }
  /// Whether letters may follow without a blank.
  [[nodiscard]] bool EndsInDecimals() const;
  [[nodiscard]] std::u16string City();
  [[nodiscard]] std::u16string CityPair() { return City() + City(); }
  [[nodiscard]] std::u16string Carrier();
  [[nodiscard]] std::u16string Amount();

  void Expect(const std::string& path, std::u16string_view value) {
    if (!path.empty()) {
      text_.Expect(path, value);
    }
  }

  /// Counts an item of a collection and gives its path with the point behind it.
  [[nodiscard]] std::string NewItem(const std::string& collection);

  std::mt19937 random_;
  FareCalculationText text_;
  std::map<std::string, int> counts_;
  std::u16string commonCities_;
  OpenItem open_;
};

}  // namespace qorltst::simulator
