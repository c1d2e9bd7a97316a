// Arguments at the edge. See ArgumentValues.h.
#include "automation/ArgumentValues.h"

#include <variant>

#include "automation/DualFace.h"
#include "automation/Errors.h"
#include "automation/ForeignObject.h"
#include "automation/LateBoundSession.h"
#include "automation/Results.h"
#include "automation/Text.h"
#include "automation/Variant.h"

namespace qorltst::automation {
namespace {

/// An automation object as the component holds it: our own behind the interface, or a foreign one.
Ref<Object> ObjectFrom(IDispatch* dispatch, ValueType type) {
  if (dispatch == nullptr) {
    return nullptr;
  }
  Ref<Object> own = OwnObject(dispatch);
  if (type == ValueType::Automation) {
    return CollectionFrom(*dispatch, own);
  }
  if (!own) {
    throw toolkit::RuntimeError(toolkit::kTypeMismatch);
  }
  return own;
}

Value FromDispatch(IDispatch* dispatch, ValueType type) {
  if (type == ValueType::HostSession) {
    return dispatch != nullptr ? Ref<toolkit::HostSession>(Make<LateBoundSession>(ComRef<IDispatch>(dispatch)))
                               : nullptr;
  }
  return ObjectFrom(dispatch, type);
}

bool IsObjectType(ValueType type) noexcept {
  return type == ValueType::Object || type == ValueType::Automation || type == ValueType::HostSession;
}

/// The value in a variant of exactly this type.
Value FromConverted(const VARIANT& variant, ValueType type) {
  switch (type) {
    case ValueType::Long:
      return std::int32_t{variant.lVal};
    case ValueType::Short:
      return std::int32_t{variant.iVal};
    case ValueType::Boolean:
      return variant.boolVal != VARIANT_FALSE;
    case ValueType::String:
      return std::u16string(View(variant.bstrVal));
    default:
      return {};
  }
}

Value Converted(const VARIANT& variant, ValueType type, UINT argument) {
  const VARTYPE wanted = VariantTypeOf(type);
  if (variant.vt == wanted) {
    return FromConverted(variant, type);
  }
  Variant converted;
  const HRESULT code = ConvertCopy(converted.Get(), variant, 0, wanted);
  if (FAILED(code)) {
    throw DispatchFailure{code, argument};
  }
  return FromConverted(converted.Get(), type);
}

/// Strings and truth values as they are, numbers as 32-bit integers, anything else as nothing.
Value FromAny(const VARIANT& variant) {
  const auto base = static_cast<VARTYPE>(variant.vt & ~VT_BYREF);
  if (base == VT_EMPTY || base == VT_NULL) {
    return {};
  }
  const ValueType type = base == VT_BSTR ? ValueType::String : base == VT_BOOL ? ValueType::Boolean : ValueType::Long;
  Variant converted;
  if (ObjectOf(variant).valid ||
      FAILED(ConvertCopy(converted.Get(), variant, VARIANT_NOVALUEPROP, VariantTypeOf(type)))) {
    return {};
  }
  return FromConverted(converted.Get(), type);
}

}  // namespace

Value FromWord(Word word, ValueType type) {
  switch (type) {
    case ValueType::Long:
      return static_cast<std::int32_t>(word);
    case ValueType::Short:
      return std::int32_t{static_cast<std::int16_t>(word)};
    case ValueType::Boolean:
      return static_cast<VARIANT_BOOL>(word) != VARIANT_FALSE;
    case ValueType::String:
      // The word is the caller's string pointer.
      return std::u16string(View(reinterpret_cast<BSTR>(word)));
    case ValueType::Object:
    case ValueType::Automation:
    case ValueType::HostSession:
      // The word is the caller's interface pointer.
      return FromDispatch(reinterpret_cast<IDispatch*>(word), type);
    default:
      throw toolkit::RuntimeError(toolkit::kInternalError);
  }
}

Value FromVariant(const VARIANT& variant, ValueType type, UINT argument) {
  const VARIANT& value = Dereferenced(variant);
  if (type == ValueType::Any) {
    return FromAny(value);
  }
  if (!IsObjectType(type)) {
    return Converted(value, type, argument);
  }
  const ObjectArgument found = ObjectOf(value);
  if (!found.valid) {
    throw DispatchFailure{DISP_E_TYPEMISMATCH, argument};
  }
  return FromDispatch(found.object.Get(), type);
}

DISPID ParameterId(const Member& member, std::u16string_view name) noexcept {
  if (const auto* const method = std::get_if<Method>(&member.access)) {
    for (std::size_t i = 0; i < method->parameters.size(); ++i) {
      if (CompareNames(method->parameters[i].name, name) == 0) {
        return static_cast<DISPID>(i);
      }
    }
  }
  return DISPID_UNKNOWN;
}

}  // namespace qorltst::automation
