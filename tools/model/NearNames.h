// What somebody may have meant who wrote a name that there is not.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace qorltst::model {

/// "; did you mean A, B or C?" with the known names that are near, the nearest first; empty where none is.
[[nodiscard]] std::string DidYouMean(std::u16string_view wanted, const std::set<std::u16string_view>& known);

}  // namespace qorltst::model
