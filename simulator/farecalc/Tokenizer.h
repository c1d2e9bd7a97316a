// Cuts the text of a fare calculation into tokens.
#pragma once

#include <vector>

#include "simulator/Field.h"
#include "simulator/farecalc/Token.h"

namespace qorltst::simulator {

/// Runs of capital letters, amounts ("25", "12.50") and single other characters; blanks only separate. No token runs
/// over the end of a screen line, because the lines that continue one start with a blank. The tokens are views into
/// the text.
[[nodiscard]] std::vector<Token> Tokenize(const Field& text);

}  // namespace qorltst::simulator
