// The log sink as an automation object. Counterpart: simulator/Logger.h.
#pragma once

#include "frame/ClassDescription.h"
#include "frame/Object.h"
#include "toolkit/HostLogger.h"

namespace qorltst::simulator {

class LoggerObject final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit LoggerObject(toolkit::Toolkit& toolkit);

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
  [[nodiscard]] toolkit::HostLogger& Logger() const noexcept { return *logger_; }

 private:
  struct Table;

  Ref<toolkit::HostLogger> logger_;
};

}  // namespace qorltst::simulator
