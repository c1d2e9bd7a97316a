// A parse tree as indented text, for tests and for people who write displays.
#pragma once

#include <string>

#include "toolkit/ParseNode.h"

namespace qorltst::simulator {

/// One line a node, children two columns further in: type id, text in quotes, then the date value where it is
/// not zero ("= 2026-12-20"), then the error text after "!" (a warning) or "?" (an error text without one).
/// A node without a type (a root) is left out and its children start at the margin. Lines end with a line feed;
/// quotes, backslashes and control characters are escaped; the encoding is UTF-8.
[[nodiscard]] std::string DumpTree(toolkit::ParseNode& node);

}  // namespace qorltst::simulator
