// See DisplayReader.h.
#include "tools/tstdump/DisplayReader.h"

#include <utility>

#include "tools/tstdump/Retriever.h"

namespace qorltst::tstdump {
namespace {

constexpr std::u16string_view kMoreCommand = u"MD";

}  // namespace

DisplayReader::DisplayReader(std::istream& stream, std::string name)
    : name_(std::move(name)), reader_(stream, name_, kCurrentCommand) {}

std::optional<Display> DisplayReader::Next() {
  std::optional<simulator::Exchange> exchange = reader_.Next();
  if (!exchange) {
    return std::nullopt;
  }
  if (exchange->command == kMoreCommand) {
    throw simulator::RecordingError(name_ + ':' + std::to_string(exchange->line) +
                                    ": MD must follow the display that it goes on with, and once only");
  }
  Display display{name_, exchange->line, exchange->command, {}};
  display.recording.push_back(*std::move(exchange));
  // No further: what follows may not have come in yet, and this display is complete.
  if (reader_.Ahead() == kMoreCommand) {
    display.recording.push_back(reader_.Next().value());
  }
  return display;
}

}  // namespace qorltst::tstdump
