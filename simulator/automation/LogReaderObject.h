// The log of this process for scripts: what all loggers wrote, in order.
#pragma once

#include "frame/ClassDescription.h"
#include "frame/Object.h"

namespace qorltst::simulator {

/// Holds nothing itself; every reader reads the log as it is now.
class LogReaderObject final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit LogReaderObject(toolkit::Toolkit& /*toolkit*/) noexcept {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

 private:
  struct Table;
};

}  // namespace qorltst::simulator
