// The simulator as the component's toolkit.
#pragma once

#include <atomic>
#include <functional>

#include "simulator/SharedLog.h"
#include "toolkit/Toolkit.h"

namespace qorltst::simulator {

/// Parsers read displays unless a source of other ones is set, for instance of a tree built by hand. Loggers write
/// to the one log of the toolkit unless a source of other ones is set. Sources must not give nothing.
class SimulatedToolkit final : public toolkit::Toolkit {
 public:
  using ParserSource = std::function<toolkit::Ref<toolkit::ParseNode>()>;
  using LoggerSource = std::function<toolkit::Ref<toolkit::HostLogger>()>;

  SimulatedToolkit();

  toolkit::Ref<toolkit::ParseNode> CreateParser() override;
  toolkit::Ref<toolkit::HostLogger> CreateLogger() override;

  void SetParserSource(ParserSource source) { parserSource_ = std::move(source); }
  void SetLoggerSource(LoggerSource source) { loggerSource_ = std::move(source); }

  /// Where the loggers of this toolkit write, unless another source of loggers is set.
  [[nodiscard]] const toolkit::Ref<SharedLog>& Log() const noexcept { return log_; }

  [[nodiscard]] std::size_t ParsersCreated() const noexcept { return parsersCreated_; }
  [[nodiscard]] std::size_t LoggersCreated() const noexcept { return loggersCreated_; }

 private:
  toolkit::Ref<SharedLog> log_;
  ParserSource parserSource_;
  LoggerSource loggerSource_;
  std::atomic<std::size_t> parsersCreated_{0};
  std::atomic<std::size_t> loggersCreated_{0};
};

}  // namespace qorltst::simulator
