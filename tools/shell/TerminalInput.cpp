// Lines from a terminal, by libedit. See Input.h.
#include <editline/readline.h>

#include <cstdlib>
#include <cstring>
#include <memory>

#include "tools/shell/Completion.h"
#include "tools/shell/Input.h"

namespace qorltst::shell {
namespace {

/// The library calls back without saying for whom.
const Shell* completed = nullptr;

/// What the library frees: the words that may stand in the place of the last one, before them what they have in common,
/// after them nothing.
char** OfferWords(const char* /*word*/, int /*start*/, int end) {
  rl_attempted_completion_over = 1;
  const auto words = Complete(*completed, std::string_view(rl_line_buffer).substr(0, static_cast<std::size_t>(end)));
  if (words.empty()) {
    return nullptr;
  }
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory,cppcoreguidelines-no-malloc): the library calls free for it
  auto** const offered = static_cast<char**>(std::calloc(words.size() + 2, sizeof(char*)));
  if (offered != nullptr) {
    offered[0] = strdup(CommonStart(words).c_str());
    for (std::size_t i = 0; i < words.size(); ++i) {
      offered[i + 1] = strdup(words[i].c_str());
    }
  }
  return offered;
}

class TerminalInput final : public Input {
 public:
  TerminalInput(const Shell& shell, std::string history) : history_(std::move(history)) {
    static char program[] = "qorl_shell";
    completed = &shell;
    rl_readline_name = program;
    rl_initialize();
    rl_basic_word_break_characters = " \t";
    rl_attempted_completion_function = &OfferWords;
    // A path may go on behind a name.
    rl_completion_append_character = 0;
    using_history();
    if (!history_.empty()) {
      read_history(history_.c_str());
    }
  }
  ~TerminalInput() override {
    if (!history_.empty()) {
      write_history(history_.c_str());
    }
    completed = nullptr;
  }

  std::optional<std::string> Next() override {
    const std::unique_ptr<char, decltype(&std::free)> line(readline(kPrompt), &std::free);
    if (line == nullptr) {
      return std::nullopt;
    }
    if (!Trimmed(line.get()).empty()) {
      add_history(line.get());
    }
    return std::string(line.get());
  }

 private:
  std::string history_;
};

}  // namespace

std::unique_ptr<Input> ReadTerminal(const Shell& shell, const std::filesystem::path& history) {
  return std::make_unique<TerminalInput>(shell, history.string());
}

}  // namespace qorltst::shell
