// Enumerators. See Enumerator.h.
#include "automation/Enumerator.h"

#include <atomic>

#include "automation/DualFace.h"
#include "automation/Errors.h"
#include "automation/Module.h"

namespace qorltst::automation {
namespace {

class Enumerator final : public IEnumVARIANT {
 public:
  explicit Enumerator(Ref<Cursor> cursor) noexcept : cursor_(std::move(cursor)) {}
  virtual ~Enumerator() = default;
  Enumerator(const Enumerator&) = delete;
  Enumerator& operator=(const Enumerator&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override {
    if (out == nullptr) {
      return E_POINTER;
    }
    *out = nullptr;
    if (!IsEqualGUID(interfaceId, IID_IUnknown) && !IsEqualGUID(interfaceId, IID_IEnumVARIANT)) {
      return E_NOINTERFACE;
    }
    *out = static_cast<IEnumVARIANT*>(this);
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

  /// S_FALSE where there were fewer than asked for. `taken` may be null where one is asked for.
  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* out, ULONG* taken) noexcept override {
    if (taken != nullptr) {
      *taken = 0;
    }
    if (out == nullptr || (taken == nullptr && wanted != 1)) {
      return E_POINTER;
    }
    for (ULONG i = 0; i < wanted; ++i) {
      VariantInit(&out[i]);
    }
    ULONG done = 0;
    const HRESULT code = AtEdge([&] { return Fill(wanted, out, done); });
    if (FAILED(code)) {
      for (ULONG i = 0; i < done; ++i) {
        VariantClear(&out[i]);
      }
      return code;
    }
    if (taken != nullptr) {
      *taken = done;
    }
    return code;
  }

  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    return AtEdge([&] {
      for (ULONG i = 0; i < count; ++i) {
        if (!cursor_->Next()) {
          return S_FALSE;
        }
      }
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    return AtEdge([&] {
      cursor_->Reset();
      return S_OK;
    });
  }

  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** out) noexcept override {
    if (out == nullptr) {
      return E_POINTER;
    }
    *out = nullptr;
    return AtEdge([&] {
      *out = ComRef<IEnumVARIANT>(new Enumerator(cursor_->Clone())).Detach();
      return S_OK;
    });
  }

 private:
  HRESULT Fill(ULONG wanted, VARIANT* out, ULONG& done) {
    for (; done < wanted; ++done) {
      const Ref<Object> object = cursor_->Next();
      if (!object) {
        return S_FALSE;
      }
      out[done].pdispVal = HandOut(*object);
      out[done].vt = VT_DISPATCH;
    }
    return S_OK;
  }

  std::atomic<ULONG> count_{0};
  Ref<Cursor> cursor_;
  ModuleHold hold_;
};

}  // namespace

ComRef<IUnknown> NewEnumerator(Ref<Cursor> cursor) { return ComRef<IUnknown>(new Enumerator(std::move(cursor))); }

}  // namespace qorltst::automation
