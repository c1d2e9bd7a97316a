// Conversions of variants. See Variant.h.
#include "automation/Variant.h"

#include "automation/Errors.h"
#include "automation/Text.h"

namespace qorltst::automation {
namespace {

ObjectArgument FromUnknown(IUnknown* object) noexcept {
  if (object == nullptr) {
    return {true, nullptr};
  }
  ComRef<IDispatch> dispatch = Query<IDispatch>(object);
  const bool valid = static_cast<bool>(dispatch);
  return {valid, std::move(dispatch)};
}

}  // namespace

Variant::Variant(std::u16string_view text) : Variant() {
  value_.bstrVal = NewBstr(text);
  value_.vt = VT_BSTR;
}

VARIANT& Variant::ConvertTo(VARTYPE type) {
  if (value_.vt != type) {
    RaiseIfFailed(ConvertCopy(value_, value_, 0, type));
  }
  return value_;
}

VARIANT Variant::Detach() noexcept {
  const VARIANT content = value_;
  VariantInit(&value_);
  return content;
}

HRESULT ConvertCopy(VARIANT& to, const VARIANT& from, USHORT flags, VARTYPE type) noexcept {
  // A reference to nothing has no value; whether the system's function looks is not relied on.
  if ((from.vt & VT_BYREF) != 0 && from.byref == nullptr) {
    return DISP_E_TYPEMISMATCH;
  }
  // The system's function takes what it only reads as changeable.
  return VariantChangeType(&to, const_cast<VARIANT*>(&from), flags, type);
}

const VARIANT& Dereferenced(const VARIANT& value) noexcept {
  const VARIANT* current = &value;
  // Automation allows one such step; a caller that makes two gets the second one refused as a type.
  if (current->vt == (VT_BYREF | VT_VARIANT) && current->pvarVal != nullptr) {
    current = current->pvarVal;
  }
  return *current;
}

ObjectArgument ObjectOf(const VARIANT& value) noexcept {
  const VARIANT& variant = Dereferenced(value);
  switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {true, nullptr};
    case VT_DISPATCH:
      return {true, ComRef<IDispatch>(variant.pdispVal)};
    case VT_UNKNOWN:
      return FromUnknown(variant.punkVal);
    case VT_BYREF | VT_DISPATCH:
      return {true, ComRef<IDispatch>(variant.ppdispVal != nullptr ? *variant.ppdispVal : nullptr)};
    case VT_BYREF | VT_UNKNOWN:
      return FromUnknown(variant.ppunkVal != nullptr ? *variant.ppunkVal : nullptr);
    default:
      return {};
  }
}

bool IsLeftOut(const VARIANT& value) noexcept {
  const VARIANT& variant = Dereferenced(value);
  return variant.vt == VT_ERROR && variant.scode == DISP_E_PARAMNOTFOUND;
}

}  // namespace qorltst::automation
