// A server library as a host loads it: by its path, through its entry points, without the registry.
#pragma once

#include <string>

#include "automation/Com.h"

namespace qorltst::automation::test {

class ServerFile {
 public:
  explicit ServerFile(const std::u16string& path);
  ServerFile(const ServerFile&) = delete;
  ServerFile& operator=(const ServerFile&) = delete;
  ~ServerFile();

  [[nodiscard]] bool IsLoaded() const noexcept { return module_ != nullptr; }
  [[nodiscard]] HRESULT GetClassObject(const GUID& classId, const GUID& interfaceId, void** out) const;
  [[nodiscard]] HRESULT CanUnloadNow() const;
  [[nodiscard]] HRESULT Register() const;
  [[nodiscard]] HRESULT Unregister() const;

  /// A new object, or nothing.
  [[nodiscard]] ComRef<IDispatch> Create(const GUID& classId) const;

 private:
  HMODULE module_;
};

}  // namespace qorltst::automation::test
