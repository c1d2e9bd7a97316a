// The written form of identifiers. See Guid.h.
#include "automation/Guid.h"

namespace qorltst::automation {
namespace {

void AppendDigits(std::string& text, std::uint32_t value, int count) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (int shift = 4 * (count - 1); shift >= 0; shift -= 4) {
    text += kDigits[(value >> shift) & 0xFU];
  }
}

}  // namespace

std::string ToString(const Guid& guid) {
  std::string text;
  AppendDigits(text, guid.data1, 8);
  text += '-';
  AppendDigits(text, guid.data2, 4);
  text += '-';
  AppendDigits(text, guid.data3, 4);
  text += '-';
  for (std::size_t i = 0; i < guid.data4.size(); ++i) {
    text += i == 2 ? "-" : "";
    AppendDigits(text, guid.data4[i], 2);
  }
  return text;
}

}  // namespace qorltst::automation
