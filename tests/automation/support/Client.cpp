// The late-bound client. See Client.h.
#include "support/Client.h"

#include <algorithm>
#include <deque>
#include <vector>

#include "automation/Text.h"

namespace qorltst::automation::test {

std::u16string Answer::Text() const {
  return value.Get().vt == VT_BSTR ? std::u16string(View(value.Get().bstrVal)) : u"(no string)";
}

std::int32_t Answer::Long() const { return value.Get().vt == VT_I4 ? value.Get().lVal : -999999; }

ComRef<IDispatch> Answer::Object() const { return ObjectOf(value.Get()).object; }

DISPID Client::IdOf(std::u16string_view name) const {
  const ScopedBstr text(name);
  LPOLESTR wanted = text.Get();
  DISPID id = 77;
  const HRESULT code = object_->GetIDsOfNames(GUID_NULL, &wanted, 1, LOCALE_USER_DEFAULT, &id);
  return SUCCEEDED(code) ? id : DISPID_UNKNOWN;
}

Answer Client::Run(DISPID id, WORD flags, DISPPARAMS& parameters) const {
  Answer answer;
  EXCEPINFO info{};
  answer.code = object_->Invoke(id, GUID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer.value.Get(), &info,
                                &answer.argument);
  answer.errorCode = info.scode;
  answer.source = View(info.bstrSource);
  answer.description = View(info.bstrDescription);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
  return answer;
}

Answer Client::Call(DISPID id, std::initializer_list<VARIANT> arguments, WORD flags) const {
  std::vector<VARIANT> reversed(arguments);
  std::ranges::reverse(reversed);
  DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  return Run(id, flags, parameters);
}

Answer Client::Call(std::u16string_view name, std::initializer_list<VARIANT> arguments, WORD flags) const {
  return Call(IdOf(name), arguments, flags);
}

Answer Client::Put(std::u16string_view name, const VARIANT& value, WORD flags) const {
  VARIANT copy = value;
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&copy, &named, 1, 1};
  return Run(IdOf(name), flags, parameters);
}

VARIANT Typed(VARTYPE type) {
  VARIANT made;
  VariantInit(&made);
  made.llVal = 0;
  made.vt = type;
  return made;
}

HRESULT CopyInto(VARIANT& to, const VARIANT& from) noexcept {
  VariantInit(&to);
  // The system's function takes what it only reads as changeable.
  return VariantCopy(&to, const_cast<VARIANT*>(&from));
}

VARIANT Number(std::int32_t value) {
  VARIANT made = Typed(VT_I4);
  made.lVal = value;
  return made;
}

VARIANT Short(std::int16_t value) {
  VARIANT made = Typed(VT_I2);
  made.iVal = value;
  return made;
}

VARIANT Double(double value) {
  VARIANT made = Typed(VT_R8);
  made.dblVal = value;
  return made;
}

VARIANT Truth(bool value) {
  VARIANT made = Typed(VT_BOOL);
  made.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return made;
}

VARIANT String(std::u16string_view value) {
  static std::deque<ScopedBstr> texts;
  VARIANT made = Typed(VT_BSTR);
  made.bstrVal = texts.emplace_back(value).Get();
  return made;
}

VARIANT Dispatch(IDispatch* value) {
  VARIANT made = Typed(VT_DISPATCH);
  made.pdispVal = value;
  return made;
}

VARIANT Unknown(IUnknown* value) {
  VARIANT made = Typed(VT_UNKNOWN);
  made.punkVal = value;
  return made;
}

VARIANT Reference(VARIANT& value) {
  VARIANT made = Typed(VT_VARIANT | VT_BYREF);
  made.pvarVal = &value;
  return made;
}

VARIANT LeftOut() {
  VARIANT made = Typed(VT_ERROR);
  made.scode = DISP_E_PARAMNOTFOUND;
  return made;
}

}  // namespace qorltst::automation::test
