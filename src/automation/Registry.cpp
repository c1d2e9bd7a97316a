// The system's registry. See Registry.h.
#include "automation/Registry.h"

#include "automation/Errors.h"
#include "automation/Text.h"

namespace qorltst::automation {
namespace {

/// An open key. Closed at the end of the scope.
class Key {
 public:
  Key(const std::u16string& path, REGSAM access) noexcept
      : status_(RegOpenKeyExW(HKEY_CLASSES_ROOT, SystemText(path), 0, access, &key_)) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_ != nullptr) {
      RegCloseKey(key_);
    }
  }

  [[nodiscard]] LSTATUS Status() const noexcept { return status_; }
  [[nodiscard]] HKEY Get() const noexcept { return key_; }

 private:
  HKEY key_ = nullptr;
  LSTATUS status_;
};

HRESULT ResultOf(LSTATUS status) noexcept { return HRESULT_FROM_WIN32(static_cast<DWORD>(status)); }

class MachineRegistry final : public Registry {
 public:
  bool HasKey(const std::u16string& key) override { return Key(key, KEY_READ).Status() == ERROR_SUCCESS; }

  std::optional<std::u16string> Read(const std::u16string& key, const std::u16string& name) override {
    DWORD bytes = 0;
    if (RegGetValueW(HKEY_CLASSES_ROOT, SystemText(key), SystemText(name), RRF_RT_REG_SZ, nullptr, nullptr, &bytes) !=
        ERROR_SUCCESS) {
      return std::nullopt;
    }
    std::u16string value(bytes / sizeof(char16_t), u'\0');
    const LSTATUS status = RegGetValueW(HKEY_CLASSES_ROOT, SystemText(key), SystemText(name), RRF_RT_REG_SZ, nullptr,
                                        value.data(), &bytes);
    RaiseIfFailed(ResultOf(status));
    value.resize(bytes / sizeof(char16_t) - 1);
    return value;
  }

  HRESULT MakeKey(const std::u16string& key) override {
    HKEY made = nullptr;
    const LSTATUS status = RegCreateKeyExW(HKEY_CLASSES_ROOT, SystemText(key), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           KEY_WRITE, nullptr, &made, nullptr);
    if (status == ERROR_SUCCESS) {
      RegCloseKey(made);
    }
    return ResultOf(status);
  }

  HRESULT Write(const std::u16string& key, const std::u16string& name, const std::u16string& value) override {
    const Key open(key, KEY_SET_VALUE);
    if (open.Status() != ERROR_SUCCESS) {
      return ResultOf(open.Status());
    }
    // The registry takes a string as bytes, its end mark included.
    return ResultOf(RegSetValueExW(open.Get(), SystemText(name), 0, REG_SZ,
                                   reinterpret_cast<const BYTE*>(value.c_str()),
                                   static_cast<DWORD>((value.size() + 1) * sizeof(char16_t))));
  }

  HRESULT RemoveValue(const std::u16string& key, const std::u16string& name) override {
    const Key open(key, KEY_SET_VALUE);
    return ResultOf(open.Status() == ERROR_SUCCESS ? RegDeleteValueW(open.Get(), SystemText(name)) : open.Status());
  }

  HRESULT RemoveKey(const std::u16string& key) override {
    const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, SystemText(key));
    return status == ERROR_FILE_NOT_FOUND ? S_OK : ResultOf(status);
  }

  std::optional<std::u16string> TypeLibraryPath(const GUID& id, WORD majorVersion, WORD minorVersion) override {
    BSTR path = nullptr;
    if (FAILED(QueryPathOfRegTypeLib(id, majorVersion, minorVersion, LOCALE_NEUTRAL, &path))) {
      return std::nullopt;
    }
    // The system counts the end mark among the characters.
    std::u16string found(ViewOfName(path));
    SysFreeString(path);
    return found;
  }

  HRESULT AddTypeLibrary(const std::u16string& path) override {
    ComRef<ITypeLib> library;
    const HRESULT code = LoadTypeLibEx(SystemText(path), REGKIND_NONE, library.Receive());
    if (FAILED(code)) {
      return code;
    }
    std::u16string changeable = path;
    return RegisterTypeLib(library.Get(), reinterpret_cast<OLECHAR*>(changeable.data()), nullptr);
  }

  HRESULT RemoveTypeLibrary(const GUID& id, WORD majorVersion, WORD minorVersion) override {
    constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    const HRESULT code = UnRegisterTypeLib(id, majorVersion, minorVersion, LOCALE_NEUTRAL, kSystem);
    return code == TYPE_E_REGISTRYACCESS ? S_OK : code;
  }
};

}  // namespace

Registry& SystemRegistry() noexcept {
  static MachineRegistry registry;
  return registry;
}

}  // namespace qorltst::automation
