// Where the shell's lines come from: a terminal, with completion and history, or any other stream.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

#include "tools/shell/Shell.h"

namespace qorltst::shell {

inline constexpr const char* kPrompt = "tst> ";

class Input {
 public:
  Input() = default;
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;
  virtual ~Input() = default;

  /// The next line; nothing after the last.
  virtual std::optional<std::string> Next() = 0;
};

/// Reads lines from a stream and prints each after a prompt, so that the output reads as the session. Both streams
/// outlive it.
[[nodiscard]] std::unique_ptr<Input> ReadStream(std::istream& in, std::ostream& out);

/// Lets the user edit lines, complete names of `shell` by Tab, and look up earlier lines; `history` keeps them from one
/// session to the next unless it is empty. There is one at a time; the shell outlives it.
[[nodiscard]] std::unique_ptr<Input> ReadTerminal(const Shell& shell, const std::filesystem::path& history);

}  // namespace qorltst::shell
