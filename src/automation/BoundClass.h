// A class as this module serves it: its description with its virtual table, identifiers and type information.
#pragma once

#include <atomic>

#include "automation/DualTable.h"
#include "automation/Library.h"

namespace qorltst::automation {

/// Made once for each class of the module's library and never freed.
class BoundClass {
 public:
  BoundClass(const ClassDescription& description, const Library& library);

  [[nodiscard]] const ClassDescription& Description() const noexcept { return description_; }
  [[nodiscard]] const DualTable& Table() const noexcept { return table_; }
  [[nodiscard]] const GUID& InterfaceId() const noexcept { return interfaceId_; }
  [[nodiscard]] bool IsTyped() const noexcept { return typed_; }

  /// The type information of the dual interface, and of the class; kept from the first use on. Raise the system's
  /// error where the type library cannot be read.
  [[nodiscard]] ITypeInfo* InterfaceInfo() const { return Cached(interfaceInfo_, interfaceId_); }
  [[nodiscard]] ITypeInfo* ClassInfo() const { return Cached(classInfo_, classId_); }

 private:
  static ITypeInfo* Cached(std::atomic<ITypeInfo*>& place, const GUID& id);

  const ClassDescription& description_;
  const DualTable& table_;
  GUID interfaceId_;
  GUID classId_;
  bool typed_;
  mutable std::atomic<ITypeInfo*> interfaceInfo_{nullptr};
  mutable std::atomic<ITypeInfo*> classInfo_{nullptr};
};

/// The binding of a class of this module's library. Raises the runtime error 51 for another class.
[[nodiscard]] const BoundClass& BindingOf(const ClassDescription& description);

/// The type library that this module carries; one for the process. Raises the system's error.
[[nodiscard]] ITypeLib& ModuleTypeLibrary();

}  // namespace qorltst::automation
