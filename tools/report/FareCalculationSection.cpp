// The line with marked pieces, and the same pieces as a table. See Sections.h.
#include "tools/model/ValueText.h"
#include "tools/report/Facts.h"
#include "tools/report/FareCalculationPieces.h"
#include "tools/report/Sections.h"

namespace qorltst::report {
namespace {

struct KindName {
  PieceKind kind;
  const char* name;
};

constexpr std::array kKindNames{KindName{PieceKind::Whole, "whole"}, KindName{PieceKind::Place, "city"},
                                KindName{PieceKind::Carrier, "carrier"}, KindName{PieceKind::Money, "money"},
                                KindName{PieceKind::Mark, "mark"}};

std::string ClassOf(const Piece& piece) {
  const auto* const found = std::ranges::find(kKindNames, piece.kind, &KindName::kind);
  return std::string("piece ") + found->name;
}

/// Writes the pieces within each other, with the text between them.
class LineWriter {
 public:
  LineWriter(Html& html, std::u16string_view line, const std::vector<Piece>& pieces)
      : html_(html), line_(line), pieces_(pieces) {}

  void Write() { WriteUpTo(line_.size()); }

 private:
  void WriteUpTo(std::size_t end) {
    while (next_ < pieces_.size() && pieces_[next_].start < end) {
      const std::size_t index = next_++;
      const Piece& piece = pieces_[index];
      WriteText(piece.start);
      const std::string tip = "piece" + std::to_string(index + 1);
      const auto mark =
          html_.In("span", {{"class", ClassOf(piece)}, {"tabindex", "0"}, {"role", "note"}, {"aria-describedby", tip}});
      WriteUpTo(piece.End());
      html_.Add("span", piece.explanation, {{"class", "tip"}, {"role", "tooltip"}, {"id", tip}});
    }
    WriteText(end);
  }

  void WriteText(std::size_t end) {
    html_.AddText(line_.substr(at_, end - at_));
    at_ = end;
  }

  Html& html_;
  std::u16string_view line_;
  const std::vector<Piece>& pieces_;
  std::size_t next_ = 0;
  std::size_t at_ = 0;
};

/// Runs of blanks are where the screen ends its lines.
std::u16string WithSingleBlanks(std::u16string_view text) {
  std::u16string single;
  for (const char16_t character : text) {
    if (character != u' ' || single.empty() || single.back() != u' ') {
      single += character;
    }
  }
  return single;
}

void WritePieces(Html& html, std::u16string_view line, const std::vector<Piece>& pieces) {
  const auto details = html.In("details", {{"class", "pieces"}});
  html.Add("summary", std::string_view("Piece by piece"));
  const auto table = html.In("table");
  html.AddMarkup("<thead><tr><th scope=\"col\">Piece</th><th scope=\"col\">Meaning</th></tr></thead>\n");
  const auto body = html.In("tbody");
  for (const Piece& piece : pieces) {
    const auto row = html.In("tr");
    html.Add("th", std::u16string_view(WithSingleBlanks(line.substr(piece.start, piece.length))), {{"scope", "row"}});
    html.Add("td", piece.explanation);
  }
}

}  // namespace

void WriteFareCalculation(Page& page, TST& ticket) {
  Object& calculation = *ChildOf(ticket, u"FareCalculation");
  const std::u16string line = Fact(calculation, u"Text");
  if (line.empty()) {
    return;
  }
  const auto section = page.Section("calculation", "Fare calculation");
  const std::vector<Piece> pieces = FareCalculationPieces(page.Toolkit(), line);
  {
    const auto paragraph = page.Out().In("div", {{"class", "calculation"}});
    LineWriter(page.Out(), line, pieces).Write();
  }
  page.Out().Add("p", std::string_view("Point at a piece, or go to it with the Tab key, to see what it means."),
                 {{"class", "hint"}});
  page.Warn("Fare calculation", Fact(calculation, u"ErrorText"));
  if (!pieces.empty()) {
    WritePieces(page.Out(), line, pieces);
  }
}

}  // namespace qorltst::report
