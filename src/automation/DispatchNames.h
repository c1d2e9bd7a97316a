// Dispatch ids by member name, shared between foreign objects only where that is right.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "automation/Com.h"
#include "toolkit/RefCounted.h"

namespace qorltst::automation {

using toolkit::Make;
using toolkit::Ref;

/// The ids of the members of one kind of object, as one type information declares them.
///
/// When may an id that one object gave serve for another? Not because both have one virtual table: all objects
/// written in a script share the script engine's. Not because one parser made both. But a type information that
/// declares a name declares its id, for every object that names this type information as its own; that is the
/// contract of `IDispatch::GetTypeInfo`. So the ids here are read from the type information itself, which is held,
/// so that its address stays its identity. A name that it does not declare (an engine may give all its objects one
/// type information and let each have members of its own) is asked of each object.
class DispatchNames final : public toolkit::RefCounted {
 public:
  /// `names` must outlive this object; members are spoken of by their place in it.
  explicit DispatchNames(std::span<const std::u16string_view> names) : names_(names) {}

  [[nodiscard]] std::span<const std::u16string_view> Names() const noexcept { return names_; }

  /// The id that this type information declares, or DISPID_UNKNOWN: ask the object. The first type information
  /// that comes stays the one whose ids are kept.
  [[nodiscard]] DISPID IdOf(std::size_t member, ITypeInfo* typeInfo);

 private:
  void Learn(ITypeInfo* typeInfo);

  std::span<const std::u16string_view> names_;
  ComRef<ITypeInfo> typeInfo_;
  std::vector<DISPID> ids_;
};

}  // namespace qorltst::automation
