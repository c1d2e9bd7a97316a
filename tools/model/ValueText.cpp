// See ValueText.h.
#include "tools/model/ValueText.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

#include "simulator/Utf.h"

namespace qorltst::model {
namespace {

constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::uint64_t kAmountUnit = 10000;
constexpr std::uint64_t kDay = 86'400'000;  // milliseconds

/// 30 December 1899, where automation starts to count days.
constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr double kFirstDay = -693'593;  // 1 January of the year 1
constexpr double kDayAfterLast = 2'958'466;

struct Range {
  char16_t first;
  char16_t last;
};

constexpr std::array kUnprintable{Range{0x00, 0x1F},     Range{0x7F, 0x9F},     Range{0x061C, 0x061C},
                                  Range{0x200E, 0x200F}, Range{0x2028, 0x202E}, Range{0x2066, 0x2069},
                                  Range{0xFEFF, 0xFEFF}};

constexpr bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

bool IsPrintable(char16_t unit) {
  return std::ranges::none_of(kUnprintable,
                              [unit](const Range& range) { return unit >= range.first && unit <= range.last; });
}

/// The number with zeros in front, `width` characters at least.
std::string Padded(std::uint64_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// The time of day, empty at midnight.
std::string TimeText(std::uint64_t milliseconds) {
  if (milliseconds == 0) {
    return {};
  }
  return 'T' + Padded(milliseconds / 3'600'000, 2) + ':' + Padded(milliseconds / 60'000 % 60, 2) + ':' +
         Padded(milliseconds / 1000 % 60, 2) + '.' + Padded(milliseconds % 1000, 3);
}

}  // namespace

std::string Hexadecimal(unsigned number, std::size_t digits) {
  std::string written;
  while (digits-- > 0) {
    written += kDigits[(number >> (4 * digits)) & 0xFU];
  }
  return written;
}

std::string AmountText(Currency amount) {
  const bool isNegative = amount.tenThousandths < 0;
  const auto bits = static_cast<std::uint64_t>(amount.tenThousandths);
  const std::uint64_t size = isNegative ? 0 - bits : bits;
  return (isNegative ? "-" : "") + std::to_string(size / kAmountUnit) + '.' + Padded(size % kAmountUnit, 4);
}

std::optional<std::string> IsoDate(Date date) {
  // The fraction counts on from the whole day before noon and after it alike, also where the days are negative.
  double day = std::trunc(date.days);
  if (!(day >= kFirstDay && day < kDayAfterLast)) {
    return std::nullopt;
  }
  auto milliseconds = static_cast<std::uint64_t>(std::round(std::abs(date.days - day) * static_cast<double>(kDay)));
  if (milliseconds == kDay) {
    milliseconds = 0;
    day += 1;
  }
  const std::chrono::year_month_day calendar{kDayZero + std::chrono::days(static_cast<int>(day))};
  return Padded(static_cast<unsigned>(static_cast<int>(calendar.year())), 4) + '-' +
         Padded(static_cast<unsigned>(calendar.month()), 2) + '-' + Padded(static_cast<unsigned>(calendar.day()), 2) +
         TimeText(milliseconds);
}

std::string PrintableText(std::u16string_view text) {
  std::string printable;
  std::size_t plain = 0;
  const auto takePlain = [&](std::size_t end) { printable += simulator::ToUtf8(text.substr(plain, end - plain)); };
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (IsHigh(text[at]) && at + 1 < text.size() && IsLow(text[at + 1])) {
      ++at;
    } else if (IsHigh(text[at]) || IsLow(text[at]) || !IsPrintable(text[at])) {
      takePlain(at);
      printable += "\\u" + Hexadecimal(text[at], 4);
      plain = at + 1;
    }
  }
  takePlain(text.size());
  return printable;
}

std::string PrintableText(std::string_view text) {
  std::string printable;
  while (const auto damage = simulator::FindDamage(text)) {
    printable += PrintableText(simulator::ToUtf16(text.substr(0, *damage)));
    printable += "\\x" + Hexadecimal(static_cast<unsigned char>(text[*damage]), 2);
    text.remove_prefix(*damage + 1);
  }
  return printable + PrintableText(simulator::ToUtf16(text));
}

std::string NameText(std::u16string_view name) {
  std::string text(name.size(), ' ');
  std::ranges::transform(name, text.begin(), [](char16_t unit) { return static_cast<char>(unit); });
  return text;
}

}  // namespace qorltst::model
