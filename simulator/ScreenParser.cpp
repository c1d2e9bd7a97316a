// The parser object; the reading itself is DisplayParser.cpp. See ScreenParser.h.
#include "simulator/ScreenParser.h"

#include "simulator/DisplayError.h"
#include "simulator/DisplayParser.h"
#include "simulator/SimulatorNumbers.h"

namespace qorltst::simulator {

std::int32_t ScreenParser::Parse(std::u16string_view text, std::int32_t mode) {
  RemoveChildren();
  SetText(text);
  SetErrorText({});
  try {
    Read(text, mode);
    return toolkit::kParseSuccess;
  } catch (const DisplayError& error) {
    SetErrorText(error.Reason());
    return error.Result();
  }
}

void ScreenParser::Read(std::u16string_view text, std::int32_t mode) {
  if (mode != toolkit::kParseMode) {
    throw DisplayError(kUnknownMode, u"unknown parse mode");
  }
  for (const Ref<TreeNode>& node : ParseDisplay(text)) {
    Add(node);
  }
}

}  // namespace qorltst::simulator
