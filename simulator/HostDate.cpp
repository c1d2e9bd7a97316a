// Calendar arithmetic of the display's dates. See HostDate.h.
#include "simulator/HostDate.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <sstream>

#include "simulator/FieldShape.h"

namespace qorltst::simulator {
namespace {

constexpr std::array<std::u16string_view, 12> kMonths{u"JAN", u"FEB", u"MAR", u"APR", u"MAY", u"JUN",
                                                      u"JUL", u"AUG", u"SEP", u"OCT", u"NOV", u"DEC"};

constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / std::chrono::December / 30};

/// Day counts of the years 1 to 9999.
constexpr double kFirstDay = -693593;
constexpr double kLastDay = 2958465;

int TwoDigits(std::u16string_view text) { return (text[0] - u'0') * 10 + (text[1] - u'0'); }

/// The date of "12NOV" in the given year; it may be a day that the month does not have.
std::optional<std::chrono::year_month_day> ReadDay(std::u16string_view text, int year) {
  if (text.size() != 5 || !IsDigits(text.substr(0, 2))) {
    return std::nullopt;
  }
  const auto* const month = std::ranges::find(kMonths, text.substr(2));
  if (month == kMonths.end()) {
    return std::nullopt;
  }
  return std::chrono::year{year} / std::chrono::month(static_cast<unsigned>(month - kMonths.begin() + 1)) /
         std::chrono::day(static_cast<unsigned>(TwoDigits(text)));
}

}  // namespace

std::optional<toolkit::Date> ReadHostDate(std::u16string_view text) {
  if (text.size() != 7 || !IsDigits(text.substr(5))) {
    return std::nullopt;
  }
  const auto day = ReadDay(text.substr(0, 5), 2000 + TwoDigits(text.substr(5)));
  if (!day || !day->ok()) {
    return std::nullopt;
  }
  return toolkit::Date{static_cast<double>((std::chrono::sys_days(*day) - kDayZero).count())};
}

bool IsDayAndMonth(std::u16string_view text) {
  constexpr int kLeapYear = 2000;
  const auto day = ReadDay(text, kLeapYear);
  return day && day->ok();
}

std::string FormatDate(toolkit::Date date) {
  std::ostringstream text;
  if (!(date.days >= kFirstDay && date.days <= kLastDay) || std::fpclassify(std::fmod(date.days, 1.0)) != FP_ZERO) {
    text.precision(15);
    text << date.days;
    return text.str();
  }
  const std::chrono::year_month_day day(kDayZero + std::chrono::days(static_cast<std::int64_t>(date.days)));
  const auto number = [&text](auto value, int width) {
    text.width(width);
    text.fill('0');
    text << value;
  };
  number(static_cast<int>(day.year()), 4);
  text << '-';
  number(static_cast<unsigned>(day.month()), 2);
  text << '-';
  number(static_cast<unsigned>(day.day()), 2);
  return text.str();
}

}  // namespace qorltst::simulator
