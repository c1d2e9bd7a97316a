// See LogExcerpt.h.
#include "tools/reference/LogExcerpt.h"

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/TST.h"
#include "simulator/LogEntry.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"
#include "simulator/Utf.h"

namespace qorltst::reference {
namespace {

constexpr std::string_view kOpening = "```log ";
constexpr std::string_view kClosing = "```";

/// What stands behind the word "log".
struct Request {
  std::string file;
  std::string command;
  std::size_t first = 1;
  std::size_t last = 0;  // 0: to the end
};

Request Read(const std::string& line) {
  Request request;
  std::istringstream words(line.substr(kOpening.size()));
  words >> request.file >> request.command;
  char dash = 0;
  if (words >> request.first && !(words >> dash >> request.last)) {
    request.last = request.first;
  }
  return request;
}

std::vector<simulator::LogEntry> LogOf(const Request& request, const std::filesystem::path& sources) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto session = simulator::RecordedSession::Load(sources / request.file);
  const auto tst = Make<TST>(*toolkit);
  if (request.command == "TQT") {
    tst->RetrieveCurrentTst(session.Get());
  } else {
    tst->RetrieveSpecificTst(session.Get(), simulator::ToUtf16(request.command));
  }
  return toolkit->Log()->Entries();
}

void WriteEntries(const Request& request, const std::filesystem::path& sources, std::ostream& out) {
  const auto entries = LogOf(request, sources);
  const std::size_t last = request.last == 0 ? entries.size() : request.last;
  if (request.first == 0 || request.first > last || last > entries.size()) {
    throw std::runtime_error("the log of " + request.file + " has " + std::to_string(entries.size()) + " entries");
  }
  for (std::size_t i = request.first; i <= last; ++i) {
    out << FormatLogEntry(entries[i - 1]) << '\n';
  }
}

}  // namespace

void RenewLogExcerpts(std::istream& page, const std::filesystem::path& sources, std::ostream& out) {
  bool isInside = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with(kOpening)) {
      out << line << '\n';
      WriteEntries(Read(line), sources, out);
      isInside = true;
    } else if (!isInside || line == kClosing) {
      out << line << '\n';
      isInside = false;
    }
  }
}

}  // namespace qorltst::reference
