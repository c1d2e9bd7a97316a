// The random writer, one operation for each production of the grammar. See FareCalculationGenerator.h.
#include "FareCalculationGenerator.h"

#include <array>

#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

using Words = std::u16string_view;

constexpr std::array<Words, 12> kCities{u"LON", u"PAR", u"TYO", u"NYC", u"BRU", u"MAD",
                                        u"ROM", u"OSA", u"SIN", u"BUE", u"JFK", u"XXX"};
constexpr std::array<Words, 8> kCarriers{u"QX", u"ZZ", u"S7", u"4U", u"Q5", u"XT", u"PD", u"M2"};
constexpr std::array<Words, 6> kBases{u"Y", u"YRT", u"BHXAP3", u"YLE6M", u"KRT/CH25", u"Q14NR"};
constexpr std::array<Words, 5> kIndicators{u"EH", u"AT", u"PA", u"WH", u"AP"};
constexpr std::array<Words, 5> kPercentages{u"5", u"10", u"15", u"20", u"25"};
constexpr std::array<Words, 2> kTours{u"IT", u"BT"};
constexpr std::array<Words, 4> kClasses{u"F", u"C", u"Y", u"M"};
constexpr std::array<Words, 5> kCurrencies{u"GBP", u"EUR", u"USD", u"JPY", u"ZAR"};
constexpr std::array<Words, 7> kChecks{u"BHC", u"COM", u"COP", u"CTM", u"DMC", u"OSC", u"RSC"};
constexpr std::array<Words, 4> kTaxCodes{u"GB", u"FR", u"Y4", u"XZ"};
constexpr std::array<Words, 5> kFreeWords{u"NONREF", u"NOT", u"ENDORSABLE", u"VALID", u"QX/ZZ"};
constexpr std::array<Words, 3> kDays{u"12NOV", u"03JAN", u"29FEB"};

struct Symbol {
  Words text;
  const char* property;
};

constexpr std::array<Symbol, 2> kGaps{Symbol{u"//", "GapInRoutinNotInMileage"},
                                      Symbol{u"/-", "GapInRoutingIncludedInMileage"}};
constexpr std::array<Symbol, 6> kPrefixes{Symbol{u"X/", "StopOverNotAllowed"},
                                          Symbol{u"E/", "ExtraMileageRoutingPoint"},
                                          Symbol{u"L/", "ReducedMileageRoutingPoint"},
                                          Symbol{u"*/", "TicketedPointNotInMileage"},
                                          Symbol{u"T/", "OtherSymbol"},
                                          Symbol{u"B/", "OtherSymbol"}};

}  // namespace

struct FareCalculationGenerator::PointNames {
  const char* carrier;
  const char* stops;
  const char* marker;
  const char* percentage;
  /// Of the text of the symbols; empty where they are objects.
  const char* symbols;
};

constexpr FareCalculationGenerator::PointNames FareCalculationGenerator::kComponentNames{
    "ItineraryCarrierCode", "StopOverNumberStopAllowed", "MileageItemId", "MileagePercentage", ""};
constexpr FareCalculationGenerator::PointNames FareCalculationGenerator::kItemNames{
    "CarrierCode", "NumberStopAllowed", "MileageId", "MileageItemPercent", "ItinerarySymbol"};

WrittenFareCalculation FareCalculationGenerator::Write() {
  text_.Expect("DepartureRoutingPoint", u"present");
  text_.Expect("EndLine", u"present");
  DeparturePoint();
  Items();
  EndLine();
  text_.ExpectText("Text", 0);
  return text_.LayOut([this] { return Chance(5) ? -1 : Chance(10) ? 2 : 1; });
}

void FareCalculationGenerator::DeparturePoint() {
  const std::string path = "DepartureRoutingPoint.";
  const std::size_t start = text_.Here();
  const bool isRerouted = Chance(25);
  if (isRerouted) {
    text_.Word(u"I-");
    Expect(path + "InvoluntaryRerouting", u"True");
  }
  bool isTight = isRerouted;
  if (Chance(40)) {
    const std::u16string date = std::u16string(Pick(kDays)) + (Chance(50) ? u"28" : u"");
    text_.Write(date, isTight);
    Expect(path + "DepartureRoutingDate", date);
    isTight = Chance(50);
  }
  const std::u16string city = City();
  text_.Write(city, isTight);
  Expect(path + "CityCode", city);
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::Items() {
  for (std::size_t items = Below(9); items > 0; --items) {
    switch (Below(9)) {
      case 0:
        Minimum();
        break;
      case 1:
        Differential();
        break;
      case 2:
        CommonFare();
        break;
      case 3:
        ExtraSeat();
        break;
      case 4:
        LoneFare();
        break;
      case 5:
        if (!open_.takesRouting) {
          SideTrip({});
          open_ = {};
        }
        break;
      default:
        Component();
    }
  }
}

void FareCalculationGenerator::Component() {
  if (open_.takesRouting) {
    return;
  }
  const std::size_t start = text_.Here();
  const std::string path = NewItem("Itineraries");
  for (std::size_t legs = 1 + Below(3); legs > 0; --legs) {
    Leg(path, kComponentNames);
    PointParts(path, kComponentNames);
    if (Chance(10)) {
      SideTrip(path);
    }
  }
  open_ = {};
  if (!ComponentEnd(path, kComponentNames, open_)) {
    open_ = {.takesRouting = true, .takesFare = true};
  }
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::SideTrip(const std::string& path) {
  text_.Word(u"(");
  for (std::size_t components = 1 + Below(2); components > 0; --components) {
    for (std::size_t items = 1 + Below(3); items > 0; --items) {
      SideTripItem(path, items == 1);
    }
  }
  text_.Write(u")", Chance(80));
}

void FareCalculationGenerator::SideTripItem(const std::string& path, bool isLast) {
  const std::size_t start = text_.Here();
  const std::string item = NewItem(path + "ItineraryCompositeElements");
  Leg(item, kItemNames);
  PointParts(item, kItemNames);
  if (isLast) {
    OpenItem open;
    ComponentEnd(item, kItemNames, open);
  }
  text_.ExpectText(item + "Text", start);
}

void FareCalculationGenerator::Leg(const std::string& path, const PointNames& names) {
  const bool isGap = Chance(15);
  if (!isGap) {
    const std::u16string carrier = Carrier();
    text_.Write(carrier, text_.Last() == u"(" || (EndsInDecimals() && carrier.front() > u'9' && Chance(30)));
    Expect(path + names.carrier, carrier);
    if (Chance(10)) {
      GlobalRouting(path, names);
    }
  }
  const bool hasSymbols = isGap || Chance(40);
  if (hasSymbols) {
    Symbols(path, names, isGap);
  }
  const std::u16string city = City();
  text_.Write(city, hasSymbols || (text_.Last() == u")" && Chance(50)));
  Expect(path + "CityCode", city);
}

void FareCalculationGenerator::Symbols(const std::string& path, const PointNames& names, bool isGap) {
  const bool areObjects = std::string_view(names.symbols).empty();
  const std::string symbols = areObjects ? NewItem(path + "AnySymbols") : std::string();
  const std::size_t start = text_.Here();
  const auto write = [&](const Symbol& symbol) {
    text_.Write(symbol.text, text_.Here() > start);
    if (areObjects) {
      Expect(symbols + symbol.property, symbol.text);
    }
  };
  if (isGap) {
    write(kGaps[Below(kGaps.size())]);
  }
  for (std::size_t prefixes = Below(3) + (isGap ? 0 : 1); prefixes > 0; --prefixes) {
    write(kPrefixes[Below(kPrefixes.size())]);
  }
  if (!areObjects) {
    text_.ExpectText(path + names.symbols, start);
  }
}

void FareCalculationGenerator::PointParts(const std::string& path, const PointNames& names) {
  static constexpr std::array kParts{
      &FareCalculationGenerator::GlobalRouting,     &FareCalculationGenerator::Surcharge,
      &FareCalculationGenerator::StopOver,          &FareCalculationGenerator::Mileage,
      &FareCalculationGenerator::IntermediatePoint, &FareCalculationGenerator::LowestCombination,
      &FareCalculationGenerator::FictitiousPoint,   &FareCalculationGenerator::ExtraMileage,
      &FareCalculationGenerator::Equalization};
  for (std::size_t parts = Below(4); parts > 0; --parts) {
    (this->*kParts[Below(kParts.size())])(path, names);
  }
}

bool FareCalculationGenerator::ComponentEnd(const std::string& path, const PointNames& names, OpenItem& open) {
  const bool isTour = Chance(10);
  if (isTour) {
    MileageItem(true, false, path + names.marker, path + names.percentage, path);
  }
  if (Chance(isTour ? 40 : 90)) {
    Fare({.amount = path + "FareAmount",
          .less = path + "FareLessId",
          .amountToSubtract = path + "FareAmountToSub",
          .stopOverValue = path + "FareStopOverChargeValue",
          .stopsAllowed = path + "FareNumberStopAllowed"});
    return true;
  }
  open.takesFare = isTour;
  return isTour;
}

void FareCalculationGenerator::GlobalRouting(const std::string& path, const PointNames& /*names*/) {
  const std::u16string_view indicator = Pick(kIndicators);
  text_.Write(u"(", Chance(30));
  text_.Tight(indicator);
  text_.Tight(u")");
  Expect(path + "GlobalRoutingId", indicator);
}

void FareCalculationGenerator::Surcharge(const std::string& path, const PointNames& /*names*/) {
  const std::string surcharge = NewItem(path + "OtherSurcharges");
  const std::size_t start = text_.Here();
  text_.Word(u"Q");
  const bool hasPair = Chance(30);
  if (hasPair) {
    text_.Word(CityPair());
  }
  const std::u16string amount = Amount();
  text_.Write(amount, !hasPair || Chance(50));
  Expect(surcharge + "OtherSurchargeValue", amount);
  text_.ExpectText(surcharge + "Text", start);
}

void FareCalculationGenerator::StopOver(const std::string& path, const PointNames& names) {
  StopOverValues(path + "StopOverChargeValue", path + names.stops, false);
}

void FareCalculationGenerator::StopOverValues(const std::string& valuePath, const std::string& numberPath,
                                              bool isTight) {
  const std::u16string number(1, static_cast<char16_t>(u'1' + Below(9)));
  if (Chance(20)) {
    text_.Word(u"S");
    text_.Tight(u"/");
    text_.Tight(number);
    Expect(numberPath, number);
    return;
  }
  if (!isTight && Chance(50)) {
    text_.Word(number);
    text_.Tight(u"S");
    Expect(numberPath, number);
  } else {
    text_.Write(u"S", isTight);
  }
  const std::u16string amount = Amount();
  text_.Tight(amount);
  Expect(valuePath, amount);
}

void FareCalculationGenerator::Mileage(const std::string& path, const PointNames& names) {
  MileageItem(false, false, path + names.marker, path + names.percentage, path);
}

void FareCalculationGenerator::MileageItem(bool isTour, bool isTight, const std::string& markerPath,
                                           const std::string& percentPath, const std::string& path) {
  text_.ExpectNothing(markerPath);
  const bool hasMarker = !isTour || Chance(70);
  if (hasMarker) {
    if (Chance(60)) {
      const std::u16string_view percentage = Pick(kPercentages);
      text_.Write(percentage, isTight);
      Expect(percentPath, percentage);
      isTight = true;
    }
    text_.Write(u"M", isTight);
    Expect(markerPath, u"True");
  }
  if (isTour) {
    if (hasMarker) {
      text_.Tight(u"/");
    }
    const std::u16string_view tour = Pick(kTours);
    text_.Write(tour, hasMarker || isTight);
    Expect(path + (tour == u"IT" ? "InclusiveTourFare" : "BulkTourFare"), u"True");
  }
}

void FareCalculationGenerator::IntermediatePoint(const std::string& path, const PointNames& /*names*/) {
  const std::u16string pair = CityPair();
  text_.Word(pair);
  Expect(path + "FareHigherCityPair", pair);
  if (Chance(70)) {
    const std::u16string_view fareClass = Pick(kClasses);
    text_.Tight(u"/");
    text_.Tight(fareClass);
    Expect(path + "FareHigherClass", fareClass);
  }
}

void FareCalculationGenerator::LowestCombination(const std::string& path, const PointNames& /*names*/) {
  const std::u16string city = City();
  text_.Word(u"LC/");
  text_.Tight(city);
  Expect(path + "LowestCombinationCityCode", city);
}

void FareCalculationGenerator::FictitiousPoint(const std::string& path, const PointNames& /*names*/) {
  const std::u16string city = City();
  text_.Word(u"F/");
  text_.Tight(city);
  Expect(path + "FictitiousCode", city);
}

void FareCalculationGenerator::ExtraMileage(const std::string& path, const PointNames& /*names*/) {
  text_.Word(u"E/XXX");
  Expect(path + "ExtraMileageAllowanceId", u"E/XXX");
}

void FareCalculationGenerator::Equalization(const std::string& path, const PointNames& /*names*/) {
  for (std::size_t points = 1 + Below(2); points > 0; --points) {
    const std::string rule = NewItem(path + "MileageEqualizationRules");
    const std::size_t start = text_.Here();
    const std::u16string city = City();
    text_.Word(u"B/");
    text_.Tight(city);
    Expect(rule + "CityCode", city);
    if (Chance(60)) {
      text_.Tight(u"/");
      MileageItem(Chance(50), true, rule + "MileageId", rule + "MileageItemPercentage", rule);
    }
    text_.ExpectText(rule + "Text", start);
  }
}

void FareCalculationGenerator::Fare(const FarePaths& paths) {
  const std::u16string amount = Amount();
  text_.Write(amount, text_.Last() == u"M" || (text_.Last().size() == 3 && text_.Last() > u"A" && Chance(30)));
  Expect(paths.amount, amount);
  if (Chance(40)) {
    const std::u16string_view basis = Pick(kBases);
    text_.Tight(basis);
    Expect(paths.basis, basis);
  }
  if (Chance(20)) {
    const bool hasWord = Chance(50);
    text_.Write(hasWord ? u"LESS" : u"-", text_.Last() == amount && Chance(50));
    const std::u16string less = Amount();
    text_.Write(less, Chance(50));
    Expect(paths.less, u"True");
    Expect(paths.amountToSubtract, less);
  }
  if (Chance(20)) {
    StopOverValues(paths.stopOverValue, paths.stopsAllowed, false);
  }
}

void FareCalculationGenerator::FareObject(const std::string& path, const std::string& basisPath) {
  const std::size_t start = text_.Here();
  Expect(path.substr(0, path.size() - 1), u"present");
  Fare({.amount = path + "Amount",
        .less = path + "LessId",
        .amountToSubtract = path + "AmountToSub",
        .stopOverValue = path + "StopOverChargeValue",
        .stopsAllowed = path + "NumberStopAllowed",
        .basis = basisPath});
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::Minimum() {
  const std::string path = NewItem("FareMinimums");
  const std::size_t start = text_.Here();
  const std::u16string_view check = Chance(60) ? u"P" : Pick(kChecks);
  text_.Word(check);
  Expect(path + "FareId", check);
  const std::u16string from = City();
  const std::u16string to = City();
  text_.Word(from + to);
  Expect(path + "CityPair1", from);
  Expect(path + "CityPair2", to);
  if (Chance(40)) {
    LowestCombination(path, kComponentNames);
  }
  open_ = {.takesRouting = false, .takesFare = !Chance(80)};
  if (!open_.takesFare) {
    FareObject(path + "Fare.", path + "FareBasis");
  }
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::Differential() {
  const std::string path = NewItem("HigherClassDifferentials");
  const std::size_t start = text_.Here();
  const std::u16string pair = CityPair();
  text_.Word(u"D");
  text_.Word(pair);
  Expect(path + "CityPair", pair);
  Expect(path + "Fare", u"present");
  for (std::size_t points = Below(3); points > 0; --points) {
    const std::string point = NewItem(path + "FareHigherIntermediates");
    const std::size_t pointStart = text_.Here();
    const std::u16string stretch = CityPair();
    text_.Word(stretch);
    Expect(point + "CityPair", stretch);
    if (Chance(70)) {
      const std::u16string_view fareClass = Pick(kClasses);
      text_.Tight(u"/");
      text_.Tight(fareClass);
      Expect(point + "Class", fareClass);
    }
    text_.ExpectText(point + "Text", pointStart);
  }
  if (Chance(50)) {
    MileageItem(Chance(40), false, path + "MileageId", path + "MileagePercentage", path);
  }
  open_ = {.takesRouting = false, .takesFare = !Chance(80)};
  if (!open_.takesFare) {
    FareObject(path + "Fare.", {});
  }
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::CommonFare() {
  text_.Word(u"C");
  for (std::size_t stretches = 1 + Below(2); stretches > 0; --stretches) {
    text_.Tight(u"/");
    for (std::size_t cities = 1 + Below(3); cities > 0; --cities) {
      const std::u16string city = City();
      text_.Tight(city);
      commonCities_ += city;
    }
  }
  Expect("FareCommonCityCode", commonCities_);
  open_ = {.takesRouting = false, .takesFare = !Chance(70)};
  if (!open_.takesFare) {
    Fare({.amount = "FareCommonAmount",
          .less = "FareCommonLessId",
          .amountToSubtract = "FareCommonAmountToSub",
          .stopOverValue = "FareCommonStopOverChargeValue",
          .stopsAllowed = "FareCommonNumberStopAllowed"});
  }
}

void FareCalculationGenerator::ExtraSeat() {
  const std::string path = NewItem("ExtraSeats");
  const std::size_t start = text_.Here();
  const std::u16string_view id = Chance(60) ? u"EXST" : u"CBBG";
  text_.Word(id);
  Expect(path + "ExtraSeatId", id);
  Expect(path + "Fare", u"present");
  if (Chance(50)) {
    const std::u16string city = City();
    text_.Word(city);
    Expect(path + "CityCode", city);
  }
  const bool hasCurrency = Chance(40);
  if (hasCurrency) {
    const std::u16string_view currency = Pick(kCurrencies);
    text_.Word(currency);
    Expect(path + "Fare.CurrencyCode", currency);
  }
  const bool hasAmount = hasCurrency || Chance(70);
  if (hasAmount) {
    const std::u16string amount = Amount();
    text_.Write(amount, hasCurrency);
    Expect(path + "Fare.Amount", amount);
  }
  if (Chance(30)) {
    const std::u16string less = Amount();
    text_.Word(u"LESS");
    text_.Write(less, Chance(50));
    Expect(path + "Fare.LessId", u"True");
    Expect(path + "Fare.AmountToSub", less);
  }
  open_ = {.takesRouting = false, .takesFare = !hasAmount, .takesTotal = !hasAmount};
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::LoneFare() {
  if (open_.takesFare) {
    return;
  }
  const std::u16string amount = Amount();
  text_.Word(amount);
  Expect("FareCommonAmount", amount);
}

void FareCalculationGenerator::EndLine() {
  const std::size_t start = text_.Here();
  if (Chance(80)) {
    Total();
  }
  const bool hasEnd = Chance(80);
  if (hasEnd) {
    text_.Write(u"END", text_.Here() > start && EndsInDecimals() && Chance(50));
    Expect("EndLine.EndId", u"True");
  }
  if (Chance(60)) {
    text_.Word(u"ROE");
    text_.Tight(u"0.8123");
    Expect("EndLine.RateOfExchange", u"0.8123");
  }
  if (text_.Here() == start) {
    return;
  }
  for (std::size_t charges = Below(5); charges > 0; --charges) {
    Charge();
  }
  if (hasEnd && Chance(30)) {
    FreeFlow();
  }
  text_.ExpectText("EndLine.Text", start);
}

void FareCalculationGenerator::Total() {
  const std::u16string_view currency = open_.takesTotal || Chance(70) ? u"NUC" : Pick(kCurrencies);
  const std::u16string amount = Amount();
  text_.Write(currency, EndsInDecimals() && currency == u"NUC" && Chance(50));
  text_.Write(amount, currency != u"NUC" || Chance(80));
  Expect("EndLine.TotalFareCurrencyCode", currency);
  Expect("EndLine.TotalFareAmount", amount);
  if (Chance(30)) {
    FareAfterNuc();
  }
}

void FareCalculationGenerator::FareAfterNuc() {
  const std::string path = "EndLine.FareAfterNuc";
  text_.Write(u"/", Chance(50));
  bool isTight = Chance(50);
  if (Chance(50)) {
    const std::u16string from = City();
    const std::u16string to = City();
    text_.Write(from + to, isTight);
    Expect(path + "CityPair1", from);
    Expect(path + "CityPair2", to);
    isTight = false;
  }
  if (Chance(50)) {
    const std::u16string city = City();
    text_.Write(u"LC/", isTight);
    text_.Tight(city);
    Expect(path + "LowCombCityCode", city);
    isTight = false;
  }
  if (Chance(70)) {
    const std::u16string_view currency = Pick(kCurrencies);
    text_.Write(currency, isTight);
    Expect(path + "CurrencyCode", currency);
    isTight = true;
  }
  const std::u16string amount = Amount();
  text_.Write(amount, isTight);
  Expect(path + "Amount", amount);
  if (Chance(50)) {
    const std::u16string_view basis = Pick(kBases);
    text_.Tight(basis);
    Expect(path + "FareBasis", basis);
  }
}

void FareCalculationGenerator::Charge() {
  const std::string path = NewItem("EndLine.AnyPFCs");
  const std::size_t start = text_.Here();
  const std::size_t kind = Below(5);
  if (kind < 2) {
    AirportCharge(path, kind == 0);
  } else {
    const bool isCombined = kind == 2;
    text_.Word(isCombined ? u"XT" : u"PD");
    Expect(path + (isCombined ? "CombinedTax" : "PreviousPaid"), u"True");
    if (Chance(80)) {
      Taxes(kind != 3);
    }
  }
  text_.ExpectText(path + "Text", start);
}

void FareCalculationGenerator::AirportCharge(const std::string& path, bool isFacilityCharge) {
  text_.Word(isFacilityCharge ? u"XF" : u"ZP");
  Expect(path + (isFacilityCharge ? "PaxFacilityCharge" : "DomesticUSFlight"), u"True");
  bool isTight = Chance(50);
  for (std::size_t airports = 1 + Below(3); airports > 0; --airports) {
    const std::string digit = NewItem(path + "CityDigits");
    const std::size_t start = text_.Here();
    const std::u16string city = City();
    text_.Write(city, isTight);
    Expect(digit + "CityCode", city);
    // A further airport without an amount must follow at once, and so must all behind it.
    if (isFacilityCharge || (airports == 1 && Chance(50))) {
      text_.Tight(u"4.5");
      Expect(digit + "CityDigit", u"4.5");
      isTight = Chance(50);
    } else {
      isTight = true;
    }
    text_.ExpectText(digit + "Text", start);
  }
}

void FareCalculationGenerator::Taxes(bool hasCodes) {
  for (std::size_t taxes = 1 + Below(3); taxes > 0; --taxes) {
    const bool hasCurrency = !hasCodes && Chance(50);
    if (hasCurrency) {
      text_.Word(Pick(kCurrencies));
    }
    text_.Write(Amount(), hasCurrency);
    if (hasCodes) {
      text_.Tight(Pick(kTaxCodes));
    }
  }
}

void FareCalculationGenerator::FreeFlow() {
  for (std::size_t words = 1 + Below(12); words > 0; --words) {
    text_.Word(Pick(kFreeWords));
  }
}

bool FareCalculationGenerator::EndsInDecimals() const { return text_.Last().find(u'.') != std::u16string::npos; }

std::u16string FareCalculationGenerator::City() { return std::u16string(Pick(kCities)); }

std::u16string FareCalculationGenerator::Carrier() { return std::u16string(Pick(kCarriers)); }

std::u16string FareCalculationGenerator::Amount() {
  std::string digits = std::to_string(10 + Below(Chance(50) ? 90 : 9990));
  if (digits.size() < 3 || Chance(70)) {
    digits += "." + std::to_string(10 + Below(90));
  }
  return ToUtf16(digits);
}

std::string FareCalculationGenerator::NewItem(const std::string& collection) {
  const int count = ++counts_[collection];
  text_.Expect(collection, ToUtf16(std::to_string(count)));
  return collection + "[" + std::to_string(count) + "].";
}

}  // namespace qorltst::simulator
