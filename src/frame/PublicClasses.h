// Every class that automation shows, in the order of the type library.
#pragma once

#include <span>

#include "frame/ClassDescription.h"

namespace qorltst {

[[nodiscard]] std::span<const ClassDescription* const> PublicClasses() noexcept;

}  // namespace qorltst
