// Strings at the edge: BSTRs and the system's wide strings against the component's UTF-16 strings.
#pragma once

#include <string>
#include <string_view>

#include "automation/Com.h"

namespace qorltst::automation {

/// The characters of a system string; both sides count 16-bit units.
[[nodiscard]] inline std::u16string_view View(const wchar_t* text, std::size_t length) noexcept {
  // wchar_t is a distinct type of the same size and meaning on Windows.
  return {reinterpret_cast<const char16_t*>(text), length};
}

/// The characters of a BSTR, embedded NULs included. A null BSTR is the empty string.
[[nodiscard]] inline std::u16string_view View(BSTR text) noexcept { return View(text, SysStringLen(text)); }

/// The characters of a zero-terminated string.
[[nodiscard]] std::u16string_view ViewOfName(const wchar_t* name) noexcept;

/// The system's pointer to the characters; zero-terminated where the text is.
[[nodiscard]] inline const wchar_t* SystemText(std::u16string_view text) noexcept {
  return reinterpret_cast<const wchar_t*>(text.data());
}

using BstrAllocator = BSTR(WINAPI*)(const OLECHAR*, UINT);

/// A new BSTR. Raises the runtime error 7 where there is no memory for it.
[[nodiscard]] BSTR NewBstr(std::u16string_view text);

/// A new BSTR, or null where there is no memory for it; for error reports, which must not fail.
[[nodiscard]] BSTR TryNewBstr(std::u16string_view text) noexcept;

/// Replaces the source of BSTRs, so that a test can make it fail. Returns the one before.
BstrAllocator ExchangeBstrAllocator(BstrAllocator allocator) noexcept;

/// A BSTR for as long as a call lasts.
class ScopedBstr {
 public:
  explicit ScopedBstr(std::u16string_view text) : text_(NewBstr(text)) {}
  ScopedBstr(const ScopedBstr&) = delete;
  ScopedBstr& operator=(const ScopedBstr&) = delete;
  ~ScopedBstr() { SysFreeString(text_); }

  [[nodiscard]] BSTR Get() const noexcept { return text_; }

 private:
  BSTR text_;
};

}  // namespace qorltst::automation
