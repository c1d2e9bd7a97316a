// Look-ups in a class's table. See ClassDescription.h.
#include "frame/ClassDescription.h"

namespace qorltst {

const Member* ClassDescription::FindByName(std::u16string_view memberName) const noexcept {
  const auto found = std::ranges::lower_bound(
      byName, memberName, [](std::u16string_view a, std::u16string_view b) { return CompareNames(a, b) < 0; },
      [this](std::uint8_t row) { return members[row].name; });
  if (found == byName.end() || CompareNames(members[*found].name, memberName) != 0) {
    return nullptr;
  }
  return &members[*found];
}

const Member* ClassDescription::FindByDispatchId(std::int32_t dispatchId) const noexcept {
  if (dispatchId > 0 && static_cast<std::size_t>(dispatchId) <= members.size()) {
    const Member& inPlace = members[static_cast<std::size_t>(dispatchId) - 1];
    if (!inPlace.dispatchId) {
      return &inPlace;
    }
  }
  const auto found =
      std::ranges::find_if(members, [dispatchId](const Member& m) { return m.dispatchId == dispatchId; });
  return found != members.end() ? &*found : nullptr;
}

const Member* ClassDescription::FindByNode(toolkit::NodeTypeId node) const noexcept {
  const auto found = std::ranges::lower_bound(byNode, node, {}, &NodeRow::node);
  return found != byNode.end() && found->node == node ? &members[found->row] : nullptr;
}

std::int32_t ClassDescription::DispatchIdOf(const Member& member) const noexcept {
  return member.dispatchId.value_or(static_cast<std::int32_t>(&member - members.data()) + 1);
}

}  // namespace qorltst
