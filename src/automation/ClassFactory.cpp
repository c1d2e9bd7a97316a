// Class factories. See ClassFactory.h.
#include "automation/ClassFactory.h"

#include <atomic>

#include "automation/DualFace.h"
#include "automation/Errors.h"
#include "automation/Module.h"
#include "automation/Server.h"

namespace qorltst::automation {
namespace {

class ClassFactory final : public IClassFactory {
 public:
  explicit ClassFactory(const ClassDescription& description) noexcept : description_(description) {}
  virtual ~ClassFactory() = default;
  ClassFactory(const ClassFactory&) = delete;
  ClassFactory& operator=(const ClassFactory&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override {
    if (out == nullptr) {
      return E_POINTER;
    }
    *out = nullptr;
    if (!IsEqualGUID(interfaceId, IID_IUnknown) && !IsEqualGUID(interfaceId, IID_IClassFactory)) {
      return E_NOINTERFACE;
    }
    *out = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }

  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }

  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = count_.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left == 0) {
      delete this;
    }
    return left;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interfaceId, void** out) noexcept override {
    if (out == nullptr) {
      return E_POINTER;
    }
    *out = nullptr;
    if (outer != nullptr) {
      return CLASS_E_NOAGGREGATION;
    }
    return AtEdge([&] {
      const Ref<toolkit::Toolkit> toolkit = ThisServer().toolkit();
      const Ref<Object> object = description_.create(*toolkit);
      IDispatch* const dispatch = HandOut(*object);
      const HRESULT code = dispatch->QueryInterface(interfaceId, out);
      dispatch->Release();
      return code;
    });
  }

  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
    ModuleHold::Change(lock != FALSE ? 1 : -1);
    return S_OK;
  }

 private:
  std::atomic<ULONG> count_{0};
  const ClassDescription& description_;
  ModuleHold hold_;
};

}  // namespace

HRESULT GetClassFactory(REFCLSID classId, REFIID interfaceId, void** out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  *out = nullptr;
  return AtEdge([&] {
    const ClassDescription* const description = ThisServer().library.FindClass(PortableGuid(classId));
    if (description == nullptr || description->create == nullptr) {
      return CLASS_E_CLASSNOTAVAILABLE;
    }
    const ComRef<IClassFactory> factory(new ClassFactory(*description));
    return factory->QueryInterface(interfaceId, out);
  });
}

}  // namespace qorltst::automation
