// What a foreign object may answer besides what it should: failures of every make, and values of every type.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "automation/Com.h"

namespace qorltst::automation::test {

struct OddAnswer {
  std::string name;
  /// Stores a result and perhaps a report (none is wanted where `info` is null). The receiver frees what is stored.
  std::function<HRESULT(VARIANT& result, EXCEPINFO* info)> give;
};

/// Calls that fail.
[[nodiscard]] const std::vector<OddAnswer>& Failures();

/// Calls that succeed with no object or no value: Empty, Null, Nothing, and for an enumerator its end.
[[nodiscard]] const std::vector<OddAnswer>& AbsentAnswers();

/// Calls that succeed with a value of each type that a variant may name, in itself, by reference and as an array,
/// null pointers included.
[[nodiscard]] const std::vector<OddAnswer>& OddValues();

/// All three.
[[nodiscard]] const std::vector<OddAnswer>& OddAnswers();

/// Variants of every type for arguments; nothing in them is given away. They live as long as the program.
[[nodiscard]] std::span<const VARIANT> OddArguments();

}  // namespace qorltst::automation::test
