// The fare calculation line in pieces, each with an explanation, as the toolkit's parse tree has them.
#pragma once

#include <string>
#include <vector>

#include "toolkit/Toolkit.h"

namespace qorltst::report {

/// What a piece is about; pages give each a colour and a mark of its own.
enum class PieceKind : std::uint8_t { Whole, Place, Carrier, Money, Mark };

/// A run of the line. Pieces lie within each other or apart, never across.
struct Piece {
  std::size_t start = 0;
  std::size_t length = 0;
  PieceKind kind = PieceKind::Whole;
  std::string_view explanation;

  [[nodiscard]] std::size_t End() const { return start + length; }
};

/// The pieces of the line, outer ones first, in the order of the line. Empty where the toolkit cannot read it.
[[nodiscard]] std::vector<Piece> FareCalculationPieces(toolkit::Toolkit& toolkit, std::u16string_view line);

}  // namespace qorltst::report
