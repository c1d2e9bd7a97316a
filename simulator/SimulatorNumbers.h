// The simulator's own numbers: what its parser answers besides success, and the node ids that it adds.
#pragma once

#include <cstdint>

#include "toolkit/NodeTypeId.h"

namespace qorltst::simulator {

/// What `ScreenParser::Parse` answers for a text that it cannot read. The parser then has no children and
/// its error text says where and why.
enum ParseFailure : std::int32_t {
  kDamagedText = 10001,    ///< a control character or half a surrogate pair
  kDamagedHeader = 10002,  ///< a header line whose element number cannot be read
  kUnknownMode = 10003,    ///< a parse mode other than `toolkit::kParseMode`
};

/// A line inside a TST that no line kind recognises. Always with a warning.
inline constexpr toolkit::NodeTypeId kUnknownLine{1};

/// One passenger of a names line, below the container of all.
inline constexpr toolkit::NodeTypeId kPassenger{10};

/// One tax of a tax line, below the container of all.
inline constexpr toolkit::NodeTypeId kTax{11};

/// A node's item that is asked for by its position and read as a buffer.
inline constexpr toolkit::NodeTypeId kSubField{12};

}  // namespace qorltst::simulator
