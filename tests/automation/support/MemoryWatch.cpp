// A spy in the system's task memory. See MemoryWatch.h.
#include "support/MemoryWatch.h"

#include <atomic>

#include "automation/Module.h"
#include "frame/Object.h"
#include "support/FakeObject.h"
#include "support/ProxyObject.h"

namespace qorltst::automation::test {
namespace {

std::atomic<int> blocks{0};

/// Counts what comes and goes; lives as long as the program.
class Spy final : public IMallocSpy {
 public:
  virtual ~Spy() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** out) noexcept override {
    const bool known = IsEqualGUID(interfaceId, IID_IUnknown) || IsEqualGUID(interfaceId, IID_IMallocSpy);
    *out = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) noexcept override { return size; }
  void* STDMETHODCALLTYPE PostAlloc(void* block) noexcept override {
    blocks += block != nullptr ? 1 : 0;
    return block;
  }
  void* STDMETHODCALLTYPE PreFree(void* block, BOOL counted) noexcept override {
    blocks -= counted != FALSE && block != nullptr ? 1 : 0;
    return block;
  }
  void STDMETHODCALLTYPE PostFree(BOOL) noexcept override {}
  SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T size, void** passed, BOOL) noexcept override {
    *passed = block;
    return size;
  }
  void* STDMETHODCALLTYPE PostRealloc(void* block, BOOL) noexcept override { return block; }
  void* STDMETHODCALLTYPE PreGetSize(void* block, BOOL) noexcept override { return block; }
  SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL) noexcept override { return size; }
  void* STDMETHODCALLTYPE PreDidAlloc(void* block, BOOL) noexcept override { return block; }
  int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int actual) noexcept override { return actual; }
  void STDMETHODCALLTYPE PreHeapMinimize() noexcept override {}
  void STDMETHODCALLTYPE PostHeapMinimize() noexcept override {}
};

bool StartSpying() {
  static Spy spy;
  // In no header: tells the system not to keep freed strings for later.
  using Function = void(WINAPI*)();
  if (const FARPROC entry = GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache")) {
    reinterpret_cast<Function>(reinterpret_cast<void*>(entry))();
  }
  return SUCCEEDED(CoRegisterMallocSpy(&spy));
}

}  // namespace

InUse CountInUse() {
  static const bool spying = StartSpying();
  return {Object::Living(), ModuleHold::Count(), FakeObject::Living() + ProxyObject::Living(),
          spying ? blocks.load() : -1};
}

void PrintTo(const InUse& inUse, std::ostream* out) {
  *out << inUse.objects << " objects, " << inUse.holds << " holds, " << inUse.fakes << " foreign objects, "
       << inUse.blocks << " blocks of task memory";
}

}  // namespace qorltst::automation::test
