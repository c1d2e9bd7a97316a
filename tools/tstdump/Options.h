// What the command line asks for. The help text is made from the same rows; tstdump.1 explains them at length.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/model/Selection.h"

namespace qorltst::tstdump {

enum class Format : std::uint8_t { Text, Json, JsonLines, Html };

struct Options {
  Format format = Format::Text;
  model::Filter filter;
  model::Selection selection;
  /// Where pages go, a file each; a single one to the output where this is empty.
  std::string folder;
  /// Print the schema and nothing else.
  bool schema = false;
  /// Show the whole log and not its errors alone.
  bool trace = false;
  /// A display with warnings is not good either.
  bool strict = false;
  /// Only displays that answer this command; any where it is empty.
  std::string command;
  std::vector<std::string> files;
  /// A file that lists further ones; none where it is empty.
  std::string filesFrom;
  /// The names in that list end with a NUL and not with a line.
  bool nulEnds = false;
  /// Show on the terminal how far the batch has come.
  bool progress = true;
};

/// A command line that cannot be understood; the message (UTF-8) says why.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A command line that asks for a text about the program: help or version.
struct Information {
  std::string text;
};

/// Reads the arguments without the program's name. Raises `UsageError`, or `Information` where that was asked for.
[[nodiscard]] Options ReadOptions(std::vector<std::string> arguments);

}  // namespace qorltst::tstdump
