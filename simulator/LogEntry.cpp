// The readable form of log entries. See LogEntry.h.
#include "simulator/LogEntry.h"

#include <algorithm>
#include <array>

#include "simulator/Utf.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::simulator {
namespace {

struct KindName {
  std::int32_t kind;
  std::string_view name;
};

constexpr std::array kKindNames{
    KindName{toolkit::kLogError, "ERROR"},
    KindName{toolkit::kLogWarning, "WARNING"},
    KindName{toolkit::kLogTrace, "TRACE"},
};

}  // namespace

std::string LogKindName(std::int32_t kind) {
  const auto* const found = std::ranges::find(kKindNames, kind, &KindName::kind);
  return found != kKindNames.end() ? std::string(found->name) : std::to_string(kind);
}

std::string FormatLogEntry(const LogEntry& entry) {
  const std::string application = entry.application.empty() ? "-" : ToUtf8(entry.application);
  return EscapeControls(application + ' ' + LogKindName(entry.kind) + ' ' + std::to_string(entry.number) + ' ' +
                        ToUtf8(entry.source) + ": " + ToUtf8(entry.message));
}

}  // namespace qorltst::simulator
