// The values that properties hold and that methods take and give.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "toolkit/HostSession.h"
#include "toolkit/ParseNode.h"
#include "toolkit/RefCounted.h"

namespace qorltst {

using toolkit::Date;
using toolkit::Make;
using toolkit::Ref;

class Object;
class Cursor;

/// A fixed-point amount with four decimal places, counted in ten-thousandths.
struct Currency {
  std::int64_t tenThousandths = 0;
  friend bool operator==(const Currency&, const Currency&) = default;
};

/// How a value is passed. `Short`, `Any` and `HostSession` are parameter types only.
enum class ValueType : std::uint8_t {
  Nothing,  ///< no result
  Long,     ///< 32-bit signed integer
  Short,    ///< 16-bit signed integer
  Boolean,
  Date,
  Currency,
  String,
  Object,       ///< an object of this component, or an absent one
  Automation,   ///< any automation object: one of ours, or a foreign one behind an `Object`
  HostSession,  ///< the caller's session, or an absent one
  Enumerator,   ///< a `Cursor`
  Any,          ///< any value; a string or a number arrives as such, the rest as nothing
};

/// A value on its way in or out. The first alternative also stands for an argument that was left out.
using Value = std::variant<std::monostate, std::int32_t, bool, Date, Currency, std::u16string, Ref<Object>,
                           Ref<toolkit::HostSession>, Ref<Cursor>>;

/// The text that a value is; empty for a left-out argument.
[[nodiscard]] inline std::u16string_view TextIn(const Value& value) noexcept {
  const auto* const text = std::get_if<std::u16string>(&value);
  return text != nullptr ? std::u16string_view(*text) : std::u16string_view();
}

/// The number that a value is; 0 for a left-out argument.
[[nodiscard]] inline std::int32_t NumberIn(const Value& value) noexcept {
  const auto* const number = std::get_if<std::int32_t>(&value);
  return number != nullptr ? *number : 0;
}

}  // namespace qorltst
