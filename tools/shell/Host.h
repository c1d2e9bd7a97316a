// The host of a session in the shell: a recorded display, and the screens that it answers with.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/RecordedSession.h"

namespace qorltst::shell {

/// Like the host, it tells entries apart by capital letters; what a user writes is taken for such.
class Host {
 public:
  /// A host that knows no entry.
  Host() : Host(simulator::Recording()) {}

  explicit Host(simulator::Recording recording);

  /// Raises `simulator::RecordingError`.
  [[nodiscard]] static Host Load(const std::filesystem::path& file);

  /// Whether the user means the host: an entry that it knows, one that starts like a display command, or "MD".
  [[nodiscard]] bool IsEntry(std::string_view line) const;

  /// The lines of the answering screen, fit for a terminal, without the blanks and blank lines at their ends. Empty
  /// where the host does not answer.
  [[nodiscard]] std::vector<std::string> Send(std::string_view entry);

  /// The entries that are answered, in their order, "MD" last.
  [[nodiscard]] const std::vector<std::string>& Entries() const noexcept { return entries_; }

  [[nodiscard]] toolkit::HostSession& Session() noexcept { return *session_; }

 private:
  std::vector<std::string> entries_;
  toolkit::Ref<simulator::RecordedSession> session_;
};

/// The text in capital letters (ASCII).
[[nodiscard]] std::string Capitals(std::string_view text);

}  // namespace qorltst::shell
