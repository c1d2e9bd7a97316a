// The playing session. See RecordedSession.h.
#include "simulator/RecordedSession.h"

#include <algorithm>

#include "simulator/RecordingReader.h"
#include "simulator/Screen.h"
#include "simulator/ScreenResponse.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

using toolkit::HostResponse;
using toolkit::Make;
using toolkit::Ref;

constexpr std::u16string_view kMoveDown = u"MD";

Ref<HostResponse> Refuse(std::u16string_view reason) {
  return Make<ScreenResponse>(JoinLines(std::vector{std::u16string(reason)}));
}

}  // namespace

Ref<RecordedSession> RecordedSession::Load(const std::filesystem::path& file) {
  return Make<RecordedSession>(ReadRecording(file));
}

Ref<HostResponse> RecordedSession::SendCommand(std::u16string_view command, bool wait) {
  commands_.push_back({std::u16string(command), wait});
  const auto fault = faults_.find(commands_.size());
  if (fault == faults_.end()) {
    return Answer(command);
  }
  if (fault->second) {
    throw toolkit::RuntimeError(*fault->second, u"RecordedSession", u"The recorded session fails here on purpose");
  }
  return nullptr;
}

Ref<HostResponse> RecordedSession::Answer(std::u16string_view command) {
  const auto found = std::ranges::find(recording_, command, &Exchange::command);
  if (found != recording_.end()) {
    exchange_ = static_cast<std::size_t>(found - recording_.begin());
    screen_ = 0;
    return found->screens.empty() ? nullptr : Ref<HostResponse>(Make<ScreenResponse>(found->screens.front()));
  }
  if (command != kMoveDown) {
    return Refuse(u"CHECK ENTRY - COMMAND NOT KNOWN");
  }
  const std::u16string* const next = MoveDown();
  return next != nullptr ? Make<ScreenResponse>(*next) : Refuse(u"CHECK ENTRY - NO FURTHER SCREENS");
}

const std::u16string* RecordedSession::MoveDown() {
  if (!exchange_) {
    return nullptr;
  }
  const std::vector<std::u16string>& screens = recording_[*exchange_].screens;
  if (screen_ + 1 >= screens.size()) {
    return nullptr;
  }
  return &screens[++screen_];
}

}  // namespace qorltst::simulator
