// The library as the system loads it: its handle, and what keeps it from being unloaded.
#pragma once

#include <atomic>
#include <string>

#include "automation/Com.h"

namespace qorltst::automation {

/// What callers hold besides objects: enumerators, class factories, locks.
class ModuleHold {
 public:
  ModuleHold() noexcept { Change(1); }
  ModuleHold(const ModuleHold&) = delete;
  ModuleHold& operator=(const ModuleHold&) = delete;
  ~ModuleHold() { Change(-1); }

  /// Counts for holders that have no lifetime of their own (LockServer).
  static void Change(int by) noexcept;

  [[nodiscard]] static int Count() noexcept;
};

/// Whether nothing of this library is in use by anybody.
[[nodiscard]] bool IsModuleIdle() noexcept;

/// The library (or, in a test, the program) that this code is in.
[[nodiscard]] HMODULE ThisModule() noexcept;

/// The full path of that file. Raises the system's error.
[[nodiscard]] std::u16string ModulePath();

/// Keeps the library loaded until the process ends: the language runtime does not give back what it took for
/// exceptions, so that a host that unloads and loads again a thousand times would run out of thread slots.
void PinModule() noexcept;

}  // namespace qorltst::automation
