// What a fuzz program holds against its input: a condition that does not hold ends the program, and the fuzzer keeps
// the input.
#pragma once

#include <string_view>

namespace qorltst::fuzz {

/// Ends the program with the message unless the condition holds.
void Demand(bool holds, std::string_view message);

}  // namespace qorltst::fuzz
