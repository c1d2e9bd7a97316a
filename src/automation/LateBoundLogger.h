// The host toolkit's logger, reached by name. Counterpart: toolkit/HostLogger.h.
#pragma once

#include "automation/LateBoundObject.h"
#include "toolkit/HostLogger.h"

namespace qorltst::automation {

/// The names of a logger's members, for sharing between the loggers of one toolkit.
[[nodiscard]] Ref<DispatchNames> MakeLoggerNames();

class LateBoundLogger final : public toolkit::HostLogger {
 public:
  LateBoundLogger(ComRef<IDispatch> object, Ref<DispatchNames> names) : object_(std::move(object), std::move(names)) {}

  void SetApplication(std::u16string_view name) override;
  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) override;

 private:
  LateBoundObject object_;
};

}  // namespace qorltst::automation
