// The pieces of fare calculation lines; see tools/report/FareCalculationPieces.h.
#include <gtest/gtest.h>

#include "simulator/Utf.h"
#include "tests/tools/support/Samples.h"
#include "tools/report/Facts.h"
#include "tools/report/FareCalculationPieces.h"

namespace qorltst::report {
namespace {

constexpr std::u16string_view kLabel = u"FCALC ";

std::vector<Piece> Pieces(std::u16string_view line) {
  return FareCalculationPieces(*Make<simulator::SimulatedToolkit>(), line);
}

/// "text: explanation" for each piece.
std::vector<std::string> Explained(std::u16string_view line) {
  std::vector<std::string> lines;
  for (const Piece& piece : Pieces(line)) {
    lines.push_back(simulator::ToUtf8(line.substr(piece.start, piece.length)) + ": " + std::string(piece.explanation));
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(FareCalculationPieces, ExplainsALineFromItsWholeToItsParts) {
  EXPECT_EQ(
      Explained(u"FCALC LON QX X/PAR 120.50YRT NUC120.50END ROE0.8"),
      (Lines{"LON: The point of departure.", "LON: The city of departure.",
             "QX X/PAR 120.50YRT: A fare component: what is flown for one fare.", "QX: The carrier to the next city.",
             "X/: No stop-over is allowed at the city that follows.", "PAR: A city of the journey.",
             "120.50YRT: The fare.", "120.50: The amount.", "YRT: The fare basis.",
             "NUC120.50END ROE0.8: The end of the calculation: total, rate of exchange and charges.",
             "NUC120.50: The sum of all fares.", "NUC: The currency or unit of the sum.", "120.50: The amount.",
             "END: The calculation ends here.", "ROE0.8: The rate of exchange into the currency of the departure."}));
}

TEST(FareCalculationPieces, TellsEqualTextsApartByTheirPlaces) {
  const std::u16string line = u"FCALC LON QX LON QX LON 10.00 QX LON 10.00 NUC20.00END";
  std::set<std::pair<std::size_t, std::string_view>> places;
  for (const Piece& piece : Pieces(line)) {
    EXPECT_TRUE(places.emplace(piece.start, piece.explanation).second) << piece.start << ' ' << piece.explanation;
  }
  EXPECT_EQ(std::ranges::count(Explained(line), "LON: A city of the journey."), 3);
}

TEST(FareCalculationPieces, HasNoneOfALineThatCannotBeRead) {
  EXPECT_TRUE(Pieces(u"").empty());
  EXPECT_TRUE(Pieces(u"FCALC \x0001").empty());
  EXPECT_TRUE(Pieces(u"FARE F EUR 1.00").empty());
}

class PiecesOfSample : public ::testing::TestWithParam<const char*> {};

TEST_P(PiecesOfSample, CoverAllThatIsNoBlank) {
  const Ref<TST> ticket = testing::SampleTicket(GetParam());
  const std::u16string line = Fact(*ChildOf(*ticket, u"FareCalculation"), u"Text");
  ASSERT_FALSE(line.empty());
  std::vector<bool> isCovered(line.size());
  for (const Piece& piece : Pieces(line)) {
    std::fill_n(isCovered.begin() + static_cast<std::ptrdiff_t>(piece.start), piece.length, true);
  }
  for (std::size_t i = kLabel.size(); i < line.size(); ++i) {
    EXPECT_TRUE(isCovered[i] || line[i] == u' ') << simulator::ToUtf8(line) << ", character " << i;
  }
}

TEST_P(PiecesOfSample, LieWithinEachOtherOrApart) {
  const Ref<TST> ticket = testing::SampleTicket(GetParam());
  const std::vector<Piece> pieces = Pieces(Fact(*ChildOf(*ticket, u"FareCalculation"), u"Text"));
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    for (std::size_t j = i + 1; j < pieces.size(); ++j) {
      EXPECT_TRUE(pieces[j].start >= pieces[i].End() || pieces[j].End() <= pieces[i].End()) << i << ' ' << j;
      EXPECT_GE(pieces[j].start, pieces[i].start);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, PiecesOfSample,
                         ::testing::Values("rich.txt", "fc-exchange.txt", "fc-hip.txt", "fc-minimum.txt",
                                           "fc-open-jaw.txt", "fc-pfc.txt", "fc-round-trip.txt", "fc-side-trip.txt",
                                           "fc-two-screens.txt"));

}  // namespace
}  // namespace qorltst::report
