// The entry points of a server library. Compiled into each one; what it serves is `ThisServer()`.
#include <olectl.h>

#include "automation/ClassFactory.h"
#include "automation/Errors.h"
#include "automation/Module.h"
#include "automation/Registration.h"
#include "automation/Server.h"

namespace automation = qorltst::automation;

// The names and their linkage are the system's.
STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** out) {
  return automation::GetClassFactory(classId, interfaceId, out);
}

STDAPI DllCanUnloadNow() { return automation::IsModuleIdle() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
  return automation::AtEdge([] {
    return automation::Register(automation::ThisServer().library, automation::ModulePath(),
                                automation::SystemRegistry());
  });
}

STDAPI DllUnregisterServer() {
  return automation::Unregister(automation::ThisServer().library, automation::SystemRegistry());
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved);

extern "C" BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, void* /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    automation::PinModule();
  }
  return TRUE;
}
