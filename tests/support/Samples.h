// The recorded displays that stand in examples/displays.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "simulator/Recording.h"

namespace qorltst::testing {

struct Sample {
  /// The file's name without its ending.
  std::string name;
  simulator::Recording recording;
};

/// For the names of parameterised tests and for messages.
inline void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.name; }

/// All of them, by name, read once.
[[nodiscard]] const std::vector<Sample>& Samples();

/// All, or in the short form of the tests those few that together use every class that a retrieval fills.
[[nodiscard]] std::vector<Sample> SamplesToWearOut();

/// Whether the long form of the tests is asked for: the environment variable QORL_LONG is set.
[[nodiscard]] bool LongForm();

/// At every how many-th call a test lets something go wrong: at each, but under the sanitizers, which make it ten times
/// slower, at each of the long form only.
[[nodiscard]] std::size_t FaultStep();

/// One of them; the test fails to run where there is none of this name.
[[nodiscard]] const Sample& SampleNamed(const std::string& name);

}  // namespace qorltst::testing
