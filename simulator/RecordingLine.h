// One screen line of a session file, with its escapes resolved.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {

struct RecordingLine {
  std::u16string text;
  /// False for a line that ends with "\.": nothing follows its last character.
  bool isPadded = true;
  /// True for a line with an escape: it stays even where it is blank and ends its screen.
  bool isKept = false;
};

/// Raises `std::invalid_argument` for an unknown escape, a raw control character or more than 80 characters.
[[nodiscard]] RecordingLine ReadRecordingLine(std::u16string_view line);

}  // namespace qorltst::simulator
