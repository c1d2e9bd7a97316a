// Reads session files: recordings that people write by hand. Their form is explained in docs/display-format.md.
#pragma once

#include <filesystem>
#include <istream>
#include <stdexcept>
#include <string>

#include "simulator/Recording.h"

namespace qorltst::simulator {

/// A session file that cannot be read. The message (UTF-8) names the file, the line where there is one, and
/// the reason.
class RecordingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads UTF-8. `name` stands for the file in messages. Raises `RecordingError`.
[[nodiscard]] Recording ReadRecording(std::istream& stream, const std::string& name);

/// Raises `RecordingError`, also when the file cannot be opened.
[[nodiscard]] Recording ReadRecording(const std::filesystem::path& file);

}  // namespace qorltst::simulator
