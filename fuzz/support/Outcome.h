// What is left of a retrieval when its objects are gone, to be compared with that of another one.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "simulator/LogEntry.h"

namespace qorltst::fuzz {

struct Outcome {
  std::int32_t result = 0;
  std::u16string model;
  std::vector<simulator::LogEntry> log;
  friend bool operator==(const Outcome&, const Outcome&) = default;

  /// Whether the parser came to the end of its walk: only then the result says whether there were warnings.
  [[nodiscard]] bool Walked() const;
};

/// Retrieves, and ends the program unless the result is one that retrievals have, no object is left of it, and doing it
/// once more gives the same.
Outcome CheckedOutcome(const std::function<Outcome()>& retrieve);

}  // namespace qorltst::fuzz
