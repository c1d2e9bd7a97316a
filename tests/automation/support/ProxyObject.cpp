// Proxies wrap what they hand out. See ProxyObject.h.
#include "support/ProxyObject.h"

#include <atomic>
#include <set>
#include <utility>

#include "automation/Text.h"

namespace qorltst::automation::test {
namespace {

std::atomic<int> living{0};

/// What a proxy answers to a name whose answer was to be odd and is no failure: the id of no member.
constexpr DISPID kNoMember = 4711;

const std::string& Kept(std::string name) {
  static std::set<std::string> names;
  return *names.insert(std::move(name)).first;
}

IDispatch* Wrapped(const std::shared_ptr<CallPlan>& plan, Manner manner, IDispatch* inner) {
  ComRef<IDispatch> held;
  *held.Receive() = inner;
  return inner != nullptr ? ComRef<IDispatch>(new ProxyObject(plan, manner, std::move(held))).Detach() : nullptr;
}

class ProxyEnumerator final : public IEnumVARIANT {
 public:
  ProxyEnumerator(std::shared_ptr<CallPlan> plan, Manner manner, ComRef<IEnumVARIANT> inner)
      : plan_(std::move(plan)), manner_(manner), inner_(std::move(inner)) {
    ++living;
  }
  virtual ~ProxyEnumerator() { --living; }
  ProxyEnumerator(const ProxyEnumerator&) = delete;
  ProxyEnumerator& operator=(const ProxyEnumerator&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override {
    const bool known = IsEqualGUID(interfaceId, IID_IUnknown) || IsEqualGUID(interfaceId, IID_IEnumVARIANT);
    *out = known ? static_cast<IEnumVARIANT*>(this) : nullptr;
    count_ += known ? 1 : 0;
    return known ? S_OK : E_NOINTERFACE;
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
    static const std::string& name = Kept("Next");
    if (const OddAnswer* const odd = plan_->Called(name)) {
      const HRESULT code = odd->give(*out, nullptr);
      *taken = code == S_OK ? 1 : 0;
      return code;
    }
    const HRESULT code = inner_->Next(wanted, out, taken);
    if (code == S_OK && out->vt == VT_DISPATCH) {
      out->pdispVal = Wrapped(plan_, manner_, out->pdispVal);
    }
    return code;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) noexcept override { return E_NOTIMPL; }

 private:
  std::shared_ptr<CallPlan> plan_;
  Manner manner_;
  ComRef<IEnumVARIANT> inner_;
  ULONG count_ = 0;
};

}  // namespace

void CallPlan::AnswerAt(std::size_t n, const OddAnswer& answer) {
  at_ = calls_.size() + n;
  answer_ = &answer;
}

const OddAnswer* CallPlan::Called(const std::string& name) {
  calls_.push_back({&name, logLength_()});
  return calls_.size() == at_ ? answer_ : nullptr;
}

ProxyObject::ProxyObject(std::shared_ptr<CallPlan> plan, Manner manner, ComRef<IDispatch> inner)
    : plan_(std::move(plan)), manner_(manner), inner_(std::move(inner)) {
  ++living;
}

ProxyObject::~ProxyObject() { --living; }

int ProxyObject::Living() noexcept { return living.load(); }

HRESULT ProxyObject::QueryInterface(REFIID interfaceId, void** out) noexcept {
  const bool known = IsEqualGUID(interfaceId, IID_IUnknown) || IsEqualGUID(interfaceId, IID_IDispatch) ||
                     (manner_ == Manner::Extended && IsEqualGUID(interfaceId, __uuidof(IDispatchEx)));
  *out = known ? static_cast<IDispatchEx*>(this) : nullptr;
  count_ += known ? 1 : 0;
  return known ? S_OK : E_NOINTERFACE;
}

ULONG ProxyObject::AddRef() noexcept { return ++count_; }

ULONG ProxyObject::Release() noexcept {
  const ULONG left = --count_;
  if (left == 0) {
    delete this;
  }
  return left;
}

HRESULT ProxyObject::GetTypeInfoCount(UINT* out) noexcept {
  *out = 0;
  return S_OK;
}

HRESULT ProxyObject::GetTypeInfo(UINT, LCID, ITypeInfo** out) noexcept {
  *out = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT ProxyObject::Find(wchar_t* name, DISPID* out) {
  const std::u16string_view view = ViewOfName(name);
  const std::string narrow(view.begin(), view.end());
  if (const OddAnswer* const odd = plan_->Called(Kept("names:" + narrow))) {
    Variant unused;
    *out = kNoMember;
    return odd->give(unused.Get(), nullptr);
  }
  const HRESULT code = inner_->GetIDsOfNames(GUID_NULL, &name, 1, LOCALE_USER_DEFAULT, out);
  if (SUCCEEDED(code)) {
    names_[*out] = &Kept(narrow);
  }
  return code;
}

HRESULT ProxyObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* out) noexcept {
  *out = DISPID_UNKNOWN;
  return manner_ == Manner::Extended ? E_NOTIMPL : Find(names[0], out);
}

HRESULT ProxyObject::GetDispID(BSTR name, DWORD, DISPID* out) noexcept { return Find(name, out); }

HRESULT ProxyObject::Run(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT& result, EXCEPINFO* info) {
  static const std::string& enumeration = Kept("_NewEnum");
  static const std::string& unknown = Kept("?");
  const auto found = names_.find(id);
  const std::string& name = id == DISPID_NEWENUM ? enumeration : found != names_.end() ? *found->second : unknown;
  if (const OddAnswer* const odd = plan_->Called(name)) {
    return odd->give(result, info);
  }
  const HRESULT code = inner_->Invoke(id, GUID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result, info, nullptr);
  if (SUCCEEDED(code) && result.vt == VT_DISPATCH) {
    result.pdispVal = Wrapped(plan_, manner_, result.pdispVal);
  } else if (SUCCEEDED(code) && result.vt == VT_UNKNOWN) {
    ComRef<IEnumVARIANT> children = Query<IEnumVARIANT>(result.punkVal);
    result.punkVal->Release();
    result.punkVal = ComRef<IUnknown>(new ProxyEnumerator(plan_, manner_, std::move(children))).Detach();
  }
  return code;
}

HRESULT ProxyObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                            EXCEPINFO* info, UINT*) noexcept {
  return manner_ == Manner::Extended ? E_NOTIMPL : Run(id, flags, *parameters, *result, info);
}

HRESULT ProxyObject::InvokeEx(DISPID id, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                              IServiceProvider*) noexcept {
  return Run(id, flags, *parameters, *result, info);
}

}  // namespace qorltst::automation::test
