// Registers the module's classes so that clients can create them by name, and takes that back.
#pragma once

#include <string>

#include "automation/Library.h"
#include "automation/Registry.h"

namespace qorltst::automation {

/// Writes every key, or leaves the registry as it was: a failure half-way is undone. A name that belongs to another
/// class already is not taken over; nothing is written then.
[[nodiscard]] HRESULT Register(const Library& library, const std::u16string& modulePath, Registry& registry) noexcept;

/// Removes what `Register` wrote, as far as it is there. A failure does not stop the rest; the first one is told.
[[nodiscard]] HRESULT Unregister(const Library& library, Registry& registry) noexcept;

/// What `Register` answers where a name belongs to another class.
inline constexpr HRESULT kNameTaken = static_cast<HRESULT>(0x80040201);

}  // namespace qorltst::automation
