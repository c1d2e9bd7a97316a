// Module handle and holds. See Module.h.
#include "automation/Module.h"

#include "automation/Errors.h"
#include "automation/Text.h"
#include "frame/Object.h"

namespace qorltst::automation {
namespace {

std::atomic<int> holds{0};

/// Its address tells which module this code was linked into.
const char kAnchor = 0;

HMODULE FindModule(DWORD flags) noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | flags, reinterpret_cast<LPCWSTR>(&kAnchor), &module);
  return module;
}

}  // namespace

void ModuleHold::Change(int by) noexcept { holds.fetch_add(by, std::memory_order_relaxed); }

int ModuleHold::Count() noexcept { return holds.load(std::memory_order_relaxed); }

bool IsModuleIdle() noexcept { return Object::Living() == 0 && ModuleHold::Count() == 0; }

HMODULE ThisModule() noexcept { return FindModule(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT); }

void PinModule() noexcept { FindModule(GET_MODULE_HANDLE_EX_FLAG_PIN); }

std::u16string ModulePath() {
  std::u16string path(MAX_PATH, u'\0');
  for (;;) {
    // wchar_t is char16_t's twin on Windows.
    const DWORD length =
        GetModuleFileNameW(ThisModule(), reinterpret_cast<wchar_t*>(path.data()), static_cast<DWORD>(path.size()));
    if (length == 0) {
      RaiseIfFailed(HRESULT_FROM_WIN32(GetLastError()));
    }
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

}  // namespace qorltst::automation
