// See Host.h.
#include "tools/shell/Host.h"

#include <algorithm>

#include "simulator/RecordingReader.h"
#include "simulator/Utf.h"
#include "toolkit/HostNumbers.h"
#include "toolkit/HostResponse.h"
#include "tools/model/ValueText.h"

namespace qorltst::shell {
namespace {

constexpr std::string_view kDisplayCommand = "TQT";
constexpr std::string_view kMoveDown = "MD";

std::vector<std::string> LinesOf(std::u16string_view screen) {
  std::vector<std::string> lines;
  std::size_t end = 0;
  while (!screen.empty()) {
    const std::u16string_view line = screen.substr(0, toolkit::kLineLength);
    screen.remove_prefix(line.size());
    lines.push_back(model::PrintableText(line.substr(0, line.find_last_not_of(u' ') + 1)));
    end = lines.back().empty() ? end : lines.size();
  }
  lines.resize(end);
  return lines;
}

}  // namespace

std::string Capitals(std::string_view text) {
  std::string capitals(text);
  std::ranges::transform(capitals, capitals.begin(), [](char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
  });
  return capitals;
}

Host::Host(simulator::Recording recording) {
  for (const simulator::Exchange& exchange : recording) {
    entries_.push_back(simulator::ToUtf8(exchange.command));
  }
  if (std::ranges::find(entries_, kMoveDown) == entries_.end()) {
    entries_.emplace_back(kMoveDown);
  }
  session_ = toolkit::Make<simulator::RecordedSession>(std::move(recording));
}

Host Host::Load(const std::filesystem::path& file) { return Host(simulator::ReadRecording(file)); }

bool Host::IsEntry(std::string_view line) const {
  const std::string entry = Capitals(line);
  return entry.starts_with(kDisplayCommand) || std::ranges::find(entries_, entry) != entries_.end();
}

std::vector<std::string> Host::Send(std::string_view entry) {
  const auto response = session_->SendCommand(simulator::ToUtf16(Capitals(entry)), true);
  return response ? LinesOf(response->Text()) : std::vector<std::string>();
}

}  // namespace qorltst::shell
