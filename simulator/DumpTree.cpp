// The tree printer; it asks nodes through the toolkit's interface only. See DumpTree.h.
#include "simulator/DumpTree.h"

#include <cmath>

#include "simulator/HostDate.h"
#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

std::string Quoted(std::u16string_view text) {
  std::string quoted = "\"";
  for (const char character : ToUtf8(text)) {
    if (character == '"' || character == '\\') {
      quoted += '\\';
    }
    quoted += character;
  }
  return EscapeControls(quoted + '"');
}

void PrintNode(toolkit::ParseNode& node, std::string& dump) {
  dump += std::to_string(static_cast<std::int32_t>(node.TypeId())) + ' ' + Quoted(node.Text());
  if (const toolkit::Date date = node.DateValue(); std::fpclassify(date.days) != FP_ZERO) {
    dump += " = " + FormatDate(date);
  }
  const std::u16string error = node.ErrorText();
  if (node.HasWarning()) {
    dump += " ! " + EscapeControls(ToUtf8(error));
  } else if (!error.empty()) {
    dump += " ? " + EscapeControls(ToUtf8(error));
  }
  dump += '\n';
}

void PrintTree(toolkit::ParseNode& node, std::size_t indent, std::string& dump) {
  const bool isRoot = node.TypeId() == toolkit::NodeTypeId::None;
  if (!isRoot) {
    dump.append(indent, ' ');
    PrintNode(node, dump);
  }
  const auto children = node.Children();
  while (const auto child = children->Next()) {
    PrintTree(*child, isRoot ? indent : indent + 2, dump);
  }
}

}  // namespace

std::string DumpTree(toolkit::ParseNode& node) {
  std::string dump;
  PrintTree(node, 0, dump);
  return dump;
}

}  // namespace qorltst::simulator
