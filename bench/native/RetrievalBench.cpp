// What the component costs natively, without an automation border: creation, a fill, a whole retrieval.
// Its counterpart across the border is bench/automation.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "elements/AirSegment.h"
#include "elements/TSTHeader.h"
#include "frame/TST.h"
#include "simulator/Node.h"
#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "simulator/SimulatedToolkit.h"

namespace {

using qorltst::Make;
using qorltst::simulator::SimulatedToolkit;

/// Swallows what is written: here the component is measured, not a log.
class NoLogger final : public qorltst::toolkit::HostLogger {
 public:
  void SetApplication(std::u16string_view /*name*/) override {}
  void Write(std::int32_t /*kind*/, std::u16string_view /*source*/, std::int32_t /*number*/,
             std::u16string_view /*message*/) override {}
};

qorltst::Ref<SimulatedToolkit> ToolkitWithoutLog() {
  auto toolkit = Make<SimulatedToolkit>();
  toolkit->SetLoggerSource([] { return Make<NoLogger>(); });
  return toolkit;
}

void CreateAnElement(benchmark::State& state) {
  const auto toolkit = ToolkitWithoutLog();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(Make<qorltst::AirSegment>(*toolkit));
  }
}
BENCHMARK(CreateAnElement);

void CreateARootObject(benchmark::State& state) {
  const auto toolkit = ToolkitWithoutLog();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(Make<qorltst::TST>(*toolkit));
  }
}
BENCHMARK(CreateARootObject);

void FillASegment(benchmark::State& state) {
  using qorltst::simulator::Node;
  const auto toolkit = ToolkitWithoutLog();
  const auto node = Node(230, u"AIR 1 QX 411 Y 12NOV 0910 OK",
                         {Node(2699, u"1"), Node(3, u"QX"), Node(95, u"411"), Node(93, u"Y"), Node(94, u"12NOV"),
                          Node(99, u"0910"), Node(96, u"OK")});
  for ([[maybe_unused]] auto _ : state) {
    const auto segment = Make<qorltst::AirSegment>(*toolkit);
    segment->FillWithData(*node.Get());
    benchmark::DoNotOptimize(segment);
  }
}
BENCHMARK(FillASegment);

void RetrieveADisplay(benchmark::State& state, const char* display) {
  const auto toolkit = ToolkitWithoutLog();
  const auto recording =
      qorltst::simulator::ReadRecording(std::filesystem::path(QORL_SOURCE_DIR) / "examples/displays" / display);
  for ([[maybe_unused]] auto _ : state) {
    const auto session = Make<qorltst::simulator::RecordedSession>(recording);
    const auto tst = Make<qorltst::TST>(*toolkit);
    benchmark::DoNotOptimize(tst->RetrieveCurrentTst(session.Get()));
  }
}
BENCHMARK_CAPTURE(RetrieveADisplay, OneScreen, "fares.txt");
BENCHMARK_CAPTURE(RetrieveADisplay, TwoScreens, "long.txt");

}  // namespace
