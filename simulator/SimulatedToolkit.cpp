// The simulator as a toolkit. See SimulatedToolkit.h.
#include "simulator/SimulatedToolkit.h"

#include "simulator/MemoryLogger.h"
#include "simulator/ScreenParser.h"

namespace qorltst::simulator {

SimulatedToolkit::SimulatedToolkit()
    : log_(Make<SharedLog>()),
      parserSource_([] { return Make<ScreenParser>(); }),
      loggerSource_([log = log_] { return Make<MemoryLogger>(log); }) {}

Ref<ParseNode> SimulatedToolkit::CreateParser() {
  ++parsersCreated_;
  return parserSource_();
}

Ref<toolkit::HostLogger> SimulatedToolkit::CreateLogger() {
  ++loggersCreated_;
  return loggerSource_();
}

}  // namespace qorltst::simulator
