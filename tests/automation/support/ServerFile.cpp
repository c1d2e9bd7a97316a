// Loading a server by its path. See ServerFile.h.
#include "support/ServerFile.h"

#include "automation/Text.h"

namespace qorltst::automation::test {
namespace {

using Plain = HRESULT(STDMETHODCALLTYPE*)();

template <class Function>
Function EntryPoint(HMODULE module, const char* name) {
  // The system hands out every entry point as one type of function.
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace

ServerFile::ServerFile(const std::u16string& path) : module_(LoadLibraryW(SystemText(path))) {}

ServerFile::~ServerFile() {
  if (module_ != nullptr) {
    FreeLibrary(module_);
  }
}

HRESULT ServerFile::GetClassObject(const GUID& classId, const GUID& interfaceId, void** out) const {
  using Function = HRESULT(STDMETHODCALLTYPE*)(REFCLSID, REFIID, void**);
  return EntryPoint<Function>(module_, "DllGetClassObject")(classId, interfaceId, out);
}

HRESULT ServerFile::CanUnloadNow() const { return EntryPoint<Plain>(module_, "DllCanUnloadNow")(); }

HRESULT ServerFile::Register() const { return EntryPoint<Plain>(module_, "DllRegisterServer")(); }

HRESULT ServerFile::Unregister() const { return EntryPoint<Plain>(module_, "DllUnregisterServer")(); }

ComRef<IDispatch> ServerFile::Create(const GUID& classId) const {
  ComRef<IClassFactory> factory;
  ComRef<IDispatch> made;
  if (SUCCEEDED(GetClassObject(classId, IID_IClassFactory, factory.ReceiveAny()))) {
    factory->CreateInstance(nullptr, IID_IDispatch, made.ReceiveAny());
  }
  return made;
}

}  // namespace qorltst::automation::test
