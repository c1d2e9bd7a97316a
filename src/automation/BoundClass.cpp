// Bindings, made on first use. See BoundClass.h.
#include "automation/BoundClass.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "automation/Errors.h"
#include "automation/Module.h"
#include "automation/Server.h"
#include "automation/Text.h"

namespace qorltst::automation {
namespace {

using Bindings = std::vector<std::unique_ptr<const BoundClass>>;

const ClassDescription* KeyOf(const std::unique_ptr<const BoundClass>& bound) { return &bound->Description(); }

/// In the order of their descriptions' addresses.
const Bindings* MakeBindings() {
  auto bindings = std::make_unique<Bindings>();
  for (const ClassDescription* const description : ThisServer().library.classes()) {
    bindings->push_back(std::make_unique<const BoundClass>(*description, ThisServer().library));
  }
  std::ranges::sort(*bindings, std::less<>(), &KeyOf);
  return bindings.release();
}

const ClassIdentity& RequiredIdentity(const Library& library, const ClassDescription& description) {
  const ClassIdentity* const identity = library.IdentityOf(description.name);
  if (identity == nullptr) {
    throw toolkit::RuntimeError(toolkit::kInternalError);
  }
  return *identity;
}

}  // namespace

BoundClass::BoundClass(const ClassDescription& description, const Library& library)
    : description_(description),
      table_(TableFor(description)),
      interfaceId_(SystemGuid(RequiredIdentity(library, description).interfaceId)),
      classId_(SystemGuid(RequiredIdentity(library, description).classId)),
      typed_(library.typed) {}

ITypeInfo* BoundClass::Cached(std::atomic<ITypeInfo*>& place, const GUID& id) {
  if (ITypeInfo* const known = place.load(std::memory_order_acquire)) {
    return known;
  }
  ComRef<ITypeInfo> found;
  RaiseIfFailed(ModuleTypeLibrary().GetTypeInfoOfGuid(id, found.Receive()));
  ITypeInfo* expected = nullptr;
  // Two threads may come here at once; the first one's stays.
  return place.compare_exchange_strong(expected, found.Get(), std::memory_order_acq_rel) ? found.Detach() : expected;
}

const BoundClass& BindingOf(const ClassDescription& description) {
  static const Bindings& bindings = *MakeBindings();
  const auto found = std::ranges::lower_bound(bindings, &description, std::less<>(), &KeyOf);
  if (found == bindings.end() || KeyOf(*found) != &description) {
    throw toolkit::RuntimeError(toolkit::kInternalError);
  }
  return **found;
}

ITypeLib& ModuleTypeLibrary() {
  static ITypeLib& library = []() -> ITypeLib& {
    ComRef<ITypeLib> loaded;
    const std::u16string path = ModulePath();
    RaiseIfFailed(LoadTypeLibEx(SystemText(path), REGKIND_NONE, loaded.Receive()));
    return *loaded.Detach();
  }();
  return library;
}

}  // namespace qorltst::automation
