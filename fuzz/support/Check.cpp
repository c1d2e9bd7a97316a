// See Check.h.
#include "fuzz/support/Check.h"

#include <cstdlib>
#include <iostream>

namespace qorltst::fuzz {

void Demand(bool holds, std::string_view message) {
  if (!holds) {
    std::cerr << "does not hold: " << message << std::endl;
    std::abort();
  }
}

}  // namespace qorltst::fuzz
