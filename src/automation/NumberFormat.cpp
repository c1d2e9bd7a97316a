// See NumberFormat.h.
#include "automation/NumberFormat.h"

#include <array>

#include "automation/Text.h"

namespace qorltst::automation {

std::u16string SystemDecimalSeparator() {
  // The system's limit is three characters and the terminating zero.
  std::array<wchar_t, 4> text{};
  const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text.data(), static_cast<int>(text.size()));
  return length > 1 ? std::u16string(ViewOfName(text.data())) : u".";
}

}  // namespace qorltst::automation
