// A whole model as a caller sees it: every object that a root hands out, and every property of each.
#pragma once

#include <functional>
#include <vector>

#include "support/Client.h"

namespace qorltst::automation::test {

/// Reads every property of every object below this one and visits each answer.
void ReadEverything(const ComRef<IDispatch>& root, const std::function<void(const Answer&)>& visit);

/// Every object of the model, the root first, collections and an enumerator over each of them included.
[[nodiscard]] std::vector<ComRef<IUnknown>> EveryInterface(const ComRef<IDispatch>& root);

}  // namespace qorltst::automation::test
