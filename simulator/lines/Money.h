// The currency and amount that open the fields of all fare lines.
#pragma once

#include <span>

#include "simulator/LineReader.h"

namespace qorltst::simulator {

/// Reads a currency code (147) and an amount, which becomes a node of `amountType`. The amount may be one of `words`
/// instead. A field that is not of its shape is left for what follows, with a warning that it is expected; a field
/// that only starts like an amount becomes the amount, with a warning.
void ReadMoney(LineReader& reader, NodeTypeId amountType, std::span<const std::u16string_view> words = {});

}  // namespace qorltst::simulator
