// A host toolkit that does what a scenario says, and counts what it is asked.
#pragma once

#include <cstddef>

#include "fuzz/support/Scenario.h"
#include "simulator/SharedLog.h"
#include "toolkit/HostSession.h"
#include "toolkit/Toolkit.h"

namespace qorltst::fuzz {

/// Raises what the byte stands for: a runtime error, or one of the exceptions that nobody names.
[[noreturn]] void Raise(std::uint8_t error);

/// The scenario must outlive the toolkit and everything that it hands out.
class ScenarioToolkit final : public toolkit::Toolkit {
 public:
  /// With `failingLoggers`, every call to a logger raises.
  explicit ScenarioToolkit(const Scenario& scenario, bool failingLoggers = false)
      : scenario_(scenario), failingLoggers_(failingLoggers), log_(toolkit::Make<simulator::SharedLog>()) {}

  toolkit::Ref<toolkit::ParseNode> CreateParser() override;
  toolkit::Ref<toolkit::HostLogger> CreateLogger() override;

  /// The caller's session; nothing where the scenario has none.
  [[nodiscard]] toolkit::Ref<toolkit::HostSession> Session();

  [[nodiscard]] const toolkit::Ref<simulator::SharedLog>& Log() const noexcept { return log_; }

  /// How many calls sessions, responses, parsers, nodes and enumerators have had.
  [[nodiscard]] std::size_t Calls() const noexcept { return calls_; }
  void Called() noexcept { ++calls_; }

 private:
  const Scenario& scenario_;
  bool failingLoggers_;
  toolkit::Ref<simulator::SharedLog> log_;
  std::size_t parsers_ = 0;
  std::size_t calls_ = 0;
};

}  // namespace qorltst::fuzz
