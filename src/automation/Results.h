// The component's values on their way out: the storage of results, in virtual calls and in variants.
// Counterpart: ArgumentValues.h.
#pragma once

#include "automation/Com.h"
#include "frame/Member.h"

namespace qorltst::automation {

/// The type that reading a member gives.
[[nodiscard]] ValueType ResultTypeOf(const Member& member) noexcept;

/// How a variant tells this type.
[[nodiscard]] VARTYPE VariantTypeOf(ValueType type) noexcept;

/// Makes the storage of a result of this type empty: zero, a null string, a null interface.
void ClearStorage(ValueType type, void* storage) noexcept;

/// Reads a plain property into storage of its type, under its guard.
void ReadProperty(Object& object, const Member& member, void* storage);

/// Moves a method's result into storage of its type.
void StoreValue(Value value, ValueType type, void* storage);

}  // namespace qorltst::automation
