// A fare calculation while it is written: words and what they mean; laid out over screen lines when it is complete.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "FareCalculationModel.h"

namespace qorltst::simulator {

/// A written fare calculation: its screen lines, and what the component must make of it.
struct WrittenFareCalculation {
  std::vector<std::u16string> lines;
  Values values;
};

class FareCalculationText {
 public:
  /// How many blanks stand before a word; a negative number starts a screen line.
  using Spacing = std::function<int()>;

  /// The label stands first.
  FareCalculationText() { Word(u"FCALC"); }

  /// Writes a piece after a blank.
  void Word(std::u16string_view text) { pieces_.push_back({std::u16string(text), false}); }

  /// Writes a piece right behind the one before it.
  void Tight(std::u16string_view text) { pieces_.push_back({std::u16string(text), true}); }

  void Write(std::u16string_view text, bool isTight) { pieces_.push_back({std::u16string(text), isTight}); }

  /// Where the next piece will stand.
  [[nodiscard]] std::size_t Here() const noexcept { return pieces_.size(); }

  /// The piece before.
  [[nodiscard]] const std::u16string& Last() const { return pieces_.back().text; }

  /// The property must hold this text. A later one takes its place.
  void Expect(const std::string& path, std::u16string_view value);

  /// The property must hold what was written from `start` up to here, as displayed.
  void ExpectText(const std::string& path, std::size_t start) { covered_[path] = {start, Here()}; }

  /// The property must not hold anything any more.
  void ExpectNothing(const std::string& path) { values_.erase(path); }

  [[nodiscard]] WrittenFareCalculation LayOut(const Spacing& spacing) const;

 private:
  struct Piece {
    std::u16string text;
    bool isTight;
  };

  /// The size of the word that starts with this piece.
  [[nodiscard]] std::size_t MeasureWord(std::size_t first) const;

  std::vector<Piece> pieces_;
  Values values_;
  std::map<std::string, std::pair<std::size_t, std::size_t>> covered_;
};

}  // namespace qorltst::simulator
