// The line kinds of a display: how each is recognised, what it becomes and who reads it.
#pragma once

#include "simulator/LineReader.h"

namespace qorltst::simulator {

struct LineKind {
  /// The word at the first column.
  std::u16string_view label;
  /// The type of the line's node; `None` for a line that is left out.
  NodeTypeId type = NodeTypeId::None;
  /// Adds the fields to the line's node. What it leaves unread becomes a warning.
  void (*read)(LineReader&) = nullptr;
  /// A further condition on the line, for a label that occurs elsewhere too.
  bool (*recognises)(const DisplayLine&) = nullptr;
};

/// The kind of this line, or nothing. The table of all kinds stands in LineKind.cpp.
[[nodiscard]] const LineKind* FindLineKind(const DisplayLine& line);

}  // namespace qorltst::simulator
