// A VARIANT that clears itself, and the usual conversions on it.
#pragma once

#include <cstdint>
#include <string_view>

#include "automation/Com.h"

namespace qorltst::automation {

class Variant {
 public:
  Variant() noexcept = default;
  explicit Variant(std::int32_t number) noexcept : Variant() {
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  explicit Variant(bool flag) noexcept : Variant() {
    value_.vt = VT_BOOL;
    value_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Variant(std::u16string_view text);
  Variant(const Variant&) = delete;
  Variant(Variant&& other) noexcept : value_(other.Detach()) {}
  Variant& operator=(const Variant&) = delete;
  ~Variant() {
    // Types below this one own nothing, and most values are of those.
    if (value_.vt >= VT_BSTR) {
      VariantClear(&value_);
    }
  }

  [[nodiscard]] VARIANT& Get() noexcept { return value_; }
  [[nodiscard]] const VARIANT& Get() const noexcept { return value_; }

  /// Converts in place by the usual automation rules, references included. Raises the runtime error 13, 6 or 7.
  VARIANT& ConvertTo(VARTYPE type);

  /// Gives the content away; empty afterwards.
  [[nodiscard]] VARIANT Detach() noexcept;

 private:
  /// Empty: that is the type 0.
  VARIANT value_{};
};

/// The object that a variant holds, by reference or not.
struct ObjectArgument {
  /// False where the variant holds neither an object nor nothing.
  bool valid = false;
  /// Absent for Nothing, Empty and Null.
  ComRef<IDispatch> object;
};

[[nodiscard]] ObjectArgument ObjectOf(const VARIANT& value) noexcept;

/// Converts a copy by the usual rules; `from` may be a reference and stays as it is.
[[nodiscard]] HRESULT ConvertCopy(VARIANT& to, const VARIANT& from, USHORT flags, VARTYPE type) noexcept;

/// Whether the variant stands for an argument that was left out.
[[nodiscard]] bool IsLeftOut(const VARIANT& value) noexcept;

/// The variant behind references to variants.
[[nodiscard]] const VARIANT& Dereferenced(const VARIANT& value) noexcept;

}  // namespace qorltst::automation
