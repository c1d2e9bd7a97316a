// Readable test failures for UTF-16 texts and log entries.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Object.h"
#include "frame/Value.h"
#include "tests/support/TestToolkit.h"

namespace qorltst {

inline void PrintTo(const Currency& amount, std::ostream* out) { *out << amount.tenThousandths << "/10000"; }

namespace testing {

/// For messages only: what is not ASCII is written as its number.
[[nodiscard]] std::string Readable(std::u16string_view text);

inline void PrintTo(const Entry& entry, std::ostream* out) {
  *out << entry.kind << " [" << Readable(entry.source) << "] " << entry.number << " \"" << Readable(entry.message)
       << '"';
}

/// A text property read through the class's table, as automation reads it.
[[nodiscard]] std::u16string TextOf(Object& object, std::u16string_view property);
[[nodiscard]] Currency CurrencyOf(Object& object, std::u16string_view property);
[[nodiscard]] bool FlagOf(Object& object, std::u16string_view property);
[[nodiscard]] double DateOf(Object& object, std::u16string_view property);
[[nodiscard]] std::int32_t NumberOf(Object& object, std::u16string_view property);
/// An object or collection property; null where it is absent.
[[nodiscard]] Object* ObjectOf(Object& object, std::u16string_view property);
/// How many objects a collection property holds.
[[nodiscard]] std::int32_t CountOf(Object& object, std::u16string_view property);
/// The object at a 1-based position of a collection property.
[[nodiscard]] Object& ItemOf(Object& object, std::u16string_view property, std::int32_t index);

/// Every text property that is not empty, "Name=value" in interface order; a test that compares it sees all that was
/// set and all that was not.
[[nodiscard]] std::vector<std::string> FilledTexts(Object& object);

}  // namespace testing
}  // namespace qorltst
