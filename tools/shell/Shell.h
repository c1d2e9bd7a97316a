// An interactive session: entries to the host, retrievals through the component, and a look into what they gave.
#pragma once

#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "frame/TST.h"
#include "simulator/SimulatedToolkit.h"
#include "tools/shell/Host.h"

namespace qorltst::shell {

class Shell {
 public:
  /// What may follow a command; completion offers it.
  enum class Argument : std::uint8_t { None, File, Entry, Path, Class, Switch };

  struct Command {
    std::string_view name;
    Argument argument;
    /// The argument as the help shows it.
    std::string_view usage;
    std::string_view help;
    void (Shell::*run)(std::string_view argument);
  };

  /// Prints to `out`, which outlives the shell.
  explicit Shell(std::ostream& out);

  [[nodiscard]] static std::span<const Command> Commands() noexcept;

  /// Does what the line says: a command, an entry to the host, or else a path. Answers false after printing what is
  /// wrong with it.
  bool Run(std::string_view line);

  /// Whether the user wants to go.
  [[nodiscard]] bool IsOver() const noexcept { return isOver_; }

  [[nodiscard]] const Host& CurrentHost() const noexcept { return host_; }

  /// The ticket of the last retrieval; an empty one before the first.
  [[nodiscard]] TST& Ticket() const noexcept { return *ticket_; }

 private:
  void Dispatch(std::string_view line);

  void Display(std::string_view file);
  void Retrieve(std::string_view entry);
  void Send(std::string_view entry);
  void Tree(std::string_view path);
  void Log(std::string_view setting);
  void Classes(std::string_view name);
  void Help(std::string_view nothing);
  void Quit(std::string_view nothing);

  void ShowPath(std::string_view path);
  void PrintLog();

  std::ostream& out_;
  Host host_;
  Ref<simulator::SimulatedToolkit> toolkit_;
  Ref<TST> ticket_;
  bool showsLog_ = false;
  bool isOver_ = false;
};

/// The text without the blanks around it.
[[nodiscard]] std::string_view Trimmed(std::string_view text) noexcept;

/// Whether two names are the same but for the case of their letters.
[[nodiscard]] bool IsSameName(std::string_view left, std::string_view right);

}  // namespace qorltst::shell
