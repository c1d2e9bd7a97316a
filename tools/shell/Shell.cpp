// See Shell.h.
#include "tools/shell/Shell.h"

#include <algorithm>
#include <array>
#include <set>

#include "simulator/RecordingReader.h"
#include "simulator/Utf.h"
#include "toolkit/HostNumbers.h"
#include "tools/model/NearNames.h"
#include "tools/model/ObjectPath.h"
#include "tools/model/Selection.h"
#include "tools/model/TextTree.h"
#include "tools/model/ValueText.h"
#include "tools/shell/Summary.h"

namespace qorltst::shell {
namespace {

/// What a user has asked for that cannot be done.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Result {
  std::int32_t code;
  std::string_view meaning;
};

constexpr std::array kResults{
    Result{toolkit::kNoError, "parsed"},
    Result{toolkit::kUnintendedResponse, "the display is not a TST"},
    Result{toolkit::kParsingWarning, "parsed, with warnings"},
    Result{toolkit::kParsingError, "parse error"},
    Result{toolkit::kSessionProblem, "problem with the session"},
};

std::string_view MeaningOf(std::int32_t code) {
  const auto* const found = std::ranges::find(kResults, code, &Result::code);
  return found != kResults.end() ? found->meaning : "unknown";
}

constexpr std::string_view kOn = "on";
constexpr std::string_view kOff = "off";

/// Refuses a line that starts neither like a path nor like anything else; a command may have been meant as well.
void CheckStart(std::string_view line) {
  const std::u16string name = simulator::ToUtf16(line.substr(0, line.find_first_of(" \t.(")));
  if (TST::kDescription.FindByName(name) != nullptr || CompareNames(TST::kDescription.name, name) == 0) {
    return;
  }
  std::vector<std::u16string> commands;
  std::set<std::u16string_view> known;
  for (const Shell::Command& command : Shell::Commands()) {
    commands.push_back(simulator::ToUtf16(command.name));
  }
  known.insert(commands.begin(), commands.end());
  for (const Member& row : TST::kDescription.members) {
    known.insert(row.name);
  }
  throw Refusal("there is no command, entry or property " + model::PrintableText(name) +
                model::DidYouMean(name, known));
}

}  // namespace

std::string_view Trimmed(std::string_view text) noexcept {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool IsSameName(std::string_view left, std::string_view right) { return Capitals(left) == Capitals(right); }

Shell::Shell(std::ostream& out)
    : out_(out), toolkit_(Make<simulator::SimulatedToolkit>()), ticket_(Make<TST>(*toolkit_)) {}

std::span<const Shell::Command> Shell::Commands() noexcept {
  static constexpr std::array kCommands{
      Command{"display", Argument::File, "FILE", "load a recorded display", &Shell::Display},
      Command{"send", Argument::Entry, "ENTRY", "send any entry to the host and show its screen", &Shell::Send},
      Command{"retrieve", Argument::Entry, "[ENTRY]", "retrieve the current TST, or that of a display command",
              &Shell::Retrieve},
      Command{"tree", Argument::Path, "[PATH]", "show all that is filled, or what is below a path", &Shell::Tree},
      Command{"log", Argument::Switch, "[on|off]", "show the log of the last retrieval, or that of each", &Shell::Log},
      Command{"classes", Argument::Class, "[CLASS]", "list the classes, or the members of one", &Shell::Classes},
      Command{"help", Argument::None, "", "this text", &Shell::Help},
      Command{"quit", Argument::None, "", "leave", &Shell::Quit},
  };
  return kCommands;
}

bool Shell::Run(std::string_view line) {
  line = Trimmed(line);
  if (line.empty() || line.starts_with('#')) {
    return true;
  }
  try {
    Dispatch(line);
    return true;
  } catch (const std::exception& error) {
    out_ << "error: " << error.what() << '\n';
    return false;
  }
}

void Shell::Dispatch(std::string_view line) {
  const std::string_view word = line.substr(0, line.find_first_of(" \t"));
  const auto found =
      std::ranges::find_if(Commands(), [&](const Command& command) { return IsSameName(command.name, word); });
  if (found != Commands().end()) {
    const std::string_view argument = Trimmed(line.substr(word.size()));
    if (found->usage.empty() && !argument.empty()) {
      throw Refusal(std::string(found->name) + " takes nothing behind it");
    }
    (this->*found->run)(argument);
  } else if (host_.IsEntry(line)) {
    Send(line);
  } else {
    CheckStart(line);
    ShowPath(line);
  }
}

void Shell::Display(std::string_view file) {
  if (file.empty()) {
    throw Refusal("display needs the name of a session file");
  }
  host_ = Host::Load(std::filesystem::path(file));
  out_ << "The host answers";
  for (const std::string& entry : host_.Entries()) {
    out_ << ' ' << model::PrintableText(entry);
  }
  out_ << '\n';
}

void Shell::Send(std::string_view entry) {
  if (entry.empty()) {
    throw Refusal("send needs an entry, such as TQT");
  }
  const std::vector<std::string> screen = host_.Send(entry);
  if (screen.empty()) {
    out_ << "The host does not answer\n";
  }
  for (const std::string& line : screen) {
    out_ << line << '\n';
  }
}

void Shell::Retrieve(std::string_view entry) {
  toolkit_->Log()->Clear();
  ticket_ = Make<TST>(*toolkit_);
  const std::int32_t code = entry.empty()
                                ? ticket_->RetrieveCurrentTst(&host_.Session())
                                : ticket_->RetrieveSpecificTst(&host_.Session(), simulator::ToUtf16(Capitals(entry)));
  if (showsLog_) {
    PrintLog();
  }
  out_ << "Result " << code << ": " << MeaningOf(code) << '\n';
}

void Shell::Tree(std::string_view path) {
  const model::PathEnd end =
      path.empty() ? model::PathEnd{{}, ticket_.Get(), ticket_.Get(), nullptr} : model::FollowPath(*ticket_, path);
  std::string text;
  Object* const* const object = std::get_if<Object*>(&end.content);
  if (object != nullptr && *object != nullptr && model::AsCollection(**object) == nullptr) {
    model::PrintTree(text, **object, {});
  } else {
    model::PrintTree(text, *end.owner, {}, 0, std::vector{end.row});
  }
  out_ << (text.empty() ? "nothing is filled\n" : text);
}

void Shell::Log(std::string_view setting) {
  if (setting.empty()) {
    PrintLog();
  } else if (IsSameName(setting, kOn) || IsSameName(setting, kOff)) {
    showsLog_ = IsSameName(setting, kOn);
  } else {
    throw Refusal("log takes on, off or nothing");
  }
}

void Shell::PrintLog() {
  for (const simulator::LogEntry& entry : toolkit_->Log()->Entries()) {
    out_ << "  " << simulator::FormatLogEntry(entry) << '\n';
  }
}

void Shell::Classes(std::string_view name) {
  std::string text;
  if (name.empty()) {
    AppendClasses(text);
  } else {
    AppendClass(text, name);
  }
  out_ << text;
}

void Shell::Help(std::string_view /*nothing*/) {
  constexpr std::size_t kUsageWidth = 20;
  for (const Command& command : Commands()) {
    std::string usage = std::string(command.name) + ' ' + std::string(command.usage);
    usage.resize(kUsageWidth, ' ');
    out_ << "  " << usage << command.help << '\n';
  }
  out_ << "An entry of the host, such as TQT or MD, shows its screen. Anything else is a path into the ticket:\n"
          "AirSegments, AirSegments(2), AirSegments(2).BoardPoint. Tab completes names; capitals do not matter.\n";
}

void Shell::Quit(std::string_view /*nothing*/) { isOver_ = true; }

void Shell::ShowPath(std::string_view path) {
  std::string text;
  AppendSummary(text, model::FollowPath(*ticket_, path));
  out_ << text;
}

}  // namespace qorltst::shell
