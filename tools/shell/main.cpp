// The program qorl_shell: an interactive session on the simulated host. Commands are Shell.h.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <span>
#include <string_view>

#include "tools/shell/Input.h"

namespace {

struct Options {
  std::string display;
  std::string history;
};

/// Nothing where the arguments are wrong.
std::optional<Options> OptionsFrom(std::span<char*> arguments) {
  Options options;
  if (arguments.size() >= 2 && std::string_view(arguments[0]) == "--history") {
    options.history = arguments[1];
    arguments = arguments.subspan(2);
  }
  if (!arguments.empty() && !std::string_view(arguments[0]).starts_with('-')) {
    options.display = arguments[0];
    arguments = arguments.subspan(1);
  }
  return arguments.empty() ? std::optional(options) : std::nullopt;
}

/// Answers whether every line could be done.
bool Talk(const Options& options) {
  const bool isTerminal = isatty(STDIN_FILENO) != 0;
  qorltst::shell::Shell shell(std::cout);
  bool isFine = options.display.empty() || shell.Run("display " + options.display);
  if (isTerminal) {
    std::cout << "help lists the commands; quit leaves.\n" << std::flush;
  }
  const auto input = isTerminal ? qorltst::shell::ReadTerminal(shell, options.history)
                                : qorltst::shell::ReadStream(std::cin, std::cout);
  while (!shell.IsOver()) {
    const auto line = input->Next();
    if (!line) {
      break;
    }
    isFine = shell.Run(*line) && isFine;
    std::cout << std::flush;
  }
  return isFine || isTerminal;
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const auto options = OptionsFrom(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
    if (!options) {
      std::cerr << "usage: qorl_shell [--history FILE] [session file]\n";
      return 2;
    }
    return Talk(*options) ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "qorl_shell: " << error.what() << '\n';
    return 1;
  }
}
