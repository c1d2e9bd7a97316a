// Dispatch over rows. See Invoker.h.
#include "automation/Invoker.h"

#include <array>
#include <variant>

#include "automation/ArgumentValues.h"
#include "automation/BoundClass.h"
#include "automation/DualEntries.h"
#include "automation/Errors.h"
#include "automation/Results.h"
#include "automation/Variant.h"

namespace qorltst::automation {
namespace {

constexpr WORD kReading = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
constexpr WORD kPutting = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

/// A method's arguments in the order of its parameters.
class Arguments {
 public:
  /// Converts what the caller sent: named arguments first in its array, positional ones behind, last one first.
  Arguments(const Method& method, const DISPPARAMS& sent) : count_(method.parameters.size()) {
    if (count_ > kMaximumWords || sent.cNamedArgs > sent.cArgs || sent.cArgs > count_) {
      throw DispatchFailure{DISP_E_BADPARAMCOUNT};
    }
    std::array<bool, kMaximumWords> given{};
    for (UINT i = 0; i < sent.cArgs; ++i) {
      const std::size_t place = PlaceOf(sent, i);
      if (place >= count_) {
        throw DispatchFailure{DISP_E_PARAMNOTFOUND, i};
      }
      if (std::exchange(given[place], true)) {
        throw DispatchFailure{DISP_E_BADPARAMCOUNT};
      }
      Take(method.parameters[place], sent.rgvarg[i], place, i);
    }
    for (std::size_t place = 0; place < count_; ++place) {
      if (!given[place] && !method.parameters[place].optional) {
        throw DispatchFailure{DISP_E_BADPARAMCOUNT};
      }
    }
  }

  [[nodiscard]] std::span<const Value> All() const noexcept { return std::span(values_).first(count_); }

 private:
  static std::size_t PlaceOf(const DISPPARAMS& sent, UINT index) noexcept {
    // A negative id, such as a setter's, is no parameter's and becomes a place beyond all of them.
    return index < sent.cNamedArgs ? static_cast<std::size_t>(sent.rgdispidNamedArgs[index])
                                   : static_cast<std::size_t>(sent.cArgs - 1 - index);
  }

  void Take(const Parameter& parameter, const VARIANT& sent, std::size_t place, UINT index) {
    if (IsLeftOut(sent)) {
      if (!parameter.optional) {
        throw DispatchFailure{DISP_E_PARAMNOTOPTIONAL, index};
      }
      return;
    }
    values_[place] = FromVariant(sent, parameter.type, index);
  }

  std::size_t count_;
  std::array<Value, kMaximumWords> values_;
};

/// Gives a result, which is empty before and stays so where `write` fails. Every type lies in a variant as it lies in
/// the storage of a virtual call.
template <class Write>
void Deliver(VARIANT& result, ValueType type, Write&& write) {
  void* const storage = &result.llVal;
  ClearStorage(type, storage);
  write(storage);
  result.vt = VariantTypeOf(type);
}

HRESULT Call(const Dual& self, const Method& method, const DispatchCall& call) {
  const Arguments arguments(method, call.parameters);
  Value value = method.call(*self.object, arguments.All());
  Variant unwanted;
  Deliver(call.result != nullptr ? *call.result : unwanted.Get(), method.result,
          [&](void* storage) { StoreValue(std::move(value), method.result, storage); });
  return S_OK;
}

/// `tst.AirSegments(1)`: the arguments are meant for the default member of the object in the property.
HRESULT CallDefaultMember(const VARIANT& object, const DispatchCall& call) {
  if (object.vt != VT_DISPATCH) {
    throw DispatchFailure{DISP_E_BADPARAMCOUNT};
  }
  if (object.pdispVal == nullptr) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  DISPPARAMS parameters = call.parameters;
  return object.pdispVal->Invoke(DISPID_VALUE, GUID_NULL, LOCALE_USER_DEFAULT, kReading, &parameters, call.result,
                                 call.exception, call.argument);
}

HRESULT Read(const Dual& self, const Member& member, const DispatchCall& call) {
  const bool forDefaultMember = call.parameters.cArgs != 0;
  Variant kept;
  Deliver(call.result != nullptr && !forDefaultMember ? *call.result : kept.Get(), ResultTypeOf(member),
          [&](void* storage) { ReadProperty(*self.object, member, storage); });
  return forDefaultMember ? CallDefaultMember(kept.Get(), call) : S_OK;
}

HRESULT Set(const Dual& self, const Member& member, const DispatchCall& call) {
  if (member.put.call == nullptr) {
    // Also where the name is known: nothing can be put there.
    throw DispatchFailure{DISP_E_MEMBERNOTFOUND};
  }
  const DISPPARAMS& sent = call.parameters;
  if (sent.cArgs != 1 || sent.cNamedArgs > 1) {
    throw DispatchFailure{DISP_E_BADPARAMCOUNT};
  }
  if (sent.cNamedArgs == 1 && sent.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
    throw DispatchFailure{DISP_E_PARAMNOTFOUND};
  }
  if (IsLeftOut(sent.rgvarg[0])) {
    throw DispatchFailure{DISP_E_PARAMNOTOPTIONAL};
  }
  member.put.call(*self.object, FromVariant(sent.rgvarg[0], member.put.type, 0));
  return S_OK;
}

}  // namespace

HRESULT InvokeMember(const Dual& self, DISPID id, const DispatchCall& call) {
  const Member* const member = self.type->Description().FindByDispatchId(id);
  if (member == nullptr) {
    return DISP_E_MEMBERNOTFOUND;
  }
  if ((call.flags & kPutting) != 0) {
    return Set(self, *member, call);
  }
  if ((call.flags & kReading) == 0) {
    return DISP_E_MEMBERNOTFOUND;
  }
  // Clients differ in what they call a property and what a method; reading is reading.
  const auto* const method = std::get_if<Method>(&member->access);
  return method != nullptr ? Call(self, *method, call) : Read(self, *member, call);
}

}  // namespace qorltst::automation
