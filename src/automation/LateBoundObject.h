// A foreign automation object, reached by member name.
#pragma once

#include <array>
#include <span>
#include <string>

#include "automation/Com.h"
#include "automation/DispatchNames.h"
#include "automation/Variant.h"

namespace qorltst::automation {

/// Asks for each name once and keeps its id. An object that offers `IDispatchEx` is asked through that: some script
/// engines answer names through nothing else.
class LateBoundObject {
 public:
  using Names = std::span<const std::u16string_view>;

  /// The object must be there: a missing one raises the runtime error 91. `names` holds the members that will be
  /// used, at most `kMaximumMembers`; they must outlive this object. Members are spoken of by their place in it.
  LateBoundObject(ComRef<IDispatch> object, Names names);

  /// For one of many objects of a kind: their ids are shared where that is right.
  LateBoundObject(ComRef<IDispatch> object, Ref<DispatchNames> shared);

  static constexpr std::size_t kMaximumMembers = 10;

  /// Whether the object knows this name now. Asks anew each time.
  [[nodiscard]] bool Knows(std::u16string_view name);

  /// Calls a member with these arguments, given in their order. `flags` as for `IDispatch::Invoke`. Raises the
  /// object's own error.
  void Call(std::size_t member, WORD flags, std::span<Variant> arguments, Variant& result);

  /// The same for a member with a known id.
  void CallById(DISPID id, WORD flags, std::span<Variant> arguments, Variant& result);

  /// Results converted by the usual rules.
  [[nodiscard]] std::u16string GetText(std::size_t member);
  [[nodiscard]] std::int32_t GetLong(std::size_t member);
  [[nodiscard]] bool GetBoolean(std::size_t member);
  [[nodiscard]] double GetDate(std::size_t member);

  /// The object in a result, or nothing. Raises the runtime error 13 where it is something else.
  [[nodiscard]] static ComRef<IDispatch> ObjectIn(const Variant& result);

 private:
  void Get(std::size_t member, VARTYPE type, Variant& result);
  [[nodiscard]] DISPID IdOf(std::size_t member);
  [[nodiscard]] HRESULT Ask(std::u16string_view name, DISPID& id) const;
  [[nodiscard]] DISPID SharedId(std::size_t member);
  void FindExtended();

  ComRef<IDispatch> object_;
  ComRef<IDispatchEx> extended_;
  Names names_;
  Ref<DispatchNames> shared_;
  std::array<DISPID, kMaximumMembers> ids_{};
  bool askedTypeInfo_ = false;
  bool askedExtended_ = false;
  ComRef<ITypeInfo> typeInfo_;
};

}  // namespace qorltst::automation
