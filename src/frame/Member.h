// One row of a class's table: everything there is to say about one property or method.
// Dispatch, virtual tables, type library, documentation, fills and tests read these rows; see ClassDescription.h.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "frame/Object.h"
#include "frame/Value.h"
#include "toolkit/NodeTypeId.h"

namespace qorltst {

/// Where a row's value lies in its object.
template <class T>
struct FieldOf {
  T& (*in)(Object&);
};

using StringField = FieldOf<std::u16string>;
using BooleanField = FieldOf<bool>;
using DateField = FieldOf<Date>;
using CurrencyField = FieldOf<Currency>;

/// A 32-bit value that is read only, such as the debug id.
struct LongField {
  std::int32_t (*in)(const Object&);
};

/// A child object or collection. Without a class it may be any automation object.
struct ObjectField {
  Object* (*in)(Object&);
  const ClassDescription* (*type)();
  /// The class of a collection's objects; absent where the property holds a single object.
  const ClassDescription* (*items)() = nullptr;
};

struct Parameter {
  std::u16string_view name;
  ValueType type;
  bool optional = false;
};

/// A method, or with `property` a property that takes arguments. `call` gets one value for each parameter,
/// converted to the parameter's type; an optional argument that was left out is the empty value.
struct Method {
  std::span<const Parameter> parameters;
  ValueType result;
  Value (*call)(Object&, std::span<const Value> arguments);
  bool property = false;
};

/// A property that callers may set, by value or (an object) by reference.
struct Put {
  ValueType type = ValueType::Nothing;
  bool byReference = false;
  void (*call)(Object&, const Value&) = nullptr;
};

using Access = std::variant<StringField, LongField, BooleanField, DateField, CurrencyField, ObjectField, Method>;

/// One member of a class. The row's place in the table is its dispatch id, counted from 1, unless it names one.
struct Member {
  std::u16string_view name;
  Access access;
  /// The child node whose text (or date) fills the property in a plain fill; none where a fill is written out.
  toolkit::NodeTypeId node = toolkit::NodeTypeId::None;
  /// Sources that a failing getter or internal setter raises under; empty where the accessor has no guard.
  std::u16string_view getGuard = {};
  std::u16string_view letGuard = {};
  Put put = {};
  std::optional<std::int32_t> dispatchId = std::nullopt;
  std::u16string_view help = {};
};

namespace detail {

template <auto... Path>
struct Reach;

template <class Class, class T, T Class::*Pointer>
struct Reach<Pointer> {
  using Type = T;
  static T& In(Object& object) { return static_cast<Class&>(object).*Pointer; }
};

/// A member of a group that is itself a member.
template <auto Outer, class Group, class T, T Group::*Inner>
struct Reach<Outer, Inner> {
  using Type = T;
  static T& In(Object& object) { return Reach<Outer>::In(object).*Inner; }
};

template <class T>
struct Pointee {};

template <class T>
struct Pointee<Ref<T>> {
  using Type = T;
};

}  // namespace detail

/// A class as a row names it.
template <class Class>
const ClassDescription* DescriptionOf() {
  return &Class::kDescription;
}

/// The access to a data member, or to a member of a group that is one, told apart by its type.
template <auto... Path>
consteval Access Field() {
  using Reach = detail::Reach<Path...>;
  using T = typename Reach::Type;
  if constexpr (requires { typename detail::Pointee<T>::Type; }) {
    using Class = typename detail::Pointee<T>::Type;
    return ObjectField{[](Object& object) -> Object* { return Reach::In(object).Get(); }, &DescriptionOf<Class>};
  } else {
    return FieldOf<T>{&Reach::In};
  }
}

/// The access to a collection of objects of this class.
template <class Item, auto... Path>
consteval Access Items() {
  using Reach = detail::Reach<Path...>;
  return ObjectField{[](Object& object) { return Reach::In(object).Get(); },
                     &DescriptionOf<typename Reach::Type::Class>, &DescriptionOf<Item>};
}

}  // namespace qorltst
