// One `Invoke` for every class: finds the row, sorts the arguments as scripts send them, reads, calls or sets.
#pragma once

#include "automation/Com.h"
#include "automation/DualTable.h"

namespace qorltst::automation {

/// A call as the client made it. `result`, `exception` and `argument` may be null.
struct DispatchCall {
  WORD flags;
  const DISPPARAMS& parameters;
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* argument;
};

/// Throws what `TranslateForInvoke` translates.
[[nodiscard]] HRESULT InvokeMember(const Dual& self, DISPID id, const DispatchCall& call);

}  // namespace qorltst::automation
