// The way back from a tree to an input, for first inputs. See Scenario.h.
#include <algorithm>
#include <bit>

#include "fuzz/support/ByteReader.h"
#include "fuzz/support/NodeCode.h"
#include "fuzz/support/Scenario.h"

namespace qorltst::fuzz {
namespace {

constexpr std::size_t kLongestText = 255;

void WriteText(std::u16string_view text, std::string& input) {
  const std::string bytes = BytesOf(text).substr(0, kLongestText);
  input += static_cast<char>(bytes.size());
  input += bytes;
}

void WriteNumber(std::uint64_t number, int bytes, std::string& input) {
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    input += static_cast<char>(number >> static_cast<unsigned>(shift) & 0xFFU);
  }
}

void WriteType(NodeTypeId type, std::string& input) {
  const auto* const found = std::ranges::find(kNodeTypes, type);
  if (found != kNodeTypes.end() && found != kNodeTypes.begin()) {
    input += static_cast<char>(found - kNodeTypes.begin());
  } else {
    input += static_cast<char>(kAnyType);
    WriteNumber(static_cast<std::uint32_t>(type), 4, input);
  }
}

/// The children, or where there are none the node's own items.
std::vector<Ref<toolkit::BufferOwner>> ItemsOf(simulator::TreeNode& node) {
  std::vector<Ref<toolkit::BufferOwner>> items;
  for (std::size_t i = 0; i < node.ChildCount(); ++i) {
    items.emplace_back(node.ChildAt(i));
  }
  while (node.ChildCount() == 0) {
    const auto item = node.Item(static_cast<std::int32_t>(items.size()) + 1);
    if (!item) {
      break;
    }
    items.push_back(item);
  }
  return items;
}

void WriteNodes(simulator::TreeNode& parent, std::string& input) {
  for (const Ref<toolkit::BufferOwner>& item : ItemsOf(parent)) {
    auto& node = dynamic_cast<simulator::TreeNode&>(*item);
    const bool hasItems = !ItemsOf(node).empty();
    WriteType(node.TypeId(), input);
    input += static_cast<char>(kHasText | (node.HasWarning() ? kHasWarning : 0) |
                               (node.ErrorText().empty() ? 0 : kHasErrorText) |
                               (node.DateValue().days == 0 ? 0 : kHasDate) | (hasItems ? kHasChildren : 0));
    WriteText(node.Text(), input);
    if (!node.ErrorText().empty()) {
      WriteText(node.ErrorText(), input);
    }
    if (const double days = node.DateValue().days; days != 0) {
      WriteNumber(std::bit_cast<std::uint64_t>(days), 8, input);
    }
    if (hasItems) {
      WriteNodes(node, input);
    }
  }
  input += static_cast<char>(kEndOfNodes);
}

}  // namespace

std::string ScenarioInput(simulator::TreeNode& root) {
  std::string input{0, 0, 1, 0};
  WriteText(u"TST 1", input);
  input += std::string{0, 0, 0, 0};
  WriteNodes(root, input);
  return input;
}

}  // namespace qorltst::fuzz
