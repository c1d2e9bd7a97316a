// What a host said: commands with the screens that answered them. Read from files by RecordingReader.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace qorltst::simulator {

/// A command and its answer.
struct Exchange {
  std::u16string command;
  /// The raw texts of the screens in order; the second and further ones answer "MD". With none, the host gives no
  /// answer to the command.
  std::vector<std::u16string> screens;
  /// Where the command stands in its file, counted from 1; 0 for one that is from no file.
  std::size_t line = 0;
};

using Recording = std::vector<Exchange>;

}  // namespace qorltst::simulator
