// The part of the system registry that registration needs, behind an interface so that a test can make it fail.
#pragma once

#include <optional>
#include <string>

#include "automation/Com.h"

namespace qorltst::automation {

/// Keys are named by their path below HKEY_CLASSES_ROOT; values are strings, the unnamed one by an empty name.
class Registry {
 public:
  virtual ~Registry() = default;

  [[nodiscard]] virtual bool HasKey(const std::u16string& key) = 0;
  [[nodiscard]] virtual std::optional<std::u16string> Read(const std::u16string& key, const std::u16string& name) = 0;

  /// Makes the key, whose parent must be there.
  virtual HRESULT MakeKey(const std::u16string& key) = 0;
  virtual HRESULT Write(const std::u16string& key, const std::u16string& name, const std::u16string& value) = 0;
  virtual HRESULT RemoveValue(const std::u16string& key, const std::u16string& name) = 0;

  /// Removes the key with everything below it; a key that is not there is no failure.
  virtual HRESULT RemoveKey(const std::u16string& key) = 0;

  /// The file that a type library is registered with, if it is.
  [[nodiscard]] virtual std::optional<std::u16string> TypeLibraryPath(const GUID& id, WORD majorVersion,
                                                                      WORD minorVersion) = 0;

  /// Registers the type library in this file, and takes the registration back.
  virtual HRESULT AddTypeLibrary(const std::u16string& path) = 0;
  virtual HRESULT RemoveTypeLibrary(const GUID& id, WORD majorVersion, WORD minorVersion) = 0;
};

/// The registry of this machine.
[[nodiscard]] Registry& SystemRegistry() noexcept;

}  // namespace qorltst::automation
