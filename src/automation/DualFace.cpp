// Faces. See DualFace.h; the entries of the dual interface are in DualEntries.cpp.
#include "automation/DualFace.h"

#include "automation/BoundClass.h"
#include "automation/DualEntries.h"
#include "automation/Errors.h"
#include "automation/Server.h"

namespace qorltst::automation {
namespace {

/// Asks an object whether it is one of this module: known to nobody else.
GUID OwnObjectId() noexcept { return SystemGuid(ThisServer().library.id); }

}  // namespace

HRESULT ErrorInfoFace::QueryInterface(REFIID interfaceId, void** out) noexcept {
  return automation::QueryInterface(&dual_, interfaceId, out);
}
ULONG ErrorInfoFace::AddRef() noexcept { return automation::AddRef(&dual_); }
ULONG ErrorInfoFace::Release() noexcept { return automation::Release(&dual_); }

HRESULT ErrorInfoFace::InterfaceSupportsErrorInfo(REFIID interfaceId) noexcept {
  return IsEqualGUID(interfaceId, dual_.type->InterfaceId()) ? S_OK : S_FALSE;
}

HRESULT ClassInfoFace::QueryInterface(REFIID interfaceId, void** out) noexcept {
  return automation::QueryInterface(&dual_, interfaceId, out);
}
ULONG ClassInfoFace::AddRef() noexcept { return automation::AddRef(&dual_); }
ULONG ClassInfoFace::Release() noexcept { return automation::Release(&dual_); }

HRESULT ClassInfoFace::GetClassInfo(ITypeInfo** out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  *out = nullptr;
  return AtEdge([&] {
    *out = ComRef<ITypeInfo>(dual_.type->ClassInfo()).Detach();
    return S_OK;
  });
}

DualFace::DualFace(Object& object)
    : dual_{nullptr, &BindingOf(object.Description()), &object}, errorInfo_(dual_), classInfo_(dual_) {
  dual_.table = &dual_.type->Table();
}

IDispatch* DualFace::Dispatch() noexcept {
  // The structure begins with the pointer to the virtual table, which is all that an interface is.
  return reinterpret_cast<IDispatch*>(&dual_);
}

void* DualFace::Find(REFIID interfaceId) noexcept {
  if (IsEqualGUID(interfaceId, IID_IUnknown) || IsEqualGUID(interfaceId, IID_IDispatch) ||
      IsEqualGUID(interfaceId, OwnObjectId())) {
    return &dual_;
  }
  if (!dual_.type->IsTyped()) {
    return nullptr;
  }
  if (IsEqualGUID(interfaceId, dual_.type->InterfaceId())) {
    return &dual_;
  }
  if (IsEqualGUID(interfaceId, IID_ISupportErrorInfo)) {
    return static_cast<ISupportErrorInfo*>(&errorInfo_);
  }
  if (IsEqualGUID(interfaceId, IID_IProvideClassInfo)) {
    return static_cast<IProvideClassInfo*>(&classInfo_);
  }
  return nullptr;
}

DualFace& FaceOf(const Dual& dual) noexcept { return static_cast<DualFace&>(*dual.object->Face()); }

IDispatch* HandOut(Object& object) {
  if (object.Face() == nullptr) {
    object.SetFace(std::make_unique<DualFace>(object));
  }
  IDispatch* const dispatch = static_cast<AutomationFace*>(object.Face())->Dispatch();
  dispatch->AddRef();
  return dispatch;
}

Ref<Object> OwnObject(IUnknown* candidate) noexcept {
  void* found = nullptr;
  if (candidate == nullptr || FAILED(candidate->QueryInterface(OwnObjectId(), &found))) {
    return nullptr;
  }
  const Dual* const dual = static_cast<Dual*>(found);
  Ref<Object> object(dual->object);
  object->Release();  // the reference that QueryInterface gave
  return object;
}

}  // namespace qorltst::automation
