// Foreign objects for tests. See FakeObject.h.
#include "support/FakeObject.h"

#include <algorithm>

#include "automation/Text.h"
#include "frame/ClassDescription.h"

namespace qorltst::automation::test {
namespace {

int living = 0;

std::string Narrow(std::u16string_view text) {
  std::string narrow;
  for (const char16_t c : text) {
    narrow += static_cast<char>(c);
  }
  return narrow;
}

class Enumerator final : public IEnumVARIANT {
 public:
  Enumerator(std::vector<VARIANT> values, HRESULT failure) : values_(std::move(values)), failure_(failure) {
    for (VARIANT& value : values_) {
      const VARIANT borrowed = value;
      CopyInto(value, borrowed);
    }
  }
  virtual ~Enumerator() {
    for (VARIANT& value : values_) {
      VariantClear(&value);
    }
  }
  Enumerator(const Enumerator&) = delete;
  Enumerator& operator=(const Enumerator&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override {
    if (!IsEqualGUID(interfaceId, IID_IUnknown) && !IsEqualGUID(interfaceId, IID_IEnumVARIANT)) {
      *out = nullptr;
      return E_NOINTERFACE;
    }
    *out = static_cast<IEnumVARIANT*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++count_; }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const ULONG left = --count_;
    if (left == 0) {
      delete this;
    }
    return left;
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* out, ULONG* taken) noexcept override {
    if (taken != nullptr) {
      *taken = 0;
    }
    if (wanted != 1) {
      return E_INVALIDARG;
    }
    if (next_ == values_.size()) {
      return FAILED(failure_) ? failure_ : S_FALSE;
    }
    CopyInto(*out, values_[next_++]);
    if (taken != nullptr) {
      *taken = 1;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) noexcept override { return E_NOTIMPL; }

 private:
  ULONG count_ = 0;
  std::size_t next_ = 0;
  std::vector<VARIANT> values_;
  HRESULT failure_;
};

}  // namespace

ComRef<FakeObject> Fake(Manner manner) {
  ++living;
  return ComRef<FakeObject>(new FakeObject(manner));
}

ComRef<IEnumVARIANT> FakeEnumerator(std::vector<VARIANT> values, HRESULT failure) {
  return ComRef<IEnumVARIANT>(new Enumerator(std::move(values), failure));
}

FakeObject::~FakeObject() { --living; }

int FakeObject::Living() noexcept { return living; }

FakeObject& FakeObject::On(std::u16string name, Body body, DISPID id) {
  const DISPID own = id == DISPID_UNKNOWN ? static_cast<DISPID>(100 + members_.size()) : id;
  members_.push_back({std::move(name), own, std::move(body)});
  return *this;
}

FakeObject& FakeObject::Gives(std::u16string name, const VARIANT& value, DISPID id) {
  const auto kept = std::make_shared<Variant>();
  CopyInto(kept->Get(), value);
  return On(
      std::move(name),
      [kept](const Arguments& /*arguments*/, VARIANT& result, EXCEPINFO* /*info*/) {
        return CopyInto(result, kept->Get());
      },
      id);
}

std::size_t FakeObject::CountOf(std::string_view prefix) const {
  return static_cast<std::size_t>(
      std::ranges::count_if(calls_, [prefix](const std::string& call) { return call.starts_with(prefix); }));
}

HRESULT FakeObject::QueryInterface(REFIID interfaceId, void** out) noexcept {
  *out = nullptr;
  if (IsEqualGUID(interfaceId, IID_IUnknown) || IsEqualGUID(interfaceId, IID_IDispatch) ||
      (manner_ == Manner::Extended && IsEqualGUID(interfaceId, __uuidof(IDispatchEx)))) {
    *out = static_cast<IDispatchEx*>(this);
    AddRef();
    return S_OK;
  }
  return E_NOINTERFACE;
}

ULONG FakeObject::AddRef() noexcept { return ++count_; }

ULONG FakeObject::Release() noexcept {
  const ULONG left = --count_;
  if (left == 0) {
    delete this;
  }
  return left;
}

HRESULT FakeObject::GetTypeInfoCount(UINT* out) noexcept {
  *out = typeInfo_ ? 1 : 0;
  return S_OK;
}

HRESULT FakeObject::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** out) noexcept {
  calls_.emplace_back("typeinfo");
  *out = ComRef<ITypeInfo>(typeInfo_).Detach();
  return *out != nullptr ? S_OK : DISP_E_BADINDEX;
}

HRESULT FakeObject::Find(std::u16string_view name, DISPID* out) {
  calls_.push_back("names:" + Narrow(name));
  const auto found =
      std::ranges::find_if(members_, [name](const Member& member) { return CompareNames(member.name, name) == 0; });
  *out = found != members_.end() ? found->id : DISPID_UNKNOWN;
  return found != members_.end() ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT FakeObject::GetIDsOfNames(REFIID /*interfaceId*/, LPOLESTR* names, UINT /*count*/, LCID /*locale*/,
                                  DISPID* out) noexcept {
  if (manner_ == Manner::Extended) {
    *out = DISPID_UNKNOWN;
    return E_NOTIMPL;
  }
  return Find(ViewOfName(names[0]), out);
}

HRESULT FakeObject::GetDispID(BSTR name, DWORD /*flags*/, DISPID* out) noexcept { return Find(View(name), out); }

HRESULT FakeObject::Run(DISPID id, WORD flags, const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* info) {
  const auto found = std::ranges::find(members_, id, &Member::id);
  if (found == members_.end()) {
    return DISP_E_MEMBERNOTFOUND;
  }
  calls_.push_back("call:" + Narrow(found->name) + "/" + std::to_string(flags));
  lastArguments_.assign(parameters.rgvarg, parameters.rgvarg + parameters.cArgs);
  std::ranges::reverse(lastArguments_);
  Variant own;
  return found->body(lastArguments_, result != nullptr ? *result : own.Get(), info);
}

HRESULT FakeObject::Invoke(DISPID id, REFIID /*interfaceId*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                           VARIANT* result, EXCEPINFO* info, UINT* /*argument*/) noexcept {
  return manner_ == Manner::Extended ? E_NOTIMPL : Run(id, flags, *parameters, result, info);
}

HRESULT FakeObject::InvokeEx(DISPID id, LCID /*locale*/, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* info, IServiceProvider* /*caller*/) noexcept {
  return Run(id, flags, *parameters, result, info);
}

}  // namespace qorltst::automation::test
