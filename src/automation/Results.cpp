// Results at the edge. See Results.h.
#include "automation/Results.h"

#include <array>
#include <variant>

#include "automation/DualFace.h"
#include "automation/Enumerator.h"
#include "automation/Text.h"
#include "frame/modErrorHandling.h"

namespace qorltst::automation {
namespace {

/// In the order of `ValueType`.
constexpr std::array<VARTYPE, 12> kVariantTypes{VT_EMPTY,    VT_I4,       VT_I2,      VT_BOOL,
                                                VT_DATE,     VT_CY,       VT_BSTR,    VT_DISPATCH,
                                                VT_DISPATCH, VT_DISPATCH, VT_UNKNOWN, VT_VARIANT};

static_assert(kVariantTypes[static_cast<std::size_t>(ValueType::Any)] == VT_VARIANT);

/// In the order of `Access`, methods aside.
constexpr std::array kFieldTypes{ValueType::String, ValueType::Long,     ValueType::Boolean,
                                 ValueType::Date,   ValueType::Currency, ValueType::Object};

template <class T>
void Store(void* storage, T value) noexcept {
  *static_cast<T*>(storage) = value;
}

void StoreBoolean(void* storage, bool value) noexcept {
  Store<VARIANT_BOOL>(storage, value ? VARIANT_TRUE : VARIANT_FALSE);
}

void StoreCurrency(void* storage, Currency value) noexcept {
  CY amount;
  amount.int64 = value.tenThousandths;
  Store(storage, amount);
}

void StoreObject(void* storage, Object* object) { Store(storage, object != nullptr ? HandOut(*object) : nullptr); }

/// Writes what a row's access reaches in its object.
struct FieldReader {
  Object& object;
  void* storage;

  void operator()(const StringField& field) const { Store(storage, NewBstr(field.in(object))); }
  void operator()(const LongField& field) const { Store<LONG>(storage, field.in(object)); }
  void operator()(const BooleanField& field) const { StoreBoolean(storage, field.in(object)); }
  void operator()(const DateField& field) const { Store<DATE>(storage, field.in(object).days); }
  void operator()(const CurrencyField& field) const { StoreCurrency(storage, field.in(object)); }
  void operator()(const ObjectField& field) const { StoreObject(storage, field.in(object)); }
  void operator()(const Method& /*method*/) const { throw toolkit::RuntimeError(toolkit::kInternalError); }
};

/// Writes a method's result. What no method gives, and an empty result, leave the storage as it was cleared.
struct ValueWriter {
  ValueType type;
  void* storage;

  void operator()(std::int32_t value) const noexcept { Store<LONG>(storage, value); }
  void operator()(bool value) const noexcept { StoreBoolean(storage, value); }
  void operator()(const std::u16string& value) const { Store(storage, NewBstr(value)); }
  void operator()(const Ref<Object>& value) const { StoreObject(storage, value.Get()); }
  void operator()(const Ref<Cursor>& value) const {
    Store<IUnknown*>(storage, value ? NewEnumerator(value).Detach() : nullptr);
  }
  template <class Other>
  void operator()(const Other& /*value*/) const noexcept {}
};

}  // namespace

ValueType ResultTypeOf(const Member& member) noexcept {
  const auto* const method = std::get_if<Method>(&member.access);
  return method != nullptr ? method->result : kFieldTypes[member.access.index()];
}

VARTYPE VariantTypeOf(ValueType type) noexcept { return kVariantTypes[static_cast<std::size_t>(type)]; }

void ClearStorage(ValueType type, void* storage) noexcept {
  switch (VariantTypeOf(type)) {
    case VT_EMPTY:
      return;
    case VT_I4:
      return Store<LONG>(storage, 0);
    case VT_BOOL:
      return Store<VARIANT_BOOL>(storage, VARIANT_FALSE);
    case VT_DATE:
      return Store<DATE>(storage, 0);
    case VT_CY:
      return StoreCurrency(storage, {});
    default:
      return Store<void*>(storage, nullptr);
  }
}

void ReadProperty(Object& object, const Member& member, void* storage) {
  Guarded(member.getGuard, [&] { std::visit(FieldReader{object, storage}, member.access); });
}

void StoreValue(Value value, ValueType type, void* storage) {
  if (type != ValueType::Nothing) {
    std::visit(ValueWriter{type, storage}, value);
  }
}

}  // namespace qorltst::automation
