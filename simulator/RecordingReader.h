// Reads session files: recordings that people write by hand. Their form is explained in docs/display-format.md.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "simulator/Recording.h"

namespace qorltst::simulator {

/// A session file that cannot be read. The message (UTF-8) names the file, the line where there is one, and
/// the reason.
class RecordingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the commands of a session file one after another, so that a file may be longer than memory. A command that is
/// answered twice is no error here.
class RecordingReader {
 public:
  /// The stream must outlive the reader. Where the file starts with screen lines, they answer `impliedCommand`; without
  /// one that is an error.
  RecordingReader(std::istream& stream, std::string name, std::u16string_view impliedCommand = {});
  RecordingReader(const RecordingReader&) = delete;
  RecordingReader& operator=(const RecordingReader&) = delete;
  ~RecordingReader();

  /// The next command with its answer; nothing at the end. Raises `RecordingError`, and then goes on with the command
  /// after the damaged answer.
  [[nodiscard]] std::optional<Exchange> Next();

  /// The command that the next call goes on with, where the reader has come to it already: it ends the answer before
  /// it.
  [[nodiscard]] std::optional<std::u16string_view> Ahead() const;

 private:
  class Reading;

  std::unique_ptr<Reading> reading_;
};

/// Reads UTF-8. `name` stands for the file in messages. Raises `RecordingError`.
[[nodiscard]] Recording ReadRecording(std::istream& stream, const std::string& name);

/// Raises `RecordingError`, also when the file cannot be opened.
[[nodiscard]] Recording ReadRecording(const std::filesystem::path& file);

}  // namespace qorltst::simulator
