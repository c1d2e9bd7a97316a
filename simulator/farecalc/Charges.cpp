// "XF JFK4.5LAX4.5 XT 20.00GB": facility charges, segment taxes, combined and previously paid taxes.
#include <algorithm>
#include <array>

#include "simulator/farecalc/Grammar.h"
#include "simulator/farecalc/Shapes.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kLabelLength = 2;
constexpr std::size_t kCityLength = 3;

/// The node types of a charge that is given by airport.
struct AirportCharge {
  NodeTypeId charge;
  NodeTypeId cities;
  NodeTypeId city;
  NodeTypeId amount;
  /// Whether a city without an amount is a mistake.
  bool needsAmounts;
};

constexpr AirportCharge kFacilityCharge{NodeTypeId::PassengerFacilityCharge, NodeTypeId::FacilityCities,
                                        NodeTypeId::FacilityCityItem, NodeTypeId::FacilityAmount, true};
constexpr AirportCharge kSegmentTax{NodeTypeId::DomesticUsFlight, NodeTypeId::SegmentTaxCities,
                                    NodeTypeId::SegmentTaxCityItem, NodeTypeId::SegmentTaxAmount, false};

/// The label alone, or with cities right behind it.
bool StartsLabel(const FareCursor& cursor, std::u16string_view label) {
  return cursor.Sees([label](const Token& token) {
    return token.kind == TokenKind::Letters && token.text.starts_with(label) &&
           token.text.size() % kCityLength == kLabelLength;
  });
}

/// The first city may stand apart from the label; a further one follows at once or has its amount at once.
bool StartsAirport(const FareCursor& cursor, bool isFirst) {
  return cursor.Sees(shape::Cities) &&
         (isFirst || cursor.Peek().isTight || cursor.SeesAt(1, shape::Tight(shape::Number)));
}

void ReadAirport(FareCursor& cursor, TreeNode& cities, const AirportCharge& kind) {
  cursor.Cover(cities, kind.city, [&](TreeNode& item) {
    cursor.Add(item, NodeTypeId::FacilityCity, kCityLength);
    if (kind.needsAmounts || cursor.Sees(shape::Number)) {
      ReadAmount(cursor, item, kind.amount);
    }
  });
}

void ReadAirportCharge(FareCursor& cursor, TreeNode& charges, const AirportCharge& kind) {
  cursor.Cover(charges, kind.charge, [&](TreeNode& charge) {
    cursor.Take(kLabelLength);
    cursor.Cover(charge, kind.cities, [&](TreeNode& cities) {
      for (bool isFirst = true; StartsAirport(cursor, isFirst); isFirst = false) {
        ReadAirport(cursor, cities, kind);
      }
    });
    if (charge.ChildCount() == 0) {
      cursor.Warn(u"airport expected");
    }
  });
}

bool StartsFacilityCharge(const FareCursor& cursor) { return StartsLabel(cursor, u"XF"); }
void ReadFacilityCharge(FareCursor& cursor, TreeNode& charges) { ReadAirportCharge(cursor, charges, kFacilityCharge); }

bool StartsSegmentTax(const FareCursor& cursor) { return StartsLabel(cursor, u"ZP"); }
void ReadSegmentTax(FareCursor& cursor, TreeNode& charges) { ReadAirportCharge(cursor, charges, kSegmentTax); }

/// "GB" or "Y4" right behind the amount of a tax.
bool SeesTaxCode(const FareCursor& cursor, std::size_t ahead) {
  return cursor.SeesAt(ahead, shape::Tight(shape::Letters(2))) ||
         cursor.SeesAt(ahead, shape::Tight(shape::Letters(1)), shape::Tight(shape::Digits(1)));
}

/// "GBP" right before an amount; it looks like a city.
bool SeesCurrency(const FareCursor& cursor, std::size_t ahead) {
  return cursor.SeesAt(ahead, shape::City, shape::Tight(shape::Number));
}

void ReadTaxes(FareCursor& cursor, TreeNode& charges, NodeTypeId type) {
  cursor.Cover(charges, type, [&](TreeNode& taxes) {
    cursor.Next();
    while (cursor.Sees(shape::Number) || SeesCurrency(cursor, 0)) {
      if (SeesCurrency(cursor, 0)) {
        cursor.Add(taxes, NodeTypeId::CurrencyCode);
      }
      cursor.Add(taxes, NodeTypeId::TaxAmount);
      if (SeesTaxCode(cursor, 0)) {
        cursor.Add(taxes, NodeTypeId::TaxIsoType, kLabelLength);
      }
    }
  });
}

bool StartsPreviouslyPaid(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"PD")); }

/// A tax is an amount with its code; an amount without one is something else that was paid.
void ReadPreviouslyPaid(FareCursor& cursor, TreeNode& charges) {
  if (cursor.SeesAt(1, shape::Number) && SeesTaxCode(cursor, 2)) {
    ReadTaxes(cursor, charges, NodeTypeId::PreviouslyPaidTax);
  } else if (cursor.SeesAt(1, shape::Number) || SeesCurrency(cursor, 1)) {
    ReadTaxes(cursor, charges, NodeTypeId::PreviouslyPaidOther);
  } else {
    ReadTaxes(cursor, charges, NodeTypeId::PreviouslyPaid);
  }
}

bool StartsCombinedTax(const FareCursor& cursor) { return cursor.Sees(shape::Is(u"XT")); }
void ReadCombinedTax(FareCursor& cursor, TreeNode& charges) { ReadTaxes(cursor, charges, NodeTypeId::CombinedTax); }

constexpr std::array kCharges{
    Production{StartsFacilityCharge, ReadFacilityCharge},
    Production{StartsSegmentTax, ReadSegmentTax},
    Production{StartsPreviouslyPaid, ReadPreviouslyPaid},
    Production{StartsCombinedTax, ReadCombinedTax},
};

}  // namespace

bool StartsCharge(const FareCursor& cursor) {
  return std::ranges::any_of(kCharges, [&](const Production& charge) { return charge.starts(cursor); });
}

void ReadCharges(FareCursor& cursor, TreeNode& parent) {
  cursor.Cover(parent, NodeTypeId::FacilityCharges, [&](TreeNode& charges) {
    while (ReadOneOf(cursor, charges, kCharges)) {
    }
  });
}

}  // namespace qorltst::simulator
