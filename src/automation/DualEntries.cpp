// Entries of the dual interfaces. See DualEntries.h.
#include "automation/DualEntries.h"

#include <array>
#include <variant>

#include "automation/ArgumentValues.h"
#include "automation/BoundClass.h"
#include "automation/DualFace.h"
#include "automation/Errors.h"
#include "automation/Invoker.h"
#include "automation/Results.h"
#include "automation/Text.h"

namespace qorltst::automation {
namespace {

const Member& RowOf(const Dual& self, std::size_t row) noexcept { return self.type->Description().members[row]; }

void* PointerIn(Word word) noexcept {
  // The last word of a call with a result is the address for it.
  return reinterpret_cast<void*>(word);
}

/// Runs the call; its arguments stand in `values`.
void RunMethod(const Dual& self, const Method& method, std::span<const Word> words, void* out) {
  std::array<Value, kMaximumWords> values;
  for (std::size_t i = 0; i < method.parameters.size(); ++i) {
    values[i] = FromWord(words[i], method.parameters[i].type);
  }
  Value result = method.call(*self.object, std::span(values).first(method.parameters.size()));
  StoreValue(std::move(result), method.result, out);
}

HRESULT IdsOfNames(const ClassDescription& description, std::span<LPOLESTR> names, DISPID* out) noexcept {
  const Member* const member = names[0] != nullptr ? description.FindByName(ViewOfName(names[0])) : nullptr;
  HRESULT code = S_OK;
  for (std::size_t i = 0; i < names.size(); ++i) {
    out[i] = DISPID_UNKNOWN;
    if (member != nullptr && i == 0) {
      out[i] = description.DispatchIdOf(*member);
    } else if (member != nullptr && names[i] != nullptr) {
      out[i] = ParameterId(*member, ViewOfName(names[i]));
    }
    code = out[i] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : code;
  }
  return code;
}

}  // namespace

HRESULT STDMETHODCALLTYPE QueryInterface(Dual* self, REFIID interfaceId, void** out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  *out = FaceOf(*self).Find(interfaceId);
  if (*out == nullptr) {
    return E_NOINTERFACE;
  }
  self->object->AddRef();
  return S_OK;
}

ULONG STDMETHODCALLTYPE AddRef(Dual* self) noexcept {
  self->object->AddRef();
  return self->object->References();
}

ULONG STDMETHODCALLTYPE Release(Dual* self) noexcept {
  // Read before: the object may be gone after. The number is for diagnostics only.
  const ULONG left = self->object->References() - 1;
  self->object->Release();
  return left;
}

HRESULT STDMETHODCALLTYPE GetTypeInfoCount(Dual* self, UINT* out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  *out = self->type->IsTyped() ? 1 : 0;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE GetTypeInfo(Dual* self, UINT index, LCID /*locale*/, ITypeInfo** out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  *out = nullptr;
  if (index != 0 || !self->type->IsTyped()) {
    return DISP_E_BADINDEX;
  }
  return AtEdge([&] {
    *out = ComRef<ITypeInfo>(self->type->InterfaceInfo()).Detach();
    return S_OK;
  });
}

HRESULT STDMETHODCALLTYPE GetIdsOfNames(Dual* self, REFIID interfaceId, LPOLESTR* names, UINT count, LCID /*locale*/,
                                        DISPID* out) noexcept {
  if (names == nullptr || out == nullptr) {
    return E_POINTER;
  }
  if (!IsEqualGUID(interfaceId, GUID_NULL)) {
    return DISP_E_UNKNOWNINTERFACE;
  }
  return count == 0 ? E_INVALIDARG : IdsOfNames(self->type->Description(), {names, count}, out);
}

HRESULT STDMETHODCALLTYPE Invoke(Dual* self, DISPID member, REFIID interfaceId, LCID /*locale*/, WORD flags,
                                 DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                 UINT* argument) noexcept {
  if (result != nullptr) {
    VariantInit(result);
  }
  if (!IsEqualGUID(interfaceId, GUID_NULL)) {
    return DISP_E_UNKNOWNINTERFACE;
  }
  if (parameters == nullptr || (parameters->cArgs != 0 && parameters->rgvarg == nullptr) ||
      (parameters->cNamedArgs != 0 && parameters->rgdispidNamedArgs == nullptr)) {
    return E_POINTER;
  }
  try {
    return InvokeMember(*self, member, {flags, *parameters, result, exception, argument});
  } catch (...) {
    return TranslateForInvoke(exception, argument);
  }
}

HRESULT GetProperty(const Dual& self, std::size_t row, void* out) noexcept {
  if (out == nullptr) {
    return E_POINTER;
  }
  const Member& member = RowOf(self, row);
  ClearStorage(ResultTypeOf(member), out);
  return AtEdge(self.type->InterfaceId(), [&] {
    ReadProperty(*self.object, member, out);
    return S_OK;
  });
}

HRESULT PutProperty(const Dual& self, std::size_t row, Word value) noexcept {
  return AtEdge(self.type->InterfaceId(), [&] {
    const Put& put = RowOf(self, row).put;
    put.call(*self.object, FromWord(value, put.type));
    return S_OK;
  });
}

HRESULT CallMethod(const Dual& self, std::size_t row, std::span<const Word> words) noexcept {
  return AtEdge(self.type->InterfaceId(), [&]() -> HRESULT {
    const auto& method = std::get<Method>(RowOf(self, row).access);
    void* out = nullptr;
    if (method.result != ValueType::Nothing) {
      out = PointerIn(words.back());
      if (out == nullptr) {
        return E_POINTER;
      }
      ClearStorage(method.result, out);
    }
    RunMethod(self, method, words, out);
    return S_OK;
  });
}

}  // namespace qorltst::automation
