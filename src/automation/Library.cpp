// Look-ups in a library. See Library.h.
#include "automation/Library.h"

#include <algorithm>

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

}  // namespace qorltst::automation
