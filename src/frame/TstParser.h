// Turns a display text into the object model: parses it with the toolkit and hands each top-level node to its builder.
#pragma once

#include <cstdint>
#include <string_view>

#include "frame/Frame.h"
#include "toolkit/ParseNode.h"

namespace qorltst {

class TST;

/// One for each retrieval. Not visible to callers.
class TstParser : public Frame {
 public:
  explicit TstParser(toolkit::Toolkit& toolkit) : Frame(toolkit) {}

  /// Fills `tst` from the whole display text. Returns 0, 1000 (not a TST), 1005 (warnings) or 1006 (parse error).
  /// Raises 0x8004270F under "TstParser:ParseTst Method" on any unexpected failure; what was stored until then stays.
  std::int32_t ParseTst(std::u16string text, TST& tst);

  // What the builders use.
  using Frame::Toolkit;
  using Frame::Traced;

 private:
  std::int32_t Parse(std::u16string text, TST& tst);
  std::int32_t WalkNodes(toolkit::ParseNode& root, TST& tst);
  void TraceWarning(toolkit::NodeTypeId type);
};

}  // namespace qorltst
