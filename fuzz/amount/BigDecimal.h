// Whole numbers of any length, as decimal digits: the schoolbook's arithmetic that amounts are held against.
#pragma once

#include <compare>
#include <string>

namespace qorltst::fuzz {

class BigDecimal {
 public:
  /// Digits, the highest first; none are zero.
  explicit BigDecimal(std::string digits);

  [[nodiscard]] BigDecimal Doubled() const;
  /// With this many zeros behind it.
  [[nodiscard]] BigDecimal Shifted(std::size_t zeros) const;
  /// How far the two are apart.
  [[nodiscard]] BigDecimal Distance(const BigDecimal& other) const;

  friend std::strong_ordering operator<=>(const BigDecimal& left, const BigDecimal& right);
  friend bool operator==(const BigDecimal& left, const BigDecimal& right) = default;

 private:
  /// Without leading zeros.
  std::string digits_;
};

}  // namespace qorltst::fuzz
