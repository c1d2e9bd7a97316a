// Writes a page of HTML for each display. See Output.h for its siblings.
#pragma once

#include "simulator/SimulatedToolkit.h"
#include "tools/tstdump/Output.h"

namespace qorltst::tstdump {

/// Pages go to files in the options' folder, named after their place in the batch, their file and its line, or a single
/// one to the stream; a second one there raises `UsageError`.
class PageOutput final : public Output {
 public:
  PageOutput(const Options& options, std::ostream& out);

  void Write(const Retrieved& retrieved) override;

 private:
  const Options& options_;
  std::ostream& out_;
  /// Reads fare calculations again, for their pieces.
  Ref<simulator::SimulatedToolkit> toolkit_;
  std::size_t pages_ = 0;
};

}  // namespace qorltst::tstdump
