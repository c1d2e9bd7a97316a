// See Progress.h.
#include "tools/tstdump/Progress.h"

#include <string>

#include "tools/model/ValueText.h"

namespace qorltst::tstdump {
namespace {

constexpr std::chrono::milliseconds kQuiet{1000};
constexpr std::chrono::milliseconds kPause{250};
constexpr std::size_t kMostOfName = 40;
constexpr std::string_view kEraseLine = "\r\033[K";

std::string Tail(const std::string& text) {
  return text.size() <= kMostOfName ? text : "..." + text.substr(text.size() - kMostOfName);
}

}  // namespace

Progress::Progress(std::ostream* terminal, Clock clock)
    : terminal_(terminal), clock_(std::move(clock)), started_(clock_()), next_(started_ + kQuiet) {}

void Progress::Count(const std::string& file) {
  ++displays_;
  if (terminal_ == nullptr) {
    return;
  }
  const Time now = clock_();
  if (now < next_) {
    return;
  }
  next_ = now + kPause;
  const double seconds = std::chrono::duration<double>(now - started_).count();
  const auto rate = static_cast<std::size_t>(static_cast<double>(displays_) / seconds);
  *terminal_ << kEraseLine << displays_ << " displays, " << rate << " a second, "
             << Tail(model::PrintableText(std::string_view(file))) << std::flush;
  isShown_ = true;
}

void Progress::Clear() {
  if (isShown_) {
    *terminal_ << kEraseLine << std::flush;
    isShown_ = false;
  }
}

}  // namespace qorltst::tstdump
