// BSTRs come from one place, which a test can make fail. See Text.h.
#include "automation/Text.h"

#include <atomic>
#include <cwchar>

#include "toolkit/RuntimeError.h"

namespace qorltst::automation {
namespace {

std::atomic<BstrAllocator> bstrAllocator{&SysAllocStringLen};

}  // namespace

std::u16string_view ViewOfName(const wchar_t* name) noexcept { return View(name, std::wcslen(name)); }

BSTR TryNewBstr(std::u16string_view text) noexcept {
  return bstrAllocator.load(std::memory_order_relaxed)(SystemText(text), static_cast<UINT>(text.size()));
}

BSTR NewBstr(std::u16string_view text) {
  const BSTR made = TryNewBstr(text);
  if (made == nullptr) {
    throw toolkit::RuntimeError(toolkit::kOutOfMemory);
  }
  return made;
}

BstrAllocator ExchangeBstrAllocator(BstrAllocator allocator) noexcept { return bstrAllocator.exchange(allocator); }

}  // namespace qorltst::automation
