// Class factories for the classes that callers can create.
#pragma once

#include "automation/Com.h"

namespace qorltst::automation {

/// What `DllGetClassObject` answers for this module's library.
[[nodiscard]] HRESULT GetClassFactory(REFCLSID classId, REFIID interfaceId, void** out) noexcept;

}  // namespace qorltst::automation
