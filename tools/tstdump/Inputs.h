// The files of a batch, one after another: those named, those in folders, those in a list.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/tstdump/Options.h"

namespace qorltst::tstdump {

/// A file or folder that cannot be read. The message names it; it may hold whatever bytes a name may.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A file to read, open.
struct Input {
  /// As it was named; "-" for the standard input.
  std::string name;
  std::istream& stream;
};

/// Only the files of one folder at a time are held in memory, so a list may be as long as it likes.
class Inputs {
 public:
  /// `standardInput` is what "-" stands for; it must outlive this object.
  Inputs(const Options& options, std::istream& standardInput);

  /// The next file; nothing after the last. It stays open until the next call. Folders stand for the files in them and
  /// below, in the order of their names, hidden ones left out. Raises `InputError`, and goes on with the next file
  /// then.
  [[nodiscard]] std::optional<Input> Next();

 private:
  [[nodiscard]] std::optional<std::string> NextName();
  [[nodiscard]] std::optional<std::string> NextListed();
  [[nodiscard]] bool OpenFolder(const std::string& name);

  std::istream& standardInput_;
  /// Names still to come, the next one last.
  std::vector<std::string> names_;
  std::string listName_;
  std::unique_ptr<std::istream> listFile_;
  std::istream* list_ = nullptr;
  char nameEnd_;
  std::unique_ptr<std::istream> file_;
};

}  // namespace qorltst::tstdump
