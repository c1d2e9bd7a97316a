// Shared dispatch ids. See DispatchNames.h.
#include "automation/DispatchNames.h"

#include "automation/Text.h"

namespace qorltst::automation {

DISPID DispatchNames::IdOf(std::size_t member, ITypeInfo* typeInfo) {
  if (typeInfo == nullptr) {
    return DISPID_UNKNOWN;
  }
  if (!typeInfo_) {
    Learn(typeInfo);
  }
  return typeInfo_.Get() == typeInfo ? ids_[member] : DISPID_UNKNOWN;
}

void DispatchNames::Learn(ITypeInfo* typeInfo) {
  ids_.assign(names_.size(), DISPID_UNKNOWN);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    const ScopedBstr text(names_[i]);
    LPOLESTR name = text.Get();
    MEMBERID id = DISPID_UNKNOWN;
    if (SUCCEEDED(typeInfo->GetIDsOfNames(&name, 1, &id))) {
      ids_[i] = id;
    }
  }
  typeInfo_ = ComRef<ITypeInfo>(typeInfo);
}

}  // namespace qorltst::automation
