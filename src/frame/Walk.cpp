// See Walk.h.
#include "frame/Walk.h"

#include "toolkit/RuntimeError.h"

namespace qorltst {

std::u16string BufferOf(const toolkit::Ref<toolkit::BufferOwner>& owner) {
  if (!owner) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  return owner->Buffer();
}

}  // namespace qorltst
