// What the fields of a display look like: one predicate a shape, used by the tables of the line kinds.
#pragma once

#include <algorithm>
#include <string_view>

namespace qorltst::simulator {

constexpr bool IsDigit(char16_t character) { return character >= u'0' && character <= u'9'; }
constexpr bool IsLetter(char16_t character) { return character >= u'A' && character <= u'Z'; }

/// At least one digit, and nothing else.
constexpr bool IsDigits(std::u16string_view text) { return !text.empty() && std::ranges::all_of(text, IsDigit); }

/// At least one capital letter, and nothing else.
constexpr bool IsLetters(std::u16string_view text) { return !text.empty() && std::ranges::all_of(text, IsLetter); }

/// One capital letter, such as a pricing id.
constexpr bool IsOneLetter(std::u16string_view text) { return text.size() == 1 && IsLetters(text); }

/// A code of at least one capital letter or digit, such as a mode indicator or a corporate code.
constexpr bool IsCode(std::u16string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char16_t c) { return IsLetter(c) || IsDigit(c); });
}

/// Three capital letters.
constexpr bool IsCurrencyCode(std::u16string_view text) { return text.size() == 3 && IsLetters(text); }

/// Two cities of three capital letters each.
constexpr bool IsCityPair(std::u16string_view text) { return text.size() == 6 && IsLetters(text); }

/// A city or airport of three capital letters.
constexpr bool IsCity(std::u16string_view text) { return text.size() == 3 && IsLetters(text); }

/// Two capital letters or digits, not both digits.
constexpr bool IsCarrier(std::u16string_view text) { return text.size() == 2 && IsCode(text) && !IsDigits(text); }

/// Up to four digits and perhaps a letter.
constexpr bool IsFlightNumber(std::u16string_view text) {
  const std::u16string_view number = !text.empty() && IsLetter(text.back()) ? text.substr(0, text.size() - 1) : text;
  return number.size() <= 4 && IsDigits(number);
}

/// Two capital letters, such as a reservation status or a tax's nature.
constexpr bool IsTwoLetters(std::u16string_view text) { return text.size() == 2 && IsLetters(text); }

/// A letter and two letters or digits.
constexpr bool IsPassengerType(std::u16string_view text) {
  return text.size() == 3 && IsCode(text) && IsLetter(text.front());
}

/// Hour and minute of a day, in four digits.
constexpr bool IsTime(std::u16string_view text) {
  return text.size() == 4 && IsDigits(text) && text.substr(0, 2) < u"24" && text.substr(2) < u"60";
}

/// Letters, blanks, hyphens and apostrophes, a letter first.
constexpr bool IsName(std::u16string_view text) {
  return !text.empty() && IsLetter(text.front()) &&
         std::ranges::all_of(text, [](char16_t c) { return IsLetter(c) || c == u' ' || c == u'-' || c == u'\''; });
}

/// A city, two characters of an agency and four digits.
constexpr bool IsOffice(std::u16string_view text) {
  return text.size() == 9 && IsLetters(text.substr(0, 3)) && IsCode(text.substr(3, 2)) && IsDigits(text.substr(5));
}

/// Two capital letters.
constexpr bool IsDutyCode(std::u16string_view text) { return text.size() == 2 && IsLetters(text); }

/// Where a ticket is sold and issued, seen from the journey's first country.
constexpr bool IsSalesId(std::u16string_view text) {
  return text == u"SITI" || text == u"SITO" || text == u"SOTI" || text == u"SOTO";
}

/// Digits, and after a point more digits.
constexpr bool IsAmount(std::u16string_view text) {
  const std::size_t point = text.find(u'.');
  return IsDigits(text.substr(0, point)) && (point == std::u16string_view::npos || IsDigits(text.substr(point + 1)));
}

}  // namespace qorltst::simulator
