// A piece of a line together with the place where it stands.
#pragma once

#include <algorithm>
#include <string_view>

namespace qorltst::simulator {

struct Field {
  std::u16string_view text;
  /// From the start of the line, 0-based, counted over its continuation lines too.
  std::size_t position = 0;

  [[nodiscard]] bool Empty() const noexcept { return text.empty(); }

  /// Takes `count` characters, or all there are, off the front.
  Field Take(std::size_t count) {
    const Field taken{text.substr(0, count), position};
    text.remove_prefix(taken.text.size());
    position += taken.text.size();
    return taken;
  }

  /// Takes all up to the separator off the front, and drops the separator; without one takes all.
  Field TakeUntil(char16_t separator) {
    const Field taken = Take(std::min(text.find(separator), text.size()));
    Take(1);
    return taken;
  }
};

}  // namespace qorltst::simulator
