// Automation's values on their way in: words of virtual calls and variants. Counterpart: Results.h.
#pragma once

#include <string_view>

#include "automation/Com.h"
#include "automation/DualTable.h"
#include "frame/Member.h"

namespace qorltst::automation {

/// An argument of a virtual call.
[[nodiscard]] Value FromWord(Word word, ValueType type);

/// An argument of `Invoke`, converted by the usual rules. Throws a `DispatchFailure` where that cannot be done;
/// `argument` is its place in the caller's array.
[[nodiscard]] Value FromVariant(const VARIANT& variant, ValueType type, UINT argument);

/// The number of a method's parameter of this name, or DISPID_UNKNOWN.
[[nodiscard]] DISPID ParameterId(const Member& member, std::u16string_view name) noexcept;

}  // namespace qorltst::automation
