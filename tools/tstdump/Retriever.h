// Retrieves a recorded display through the component, each with a new object model.
#pragma once

#include <string_view>
#include <vector>

#include "frame/TST.h"
#include "simulator/LogEntry.h"
#include "simulator/SimulatedToolkit.h"
#include "tools/tstdump/DisplayReader.h"

namespace qorltst::tstdump {

/// The command of `TST::RetrieveCurrentTst`.
inline constexpr std::u16string_view kCurrentCommand = u"TQT";

/// A display and what came of it.
struct Retrieved {
  Display display;
  /// The component's result code.
  std::int32_t result = 0;
  /// Absent where the display is no ticket or could not be parsed.
  Ref<TST> ticket;
  /// The errors that the component logged, or all that it logged.
  std::vector<simulator::LogEntry> log;
  /// Where a failure ended the retrieval, so that the ticket holds only what was filled before; empty where none did.
  /// The result code does not tell: it is the one held at that moment.
  std::u16string brokenOffIn;

  /// Whether the ticket is there and nothing went wrong on the way.
  [[nodiscard]] bool IsGood() const;
  [[nodiscard]] bool HasWarnings() const;
};

/// What a result code says, such as "parsed".
[[nodiscard]] std::string_view MeaningOf(std::int32_t result);

class Retriever {
 public:
  /// With `keepsAll`, traces and warnings of the log are kept and not errors alone.
  explicit Retriever(bool keepsAll);
  Retriever(const Retriever&) = delete;
  Retriever& operator=(const Retriever&) = delete;
  ~Retriever();

  [[nodiscard]] Retrieved Retrieve(Display display);

 private:
  class Logger;

  Ref<simulator::SimulatedToolkit> toolkit_;
  Ref<Logger> logger_;
};

}  // namespace qorltst::tstdump
