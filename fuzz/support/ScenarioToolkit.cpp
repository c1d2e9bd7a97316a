// See ScenarioToolkit.h. The nodes are ScenarioParseNode.h.
#include "fuzz/support/ScenarioToolkit.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include "fuzz/support/ScenarioParseNode.h"
#include "simulator/MemoryLogger.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::fuzz {
namespace {

using toolkit::HostLogger;
using toolkit::HostResponse;
using toolkit::Make;

class Response final : public HostResponse {
 public:
  Response(ScenarioToolkit& toolkit, const ScenarioScreen& screen) : toolkit_(toolkit), screen_(screen) {}

  std::u16string Text() override {
    toolkit_.Called();
    if (screen_.kind == ScenarioScreen::Kind::FailingText) {
      Raise(screen_.error);
    }
    return screen_.text;
  }

 private:
  ScenarioToolkit& toolkit_;
  const ScenarioScreen& screen_;
};

class Session final : public toolkit::HostSession {
 public:
  Session(ScenarioToolkit& toolkit, const Scenario& scenario) : toolkit_(toolkit), scenario_(scenario) {}

  Ref<HostResponse> SendCommand(std::u16string_view /*command*/, bool /*wait*/) override {
    toolkit_.Called();
    if (next_ == scenario_.screens.size()) {
      return nullptr;
    }
    const ScenarioScreen& screen = scenario_.screens[next_++];
    if (screen.kind == ScenarioScreen::Kind::FailingCommand) {
      Raise(screen.error);
    }
    return screen.kind == ScenarioScreen::Kind::Nothing ? nullptr : Make<Response>(toolkit_, screen);
  }

  void SetOption(std::int32_t /*option*/, bool /*value*/) override {
    toolkit_.Called();
    if (scenario_.failingOption) {
      Raise(0);
    }
  }

 private:
  ScenarioToolkit& toolkit_;
  const Scenario& scenario_;
  std::size_t next_ = 0;
};

class FailingLogger final : public HostLogger {
 public:
  void SetApplication(std::u16string_view /*name*/) override { Raise(0); }
  void Write(std::int32_t /*kind*/, std::u16string_view /*source*/, std::int32_t number,
             std::u16string_view /*message*/) override {
    Raise(static_cast<std::uint8_t>(number));
  }
};

}  // namespace

void Raise(std::uint8_t error) {
  switch (error) {
    case 0:
      throw toolkit::RuntimeError(toolkit::kNoSuchMember);
    case 1:
      throw std::bad_alloc();
    case 2:
      throw std::length_error("no exception of the toolkit's own");
    case 3:
      throw static_cast<int>(error);
    default:
      // Numbers of every size, both signs.
      throw toolkit::RuntimeError(static_cast<std::int32_t>(error * 0x01010101U), u"Scenario", u"raised on purpose");
  }
}

Ref<toolkit::ParseNode> ScenarioToolkit::CreateParser() {
  Called();
  const ScenarioParser& parser = scenario_.parsers[std::min(parsers_, scenario_.parsers.size() - 1)];
  ++parsers_;
  if (parser.kind == ScenarioParser::Kind::FailingCreation) {
    Raise(parser.error);
  }
  return Make<ScenarioParseNode>(*this, scenario_.trees[parser.tree], parser);
}

Ref<HostLogger> ScenarioToolkit::CreateLogger() {
  if (failingLoggers_) {
    return Make<FailingLogger>();
  }
  return Make<simulator::MemoryLogger>(log_);
}

Ref<toolkit::HostSession> ScenarioToolkit::Session() {
  return scenario_.hasSession ? Ref<toolkit::HostSession>(Make<fuzz::Session>(*this, scenario_)) : nullptr;
}

}  // namespace qorltst::fuzz
