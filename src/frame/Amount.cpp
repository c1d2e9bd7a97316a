// Currency is rounded on the digits themselves: a conversion through a double would differ from machine to machine.
// See Amount.h.
#include "frame/Amount.h"

#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <limits>

#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

constexpr std::size_t kCurrencyDecimals = 4;
constexpr int kSignificantDigits = 15;
constexpr auto kLargestCurrency = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());

constexpr bool IsDigit(char16_t character) { return character >= u'0' && character <= u'9'; }

std::uint64_t Appended(std::uint64_t value, char16_t digit) {
  const auto added = static_cast<std::uint64_t>(digit - u'0');
  if (value > (kLargestCurrency - added) / 10) {
    throw toolkit::RuntimeError(toolkit::kOverflow);
  }
  return value * 10 + added;
}

/// Whether the digits that were cut off make the value before them grow.
bool RoundsUp(std::uint64_t value, std::u16string_view cutOff) {
  if (cutOff.empty() || cutOff.front() != u'5') {
    return !cutOff.empty() && cutOff.front() > u'5';
  }
  const bool exactlyHalf = cutOff.find_first_not_of(u'0', 1) == std::u16string_view::npos;
  return !exactlyHalf || value % 2 != 0;
}

/// Digits d.ddd times ten to the exponent, trailing zeros gone.
struct Decimal {
  std::u16string digits;
  int exponent = 0;
};

Decimal RoundedDecimal(double value) {
  std::array<char, 32> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific,
                                     kSignificantDigits - 1);
  const std::string_view text(buffer.data(), written.ptr);
  const std::size_t e = text.find('e');
  Decimal decimal;
  for (const char c : text.substr(0, e)) {
    if (c != '.') {
      decimal.digits.push_back(static_cast<char16_t>(c));
    }
  }
  decimal.digits.erase(decimal.digits.find_last_not_of(u'0') + 1);
  const std::string_view exponent = text.substr(e + (text[e + 1] == '+' ? 2 : 1));
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
  return decimal;
}

std::atomic<DecimalSeparatorSource> separatorSource{nullptr};

std::u16string DecimalSeparator() {
  const DecimalSeparatorSource source = separatorSource.load(std::memory_order_relaxed);
  return source != nullptr ? source() : u".";
}

std::u16string WithExponent(const Decimal& number) {
  std::u16string text = number.digits.substr(0, 1);
  if (number.digits.size() > 1) {
    text.append(DecimalSeparator()).append(number.digits, 1);
  }
  const auto exponent = static_cast<unsigned>(number.exponent < 0 ? -number.exponent : number.exponent);
  text.append(number.exponent < 0 ? u"E-" : u"E+");
  std::u16string digits;
  for (unsigned rest = exponent; rest != 0 || digits.size() < 2; rest /= 10) {
    digits.insert(digits.begin(), static_cast<char16_t>(u'0' + rest % 10));
  }
  return text.append(digits);
}

std::u16string InFull(const Decimal& number) {
  if (number.exponent < 0) {
    return (u"0" + DecimalSeparator())
        .append(static_cast<std::size_t>(-number.exponent - 1), u'0')
        .append(number.digits);
  }
  const auto whole = static_cast<std::size_t>(number.exponent) + 1;
  std::u16string text = number.digits.substr(0, whole);
  text.append(whole - text.size(), u'0');
  if (number.digits.size() > whole) {
    text.append(DecimalSeparator()).append(number.digits, whole);
  }
  return text;
}

/// Numbers that need more places than there are significant digits are written with an exponent.
bool FitsInFull(const Decimal& number) {
  return number.exponent < kSignificantDigits &&
         static_cast<int>(number.digits.size()) - 1 - number.exponent <= kSignificantDigits;
}

}  // namespace

std::u16string_view LeadingNumber(std::u16string_view text) noexcept {
  std::size_t length = 0;
  bool point = false;
  bool digit = false;
  for (; length < text.size(); ++length) {
    if (IsDigit(text[length])) {
      digit = true;
    } else if (text[length] == u'.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  return digit ? text.substr(0, length) : std::u16string_view();
}

Currency AmountOf(std::u16string_view text) {
  const std::u16string_view number = LeadingNumber(text);
  const std::size_t point = std::min(number.find(u'.'), number.size());
  std::uint64_t value = 0;
  for (const char16_t digit : number.substr(0, point)) {
    value = Appended(value, digit);
  }
  const std::u16string_view decimals = number.substr(std::min(point + 1, number.size()));
  for (std::size_t i = 0; i < kCurrencyDecimals; ++i) {
    value = Appended(value, i < decimals.size() ? decimals[i] : u'0');
  }
  if (RoundsUp(value, decimals.substr(std::min(kCurrencyDecimals, decimals.size())))) {
    if (value == kLargestCurrency) {
      throw toolkit::RuntimeError(toolkit::kOverflow);
    }
    ++value;
  }
  return {static_cast<std::int64_t>(value)};
}

std::u16string NumberTextOf(std::u16string_view text) {
  std::string number;
  for (const char16_t character : LeadingNumber(text)) {
    number.push_back(static_cast<char>(character));
  }
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  // The text of a number too small for a double is out of range too, but reads as nothing.
  if (read.ec == std::errc::result_out_of_range && number.find_first_of("123456789") < number.find('.')) {
    throw toolkit::RuntimeError(toolkit::kOverflow);
  }
  if (value == 0) {
    return u"0";
  }
  const Decimal decimal = RoundedDecimal(value);
  return FitsInFull(decimal) ? InFull(decimal) : WithExponent(decimal);
}

void SetDecimalSeparatorSource(DecimalSeparatorSource source) noexcept {
  separatorSource.store(source, std::memory_order_relaxed);
}

}  // namespace qorltst
