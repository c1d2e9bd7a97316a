// Reads the values that a member's call gets. They have their parameter's type, or none where they were left out.
#pragma once

#include <span>

#include "frame/Value.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {

using Arguments = std::span<const Value>;

/// Numbers other than zero are true.
[[nodiscard]] inline bool FlagArgument(const Value& argument) {
  const auto* const flag = std::get_if<bool>(&argument);
  return flag != nullptr ? *flag : NumberIn(argument) != 0;
}

/// A number that counts calls, from 1 on. Raises the runtime error 5 for another one.
[[nodiscard]] inline std::size_t CallArgument(const Value& argument) {
  const std::int32_t number = NumberIn(argument);
  if (number < 1) {
    throw toolkit::RuntimeError(toolkit::kInvalidCall);
  }
  return static_cast<std::size_t>(number);
}

}  // namespace qorltst::simulator
