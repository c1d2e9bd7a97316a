// IEnumVARIANT over a cursor of ours.
#pragma once

#include "automation/Com.h"
#include "frame/Object.h"

namespace qorltst::automation {

/// A new enumerator at the cursor's position. It keeps the library loaded.
[[nodiscard]] ComRef<IUnknown> NewEnumerator(Ref<Cursor> cursor);

}  // namespace qorltst::automation
