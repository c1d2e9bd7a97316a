// Toolkit and log of the process. See ProcessToolkit.h.
#include "simulator/automation/ProcessToolkit.h"

#include <array>
#include <filesystem>

#include "automation/Com.h"
#include "simulator/FileLogger.h"
#include "simulator/SimulatedToolkit.h"

namespace qorltst::simulator {
namespace {

std::filesystem::path LogFile() {
  std::array<wchar_t, 1024> path{};
  const DWORD length = GetEnvironmentVariableW(L"QORL_HOST_LOG", path.data(), static_cast<DWORD>(path.size()));
  return length < path.size() ? std::filesystem::path(path.data()) : std::filesystem::path();
}

/// Never freed: objects may end after everything else.
SimulatedToolkit& Simulated() {
  static SimulatedToolkit& simulated = []() -> SimulatedToolkit& {
    const auto made = toolkit::Make<SimulatedToolkit>();
    made->AddRef();
    if (const std::filesystem::path file = LogFile(); !file.empty()) {
      made->SetLoggerSource([file] { return toolkit::Make<FileLogger>(file); });
    }
    return *made;
  }();
  return simulated;
}

}  // namespace

toolkit::Ref<toolkit::Toolkit> ProcessToolkit() { return toolkit::Ref<toolkit::Toolkit>(&Simulated()); }

SharedLog& ProcessLog() { return *Simulated().Log(); }

}  // namespace qorltst::simulator
