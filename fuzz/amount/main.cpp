// Texts as amounts: the first byte chooses the decimal separator, the others are the text. Currency is held against
// decimal arithmetic on the digits, number texts against the C library's conversions.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

#include "frame/Amount.h"
#include "fuzz/amount/BigDecimal.h"
#include "fuzz/support/ByteReader.h"
#include "fuzz/support/Check.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::fuzz {
namespace {

/// What `read` gives; nothing where it raises the overflow error. Any other exception ends the program.
template <class Result>
std::optional<Result> Unless(Result (*read)(std::u16string_view), std::u16string_view text) {
  try {
    return read(text);
  } catch (const toolkit::RuntimeError& error) {
    Demand(error.Number() == toolkit::kOverflow, "the only error is the overflow");
    return std::nullopt;
  }
}

/// The number that the text starts with, in ASCII; empty where there is none.
std::string NumberIn(std::u16string_view text) {
  std::string number;
  bool digits = false;
  for (const char16_t c : text) {
    if (c == u'.' ? number.find('.') != std::string::npos : c < u'0' || c > u'9') {
      break;
    }
    digits = digits || c != u'.';
    number.push_back(static_cast<char>(c));
  }
  return digits ? number : std::string();
}

/// A tie goes to the even neighbour, so the last amount of the type keeps less than half a unit above it.
void CheckCurrency(std::u16string_view text, const std::string& number) {
  const std::size_t point = std::min(number.find('.'), number.size());
  const std::string decimals = number.substr(std::min(point + 1, number.size()));
  const std::size_t scale = std::max<std::size_t>(decimals.size(), 4) - 4;
  const BigDecimal exact =
      BigDecimal(number.substr(0, point) + decimals).Shifted(decimals.size() < 4 ? 4 - decimals.size() : 0);
  const BigDecimal unit = BigDecimal("1").Shifted(scale);
  const auto amount = Unless(&AmountOf, text);
  const BigDecimal largest = BigDecimal(std::to_string(std::numeric_limits<std::int64_t>::max())).Shifted(scale);
  const bool beyond = largest < exact && exact.Distance(largest).Doubled() >= unit;
  Demand(amount.has_value() != beyond, "an amount overflows where it is beyond the currency type, and only there");
  if (amount) {
    Demand(amount->tenThousandths >= 0, "no amount is negative");
    const BigDecimal off = BigDecimal(std::to_string(amount->tenThousandths)).Shifted(scale).Distance(exact).Doubled();
    Demand(off < unit || (off == unit && amount->tenThousandths % 2 == 0), "an amount is rounded half to even");
  }
}

std::u16string separator;

/// The number with 15 significant digits, the last of them rounded: "d.dddddddddddddde-dd".
std::string Scientific(double value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.14e", value);
  return buffer;
}

/// The text that the number has to have, laid out by moving the point through a run of digits.
std::string Expected(double value) {
  const std::string scientific = Scientific(value);
  const std::size_t e = scientific.find('e');
  const int exponent = std::atoi(scientific.c_str() + e + 1);
  std::string digits = scientific.substr(0, 1) + scientific.substr(2, e - 2);
  digits.erase(digits.find_last_not_of('0') + 1);
  const int length = static_cast<int>(digits.size());
  if (exponent >= 15 || length - 1 - exponent > 15) {
    return digits.insert(1, length > 1 ? "." : "") + "E" + scientific.substr(e + 1);
  }
  for (int zeros = exponent; zeros < 0; ++zeros) {
    digits.insert(0, "0");
  }
  const auto whole = static_cast<std::size_t>(std::max(exponent, 0)) + 1;
  digits.append(whole > digits.size() ? whole - digits.size() : 0, '0');
  return digits.size() > whole ? digits.insert(whole, ".") : digits;
}

std::u16string WithSeparator(const std::string& number) {
  std::u16string text;
  for (const char c : number) {
    text += c == '.' ? separator : std::u16string(1, static_cast<char16_t>(c));
  }
  return text;
}

void CheckNumberText(std::u16string_view text, const std::string& number) {
  const double value = std::strtod(number.c_str(), nullptr);
  const auto written = Unless(&NumberTextOf, text);
  Demand(written.has_value() == std::isfinite(value),
         "a number text overflows where no double holds it, and only there");
  if (written) {
    const std::string expected = value == 0 ? "0" : Expected(value);
    Demand(*written == WithSeparator(expected), "a number text has its 15 significant digits and no more");
    const double read = std::strtod(expected.c_str(), nullptr);
    // Rounded to 15 digits, the largest numbers of the type are beyond it.
    Demand(!std::isfinite(read) || Scientific(read) == Scientific(value), "a number text reads as its number");
  }
}

void Check(std::span<const std::uint8_t> input) {
  ByteReader reader(input.first(std::min<std::size_t>(input.size(), 1)));
  const std::uint8_t choice = reader.Byte();
  separator = choice == '0' ? std::u16string() : std::u16string(choice % 8 == 7 ? 2 : 1, choice % 2 == 0 ? u'.' : u',');
  SetDecimalSeparatorSource([] { return separator; });
  const std::u16string text = TextOf(input.subspan(std::min<std::size_t>(input.size(), 1)));
  const std::string number = NumberIn(text);
  const std::u16string_view leading = LeadingNumber(text);
  Demand(std::string(leading.begin(), leading.end()) == number, "the leading number ends where the number ends");
  CheckCurrency(text, number);
  CheckNumberText(text, number);
}

}  // namespace
}  // namespace qorltst::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qorltst::fuzz::Check({data, size});
  return 0;
}
