// Retrieves the ticket of a recorded host session and prints the model and the start of the trace, without automation.
// Its script counterpart is examples/retrieve.vbs.
#include <algorithm>
#include <exception>
#include <iostream>
#include <span>
#include <string>
#include <vector>

#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"
#include "simulator/Utf.h"
#include "tools/model/TextTree.h"

namespace {

using qorltst::Make;

constexpr std::size_t kTraceLines = 8;

void PrintTrace(const std::vector<qorltst::simulator::LogEntry>& entries) {
  std::cout << "Trace (" << entries.size() << " entries), the first lines:\n";
  for (const auto& entry : std::span(entries).first(std::min(kTraceLines, entries.size()))) {
    std::cout << "  " << qorltst::simulator::ToUtf8(entry.source) << ": " << qorltst::simulator::ToUtf8(entry.message)
              << '\n';
  }
}

void Retrieve(const char* file) {
  const auto toolkit = Make<qorltst::simulator::SimulatedToolkit>();
  const auto session = qorltst::simulator::RecordedSession::Load(file);
  const auto tst = Make<qorltst::TST>(*toolkit);
  std::cout << "Result " << tst->RetrieveCurrentTst(session.Get()) << '\n';
  std::string tree;
  qorltst::model::PrintTree(tree, *tst, {});
  std::cout << tree;
  PrintTrace(toolkit->Log()->Entries());
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: qorl_demo <session file>\n";
    return 2;
  }
  try {
    Retrieve(std::span(arguments, 2)[1]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
