// See BigDecimal.h.
#include "fuzz/amount/BigDecimal.h"

#include <algorithm>

namespace qorltst::fuzz {

BigDecimal::BigDecimal(std::string digits) : digits_(std::move(digits)) {
  digits_.erase(0, std::min(digits_.find_first_not_of('0'), digits_.size()));
}

BigDecimal BigDecimal::Doubled() const {
  std::string sum = "0" + digits_;
  int carry = 0;
  for (auto digit = sum.rbegin(); digit != sum.rend(); ++digit) {
    const int twice = 2 * (*digit - '0') + carry;
    *digit = static_cast<char>('0' + twice % 10);
    carry = twice / 10;
  }
  return BigDecimal(sum);
}

BigDecimal BigDecimal::Shifted(std::size_t zeros) const { return BigDecimal(digits_ + std::string(zeros, '0')); }

BigDecimal BigDecimal::Distance(const BigDecimal& other) const {
  if (*this < other) {
    return other.Distance(*this);
  }
  std::string rest = digits_;
  const std::string less = std::string(digits_.size() - other.digits_.size(), '0') + other.digits_;
  int borrowed = 0;
  for (std::size_t i = rest.size(); i-- > 0;) {
    const int digit = rest[i] - less[i] - borrowed;
    borrowed = digit < 0 ? 1 : 0;
    rest[i] = static_cast<char>('0' + digit + 10 * borrowed);
  }
  return BigDecimal(rest);
}

std::strong_ordering operator<=>(const BigDecimal& left, const BigDecimal& right) {
  if (const auto bySize = left.digits_.size() <=> right.digits_.size(); bySize != std::strong_ordering::equal) {
    return bySize;
  }
  return left.digits_.compare(right.digits_) <=> 0;
}

}  // namespace qorltst::fuzz
