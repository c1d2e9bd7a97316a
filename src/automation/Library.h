// What a library of automation classes is: its name, its classes and their frozen identifiers.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Guid.h"
#include "frame/ClassDescription.h"

namespace qorltst::automation {

/// The identifiers of one class. Once published they never change.
struct ClassIdentity {
  std::u16string_view name;
  Guid classId;
  Guid interfaceId;
};

/// Every class lives in the apartment of the thread that made it.
inline constexpr std::u16string_view kThreadingModel = u"Apartment";

/// The names under which callers create a class: this one, and the same with the version at its end.
struct ProgramIds {
  std::u16string plain;
  std::u16string versioned;
};

/// One library, as its interface description, its registration, its manifest and its class factories see it.
struct Library {
  std::u16string_view name;
  std::u16string_view help;
  Guid id;
  std::uint16_t majorVersion = 1;
  std::uint16_t minorVersion = 0;
  /// The public classes, in the order of the library's description.
  std::span<const ClassDescription* const> (*classes)() = nullptr;
  std::span<const ClassIdentity> identities;
  /// Whether the library has dual interfaces and a type library; otherwise its classes are reached by name alone.
  bool typed = true;

  /// The identifiers of a class of this library, or nothing.
  [[nodiscard]] const ClassIdentity* IdentityOf(std::u16string_view className) const noexcept;

  /// The class that has this class identifier, or nothing.
  [[nodiscard]] const ClassDescription* FindClass(const Guid& classId) const noexcept;

  /// The classes that callers can create, in the library's order.
  [[nodiscard]] std::vector<const ClassDescription*> CreatableClasses() const;

  [[nodiscard]] ProgramIds ProgramIdsOf(const ClassDescription& description) const;
};

}  // namespace qorltst::automation
