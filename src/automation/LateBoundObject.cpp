// Calls by name. See LateBoundObject.h.
#include "automation/LateBoundObject.h"

#include "automation/Errors.h"
#include "automation/Text.h"

namespace qorltst::automation {
namespace {

constexpr std::size_t kMaximumArguments = 4;

}  // namespace

LateBoundObject::LateBoundObject(ComRef<IDispatch> object, Ref<DispatchNames> shared)
    : LateBoundObject(std::move(object), shared->Names()) {
  shared_ = std::move(shared);
}

LateBoundObject::LateBoundObject(ComRef<IDispatch> object, Names names) : object_(std::move(object)), names_(names) {
  if (!object_) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  ids_.fill(DISPID_UNKNOWN);
}

void LateBoundObject::FindExtended() {
  if (!std::exchange(askedExtended_, true)) {
    extended_ = Query<IDispatchEx>(object_.Get());
  }
}

DISPID LateBoundObject::SharedId(std::size_t member) {
  if (!shared_) {
    return DISPID_UNKNOWN;
  }
  if (!std::exchange(askedTypeInfo_, true) &&
      FAILED(object_->GetTypeInfo(0, LOCALE_USER_DEFAULT, typeInfo_.Receive()))) {
    typeInfo_ = nullptr;
  }
  return shared_->IdOf(member, typeInfo_.Get());
}

HRESULT LateBoundObject::Ask(std::u16string_view name, DISPID& id) const {
  const ScopedBstr text(name);
  HRESULT code = S_OK;
  if (extended_) {
    code = extended_->GetDispID(text.Get(), fdexNameCaseInsensitive, &id);
    if (SUCCEEDED(code)) {
      return code;
    }
  }
  LPOLESTR wanted = text.Get();
  const HRESULT second = object_->GetIDsOfNames(GUID_NULL, &wanted, 1, LOCALE_USER_DEFAULT, &id);
  return FAILED(second) && extended_ ? code : second;
}

DISPID LateBoundObject::IdOf(std::size_t member) {
  DISPID& id = ids_[member];
  if (id == DISPID_UNKNOWN) {
    id = SharedId(member);
  }
  if (id == DISPID_UNKNOWN) {
    FindExtended();
    DISPID answered = DISPID_UNKNOWN;
    RaiseIfFailed(Ask(names_[member], answered));
    id = answered;
  }
  return id;
}

bool LateBoundObject::Knows(std::u16string_view name) {
  FindExtended();
  DISPID id = DISPID_UNKNOWN;
  return SUCCEEDED(Ask(name, id));
}

void LateBoundObject::Call(std::size_t member, WORD flags, std::span<Variant> arguments, Variant& result) {
  CallById(IdOf(member), flags, arguments, result);
}

void LateBoundObject::CallById(DISPID id, WORD flags, std::span<Variant> arguments, Variant& result) {
  if (!typeInfo_) {
    // What answers names through IDispatchEx only may take calls through that only.
    FindExtended();
  }
  std::array<VARIANTARG, kMaximumArguments> reversed{};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    // Lent, not given: the callee does not free them.
    reversed[arguments.size() - 1 - i] = arguments[i].Get();
  }
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  EXCEPINFO info{};
  UINT argument = 0;
  const HRESULT code =
      extended_
          ? extended_->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters, &result.Get(), &info, nullptr)
          : object_->Invoke(id, GUID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result.Get(), &info, &argument);
  if (FAILED(code)) {
    RaiseInvokeFailure(code, info);
  }
}

void LateBoundObject::Get(std::size_t member, VARTYPE type, Variant& result) {
  // Not as a method too: there are script engines that then call the property's value.
  Call(member, DISPATCH_PROPERTYGET, {}, result);
  result.ConvertTo(type);
}

std::u16string LateBoundObject::GetText(std::size_t member) {
  Variant result;
  Get(member, VT_BSTR, result);
  return std::u16string(View(result.Get().bstrVal));
}

std::int32_t LateBoundObject::GetLong(std::size_t member) {
  Variant result;
  Get(member, VT_I4, result);
  return result.Get().lVal;
}

bool LateBoundObject::GetBoolean(std::size_t member) {
  Variant result;
  Get(member, VT_BOOL, result);
  return result.Get().boolVal != VARIANT_FALSE;
}

double LateBoundObject::GetDate(std::size_t member) {
  Variant result;
  Get(member, VT_DATE, result);
  return result.Get().date;
}

ComRef<IDispatch> LateBoundObject::ObjectIn(const Variant& result) {
  ObjectArgument found = ObjectOf(result.Get());
  if (!found.valid) {
    throw toolkit::RuntimeError(toolkit::kTypeMismatch);
  }
  return std::move(found.object);
}

}  // namespace qorltst::automation
