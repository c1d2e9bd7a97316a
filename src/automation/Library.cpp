// Look-ups in a library. See Library.h.
#include "automation/Library.h"

#include <algorithm>
#include <iterator>

namespace qorltst::automation {

const ClassIdentity* Library::IdentityOf(std::u16string_view className) const noexcept {
  const auto found = std::ranges::find(identities, className, &ClassIdentity::name);
  return found != identities.end() ? &*found : nullptr;
}

const ClassDescription* Library::FindClass(const Guid& classId) const noexcept {
  const auto known = classes();
  const auto found = std::ranges::find_if(known, [&](const ClassDescription* description) {
    const ClassIdentity* const identity = IdentityOf(description->name);
    return identity != nullptr && identity->classId == classId;
  });
  return found != known.end() ? *found : nullptr;
}

std::vector<const ClassDescription*> Library::CreatableClasses() const {
  std::vector<const ClassDescription*> creatable;
  std::ranges::copy_if(classes(), std::back_inserter(creatable),
                       [](const ClassDescription* description) { return description->create != nullptr; });
  return creatable;
}

ProgramIds Library::ProgramIdsOf(const ClassDescription& description) const {
  const std::u16string plain = std::u16string(name).append(u".").append(description.name);
  return {plain, plain + u".1"};
}

}  // namespace qorltst::automation
