// The appending logger. See FileLogger.h.
#include "simulator/FileLogger.h"

#include <fstream>

#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

constexpr std::int32_t kPathFileAccess = 75;

}  // namespace

void FileLogger::Keep(LogEntry entry) {
  std::ofstream stream(file_, std::ios::app | std::ios::binary);
  stream << FormatLogEntry(entry) + '\n';
  if (!stream.flush()) {
    throw toolkit::RuntimeError(kPathFileAccess, u"FileLogger", u"Path/File access error");
  }
}

}  // namespace qorltst::simulator
