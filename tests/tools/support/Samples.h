// The sample displays as models, and objects of every class with something in every property.
#pragma once

#include <string>
#include <vector>

#include "frame/TST.h"
#include "simulator/SimulatedToolkit.h"

namespace qorltst::testing {

/// The ticket of a sample in examples/displays, by its command.
[[nodiscard]] Ref<TST> SampleTicket(const std::string& file, std::u16string_view command = u"TQT");

/// The path of a sample.
[[nodiscard]] std::string SamplePath(const std::string& file);

/// All samples, in the order of their names.
[[nodiscard]] std::vector<std::string> SamplePaths();

/// Puts this text, and values that are not empty, into every property of the object itself.
void FillProperties(Object& object, std::u16string_view text);

/// The amount and the day that `FillProperties` puts in.
inline constexpr Currency kFilledAmount{-5001};
inline constexpr Date kFilledDate{46376.25};

}  // namespace qorltst::testing
