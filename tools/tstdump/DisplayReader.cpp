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
  if (failure_) {
    std::rethrow_exception(std::exchange(failure_, nullptr));
  }
  std::optional<simulator::Exchange> exchange = Take();
  if (!exchange) {
    return std::nullopt;
  }
  if (exchange->command == kMoreCommand) {
    Fail(exchange->line, "MD must follow the display that it goes on with");
  }
  Display display{name_, exchange->line, exchange->command, {}};
  display.recording.push_back(*std::move(exchange));
  try {
    AddFurtherScreens(display.recording);
  } catch (const simulator::RecordingError& /*later*/) {
    failure_ = std::current_exception();
  }
  return display;
}

void DisplayReader::AddFurtherScreens(simulator::Recording& recording) {
  ahead_ = reader_.Next();
  if (!ahead_ || ahead_->command != kMoreCommand) {
    return;
  }
  recording.push_back(*std::exchange(ahead_, std::nullopt));
  ahead_ = reader_.Next();
  if (ahead_ && ahead_->command == kMoreCommand) {
    const std::size_t line = ahead_->line;
    ahead_.reset();
    Fail(line, "the command is answered twice");
  }
}

std::optional<simulator::Exchange> DisplayReader::Take() {
  return ahead_ ? std::exchange(ahead_, std::nullopt) : reader_.Next();
}

void DisplayReader::Fail(std::size_t line, const std::string& reason) const {
  throw simulator::RecordingError(name_ + ':' + std::to_string(line) + ": " + reason);
}

}  // namespace qorltst::tstdump
