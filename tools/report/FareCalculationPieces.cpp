// A table of what the nodes mean, and where their texts stand in the line. See FareCalculationPieces.h.
#include "tools/report/FareCalculationPieces.h"

#include <algorithm>
#include <array>

#include "toolkit/HostNumbers.h"
#include "toolkit/NodeTypeId.h"

namespace qorltst::report {
namespace {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
using toolkit::Ref;

struct Meaning {
  NodeTypeId node;
  PieceKind kind;
  std::string_view text;
};

using enum PieceKind;

constexpr std::array kMeanings{
    Meaning{NodeTypeId::DeparturePoint, Whole, "The point of departure."},
    Meaning{NodeTypeId::InvoluntaryRerouting, Mark, "What follows is an involuntary rerouting."},
    Meaning{NodeTypeId::ReroutingDate, Mark, "The date of the rerouting."},
    Meaning{NodeTypeId::RoutingDate, Mark, "The date of departure."},
    Meaning{NodeTypeId::DepartureCity, Place, "The city of departure."},
    Meaning{NodeTypeId::ReroutingCity, Place, "The city of departure."},
    Meaning{NodeTypeId::Itinerary, Whole, "A fare component: what is flown for one fare."},
    Meaning{NodeTypeId::CarrierCode, Carrier, "The carrier to the next city."},
    Meaning{NodeTypeId::ComponentCity, Place, "A city of the journey."},
    Meaning{NodeTypeId::GlobalRouting, Mark, "The global direction of the journey."},
    Meaning{NodeTypeId::StopOverNotAllowed, Mark, "No stop-over is allowed at the city that follows."},
    Meaning{NodeTypeId::ExtraMileagePoint, Mark, "The city that follows gives extra mileage."},
    Meaning{NodeTypeId::ReducedMileagePoint, Mark, "The city that follows reduces the mileage."},
    Meaning{NodeTypeId::TicketedPointNotInMileage, Mark, "The city that follows is not counted in the mileage."},
    Meaning{NodeTypeId::OtherSymbol, Mark, "Another symbol at the city that follows."},
    Meaning{NodeTypeId::GapIncludedInMileage, Mark, "A surface gap that is counted in the mileage."},
    Meaning{NodeTypeId::GapNotInMileage, Mark, "A surface gap that is not counted in the mileage."},
    Meaning{NodeTypeId::OtherSurcharges, Money, "A surcharge."},
    Meaning{NodeTypeId::StopOver, Money, "Stop-overs: how many, and what they cost."},
    Meaning{NodeTypeId::StopOverValue, Money, "The amount of the surcharge or of the stop-overs."},
    Meaning{NodeTypeId::StopsAllowed, Mark, "The number of stop-overs."},
    Meaning{NodeTypeId::MileageItem, Mark, "The fare was built by mileage."},
    Meaning{NodeTypeId::MileagePercentage, Mark, "The surcharge for mileage, as a percentage."},
    Meaning{NodeTypeId::InclusiveTour, Mark, "An inclusive tour fare, which is not shown."},
    Meaning{NodeTypeId::BulkTour, Mark, "A bulk tour fare, which is not shown."},
    Meaning{NodeTypeId::FareIntermediatePoint, Mark, "The cities between which a higher fare counts, with its class."},
    Meaning{NodeTypeId::CityPair, Place, "Two cities: from and to."},
    Meaning{NodeTypeId::BookingClass, Mark, "The booking class of the higher fare."},
    Meaning{NodeTypeId::IntermediateClass, Mark, "The booking class of the higher fare."},
    Meaning{NodeTypeId::LowestCombination, Place, "The city over which the fare is the lowest combination."},
    Meaning{NodeTypeId::FictitiousPoint, Place, "A city that the fare was built over, but which is not flown."},
    Meaning{NodeTypeId::ExtraMileageAllowance, Mark, "Extra mileage is allowed, at no city in particular."},
    Meaning{NodeTypeId::MileageEqualizationItem, Mark, "A city of the mileage equalization."},
    Meaning{NodeTypeId::FareWithStopOver, Money, "The fare."},
    Meaning{NodeTypeId::FareAmount, Money, "The amount."},
    Meaning{NodeTypeId::FareBasis, Mark, "The fare basis."},
    Meaning{NodeTypeId::LessFare, Money, "An amount that is taken off."},
    Meaning{NodeTypeId::CompositeElement, Whole, "A side trip."},
    Meaning{NodeTypeId::FareMinimum, Whole, "A minimum fare check."},
    Meaning{NodeTypeId::FareMinimumId, Mark, "The code of the minimum fare check."},
    Meaning{NodeTypeId::FareMinimumOtherId, Mark, "The code of the minimum fare check."},
    Meaning{NodeTypeId::FareMinimumCity1, Place, "The first city of the check."},
    Meaning{NodeTypeId::FareMinimumCity2, Place, "The second city of the check."},
    Meaning{NodeTypeId::HigherClassDifferential, Whole, "The difference to a higher class on part of the way."},
    Meaning{NodeTypeId::DifferentialCityPair, Place, "Two cities: from and to."},
    Meaning{NodeTypeId::FareCommon, Whole, "The common fare of several cities."},
    Meaning{NodeTypeId::FareCommonCityGroup, Place, "The cities of the common fare."},
    Meaning{NodeTypeId::ExtraSeatFare, Whole, "An extra seat or baggage in the cabin."},
    Meaning{NodeTypeId::ExtraSeatId, Mark, "An extra seat."},
    Meaning{NodeTypeId::CabinBaggageId, Mark, "Baggage in the cabin."},
    Meaning{NodeTypeId::ExtraSeatCity, Place, "The city."},
    Meaning{NodeTypeId::CurrencyCode, Money, "The currency."},
    Meaning{NodeTypeId::EndLine, Whole, "The end of the calculation: total, rate of exchange and charges."},
    Meaning{NodeTypeId::TotalFareGroup, Money, "The sum of all fares."},
    Meaning{NodeTypeId::TotalFareCurrency, Money, "The currency or unit of the sum."},
    Meaning{NodeTypeId::FareAfterNuc, Money, "The fare that the sum was compared with."},
    Meaning{NodeTypeId::EndMarker, Mark, "The calculation ends here."},
    Meaning{NodeTypeId::RateOfExchangeGroup, Money, "The rate of exchange into the currency of the departure."},
    Meaning{NodeTypeId::PassengerFacilityCharge, Money, "Passenger facility charges, airport by airport."},
    Meaning{NodeTypeId::DomesticUsFlight, Money, "Domestic segment taxes, airport by airport."},
    Meaning{NodeTypeId::FacilityCity, Place, "The airport that takes the charge."},
    Meaning{NodeTypeId::FacilityAmount, Money, "The charge of the airport."},
    Meaning{NodeTypeId::SegmentTaxAmount, Money, "The tax of the segment."},
    Meaning{NodeTypeId::CombinedTax, Money, "Taxes that were put together in one."},
    Meaning{NodeTypeId::TaxAmount, Money, "The amount of the tax."},
    Meaning{NodeTypeId::TaxIsoType, Mark, "The code of the tax."},
    Meaning{NodeTypeId::PreviouslyPaid, Mark, "What follows was paid before."},
    Meaning{NodeTypeId::PreviouslyPaidTax, Money, "Taxes that were paid before."},
    Meaning{NodeTypeId::PreviouslyPaidOther, Money, "An amount that was paid before."},
    Meaning{NodeTypeId::EndFreeFlowGroup, Mark, "Free text."},
};

/// Finds the nodes' texts in the line. The toolkit tells no positions, but a node's text lies in its parent's, behind
/// the text of the node before it.
class Finder {
 public:
  explicit Finder(std::u16string_view line) : line_(line) {}

  /// The node's own piece, and those below it. `from` and `end` bound the parent's text; returns where the node's ends.
  std::size_t Find(ParseNode& node, std::size_t from, std::size_t end, std::size_t before) {
    const std::u16string text = node.Text();
    const NodeTypeId type = node.TypeId();
    // The fare basis is a part of the text of the fare before it.
    const std::size_t start = line_.find(text, type == NodeTypeId::FareBasis ? before : from);
    if (text.empty() || start == std::u16string_view::npos || start + text.size() > end) {
      return from;
    }
    const auto* const meaning = std::ranges::find(kMeanings, type, &Meaning::node);
    if (meaning != kMeanings.end()) {
      pieces_.push_back({start, text.size(), meaning->kind, meaning->text});
    }
    FindBelow(node, start, start + text.size());
    return start + text.size();
  }

  std::vector<Piece> Take() {
    std::ranges::stable_sort(pieces_, [](const Piece& a, const Piece& b) {
      return a.start != b.start ? a.start < b.start : a.length > b.length;
    });
    return std::move(pieces_);
  }

 private:
  void FindBelow(ParseNode& node, std::size_t from, std::size_t end) {
    std::size_t before = from;
    const Ref<toolkit::NodeEnumerator> children = node.Children();
    for (Ref<ParseNode> child = children->Next(); child; child = children->Next()) {
      const std::size_t next = Find(*child, from, end, before);
      before = from;
      from = std::max(from, next);
    }
  }

  std::u16string_view line_;
  std::vector<Piece> pieces_;
};

/// Blanks up to a whole number of screen lines, as the parser wants them in front of the next line.
std::u16string Padded(std::u16string_view line) {
  std::u16string padded(line);
  padded.resize((line.size() + toolkit::kLineLength - 1) / toolkit::kLineLength * toolkit::kLineLength, u' ');
  return padded;
}

/// Those that do not reach over the end of one that they start in.
std::vector<Piece> Nested(const std::vector<Piece>& pieces) {
  std::vector<Piece> nested;
  std::vector<Piece> open;
  for (const Piece& piece : pieces) {
    while (!open.empty() && open.back().End() <= piece.start) {
      open.pop_back();
    }
    if (open.empty() || piece.End() <= open.back().End()) {
      nested.push_back(piece);
      open.push_back(piece);
    }
  }
  return nested;
}

}  // namespace

std::vector<Piece> FareCalculationPieces(toolkit::Toolkit& toolkit, std::u16string_view line) {
  const Ref<ParseNode> parser = toolkit.CreateParser();
  if (parser->Parse(Padded(u"TST 1") + Padded(line), toolkit::kParseMode) != toolkit::kParseSuccess) {
    return {};
  }
  const Ref<ParseNode> root = parser->FindNode(NodeTypeId::FareCalculationLine);
  if (!root) {
    return {};
  }
  Finder finder(line);
  finder.Find(*root, 0, line.size(), 0);
  return Nested(finder.Take());
}

}  // namespace qorltst::report
