// Writes retrieved displays one after another, in the form that was asked for.
#pragma once

#include <memory>
#include <ostream>
#include <stdexcept>

#include "tools/tstdump/Options.h"
#include "tools/tstdump/Retriever.h"

namespace qorltst::tstdump {

/// The output took no more.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Each display is on its way when `Write` returns: nothing is held back. All operations may raise `OutputError`.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;

  virtual void Write(const Retrieved& retrieved) = 0;

  /// After the last display.
  virtual void End() {}
};

/// The output of these options. The stream and the options must outlive it.
[[nodiscard]] std::unique_ptr<Output> MakeOutput(const Options& options, std::ostream& out);

/// Writes the text and sends it off. Raises `OutputError`.
void Send(std::ostream& out, std::string_view text);

}  // namespace qorltst::tstdump
