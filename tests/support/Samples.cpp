// See Samples.h.
#include "tests/support/Samples.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "simulator/RecordingReader.h"

namespace qorltst::testing {
namespace {

std::vector<Sample> ReadSamples() {
  std::vector<Sample> samples;
  const std::filesystem::path folder = std::filesystem::path(QORL_SOURCE_DIR) / "examples" / "displays";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    samples.push_back({entry.path().stem().string(), simulator::ReadRecording(entry.path())});
  }
  std::ranges::sort(samples, {}, &Sample::name);
  return samples;
}

}  // namespace

const std::vector<Sample>& Samples() {
  static const std::vector<Sample> samples = ReadSamples();
  return samples;
}

std::vector<Sample> SamplesToWearOut() {
  if (LongForm()) {
    return Samples();
  }
  std::vector<Sample> few;
  for (const char* const name : {"rich", "warnings", "fc-exchange", "fc-hip", "fc-side-trip", "fc-two-screens"}) {
    few.push_back(SampleNamed(name));
  }
  return few;
}

bool LongForm() { return std::getenv("QORL_LONG") != nullptr; }

std::size_t FaultStep() {
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
  return LongForm() ? 1 : 11;
#endif
#endif
  return 1;
}

const Sample& SampleNamed(const std::string& name) {
  const auto found = std::ranges::find(Samples(), name, &Sample::name);
  if (found == Samples().end()) {
    throw std::runtime_error("no display named " + name);
  }
  return *found;
}

}  // namespace qorltst::testing
