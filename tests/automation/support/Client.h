// A late-bound client as scripts are: names, ids, reversed arguments.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "automation/Com.h"
#include "automation/DualFace.h"
#include "automation/Variant.h"

namespace qorltst::automation::test {

/// What a call gave.
struct Answer {
  HRESULT code = S_OK;
  Variant value;
  std::int32_t errorCode = 0;
  std::u16string source;
  std::u16string description;
  UINT argument = 99;

  [[nodiscard]] std::u16string Text() const;
  [[nodiscard]] std::int32_t Long() const;
  [[nodiscard]] ComRef<IDispatch> Object() const;
};

inline constexpr WORD kRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

class Client {
 public:
  explicit Client(ComRef<IDispatch> object) : object_(std::move(object)) {}
  explicit Client(qorltst::Object& object) { *object_.Receive() = HandOut(object); }

  [[nodiscard]] IDispatch* Get() const noexcept { return object_.Get(); }

  /// The id of a member, or DISPID_UNKNOWN.
  [[nodiscard]] DISPID IdOf(std::u16string_view name) const;

  /// Arguments stand in their order; they are lent.
  [[nodiscard]] Answer Call(std::u16string_view name, std::initializer_list<VARIANT> arguments = {},
                            WORD flags = kRead) const;
  [[nodiscard]] Answer Call(DISPID id, std::initializer_list<VARIANT> arguments = {}, WORD flags = kRead) const;
  [[nodiscard]] Answer Put(std::u16string_view name, const VARIANT& value, WORD flags = DISPATCH_PROPERTYPUT) const;

 private:
  [[nodiscard]] Answer Run(DISPID id, WORD flags, DISPPARAMS& parameters) const;

  ComRef<IDispatch> object_;
};

/// Arguments; a text lives as long as the program.
[[nodiscard]] VARIANT Number(std::int32_t value);
[[nodiscard]] VARIANT Short(std::int16_t value);
[[nodiscard]] VARIANT Double(double value);
[[nodiscard]] VARIANT Truth(bool value);
[[nodiscard]] VARIANT String(std::u16string_view value);
[[nodiscard]] VARIANT Dispatch(IDispatch* value);
[[nodiscard]] VARIANT Unknown(IUnknown* value);
[[nodiscard]] VARIANT Reference(VARIANT& value);
[[nodiscard]] VARIANT LeftOut();
[[nodiscard]] VARIANT Typed(VARTYPE type);

/// Copies what a variant holds into one that holds nothing to be freed.
HRESULT CopyInto(VARIANT& to, const VARIANT& from) noexcept;

}  // namespace qorltst::automation::test
