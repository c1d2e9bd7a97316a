// The error trap of internal operations. See Frame.h.
#include "frame/Frame.h"

#include "frame/modClassIDGenerator.h"

namespace qorltst {

Frame::Frame(toolkit::Toolkit& toolkit) : classDebugId_(modClassIDGenerator::OfProcess().NextID()), log_(toolkit) {}

void Frame::Trace(const TraceLine& line) noexcept {
  if (!line.text.empty()) {
    log_.LogTrace(line.text, line.source);
  }
}

void Frame::HandleError(const TraceLine& errorEnd) {
  const RuntimeError error = toolkit::CurrentRuntimeError();
  const PendingError pending(error);
  modErrorHandling::RaiseError(error.Number(), error.Source());
  Trace(errorEnd);  // never reached: the raise above leaves first, and the line keeps its place
}

}  // namespace qorltst
