// See Options.h.
#include "tools/tstdump/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace qorltst::tstdump {
namespace {

constexpr const char* kDescription =
    "Retrieves stored tickets from recorded host sessions or plain displays and prints them.";

constexpr const char* kFooter =
    "Exit codes:\n"
    "  0  every display was parsed\n"
    "  1  some display is no ticket or could not be parsed\n"
    "  2  the command line cannot be understood\n"
    "  3  some file could not be read\n"
    "  4  the output could not be written\n";

/// What the command line says before it is put together.
struct Written {
  Options options;
  bool json = false;
  bool jsonLines = false;
  bool html = false;
  bool all = false;
  bool filled = false;
  bool noProgress = false;
  std::vector<std::string> classes;
  std::vector<std::string> properties;
};

struct FlagRow {
  const char* names;
  bool& (*target)(Written&);
  const char* help;
};

constexpr std::array kFlags{
    FlagRow{"--json", [](Written& w) -> bool& { return w.json; }, "print one indented JSON array"},
    FlagRow{"--jsonl", [](Written& w) -> bool& { return w.jsonLines; }, "print JSON, a line for each display"},
    FlagRow{"--html", [](Written& w) -> bool& { return w.html; },
            "print a page of HTML, or with --output one a display"},
    FlagRow{"--schema", [](Written& w) -> bool& { return w.options.schema; },
            "print the JSON Schema of a display and end"},
    FlagRow{"--trace", [](Written& w) -> bool& { return w.options.trace; }, "print the component's log as well"},
    FlagRow{"--all", [](Written& w) -> bool& { return w.all; }, "print what is empty, too (usual in JSON)"},
    FlagRow{"--filled", [](Written& w) -> bool& { return w.filled; }, "leave out what is empty (usual in text)"},
    FlagRow{"--numbers", [](Written& w) -> bool& { return w.options.filter.numbers; },
            "print the objects' debug numbers"},
    FlagRow{"--strict", [](Written& w) -> bool& { return w.options.strict; }, "take a warning for a failure"},
    FlagRow{"--no-progress", [](Written& w) -> bool& { return w.noProgress; }, "never show how far a batch has come"},
    FlagRow{"-0,--null", [](Written& w) -> bool& { return w.options.nulEnds; },
            "names in the list of --files-from end with NUL"},
};

void AddOptions(CLI::App& app, Written& written) {
  for (const FlagRow& row : kFlags) {
    app.add_flag(row.names, row.target(written), row.help);
  }
  app.get_option("--json")->excludes("--jsonl")->excludes("--html");
  app.get_option("--jsonl")->excludes("--html");
  app.get_option("--all")->excludes("--filled");
  const auto list = [&app](const char* name, std::vector<std::string>& target, const char* help) {
    app.add_option(name, target, help)->type_name("NAME")->allow_extra_args(false);
  };
  list("--class", written.classes, "print only objects of this class (may be repeated)");
  list("--property", written.properties, "print only this property (may be repeated)");
  app.add_option("--command", written.options.command, "take only displays that answer this command")
      ->type_name("TEXT");
  app.add_option("--output", written.options.folder, "write pages of HTML to this folder, a file for each display")
      ->type_name("FOLDER")
      ->needs("--html");
  app.add_option("--files-from", written.options.filesFrom, "read the names of files from this one, - for the input")
      ->type_name("FILE");
  app.add_option("files", written.options.files, "files, folders, - for the input, which is also read without any")
      ->type_name("FILE");
}

Options PutTogether(Written written) {
  Options options = std::move(written.options);
  if (written.json || written.jsonLines) {
    options.format = written.json ? Format::Json : Format::JsonLines;
  }
  if (written.html) {
    options.format = Format::Html;
  }
  options.filter.empty = options.format == Format::Text && !options.schema ? written.all : !written.filled;
  options.progress = !written.noProgress;
  if (options.nulEnds && options.filesFrom.empty()) {
    throw UsageError("--null is about the list of --files-from");
  }
  const auto inputs = std::ranges::count(options.files, "-") + (options.filesFrom == "-" ? 1 : 0);
  if (inputs > 1) {
    throw UsageError("the standard input can be read once only");
  }
  try {
    options.selection = model::Selection(written.classes, written.properties);
  } catch (const model::UnknownName& error) {
    throw UsageError(error.what());
  }
  if (written.html && !options.selection.IsEverything()) {
    throw UsageError("a page shows the whole ticket");
  }
  if (options.files.empty() && options.filesFrom.empty()) {
    options.files.emplace_back("-");
  }
  return options;
}

}  // namespace

Options ReadOptions(std::vector<std::string> arguments) {
  CLI::App app(kDescription, "tstdump");
  Written written;
  AddOptions(app, written);
  app.set_version_flag("--version", "tstdump " QORL_VERSION, "print the version and end");
  app.set_help_flag("-h,--help", "print this text and end");
  app.footer(kFooter);
  std::ranges::reverse(arguments);  // the order in which the library takes them
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp& /*asked*/) {
    throw Information{app.help()};
  } catch (const CLI::CallForVersion& asked) {
    throw Information{std::string(asked.what()) + '\n'};
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  return PutTogether(std::move(written));
}

}  // namespace qorltst::tstdump
