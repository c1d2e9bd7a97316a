// See PageOutput.h.
#include "tools/tstdump/PageOutput.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tools/report/Page.h"

namespace qorltst::tstdump {
namespace {

constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_";

/// "000012-rich-3.html": in the order of the batch, and fit for every file system.
std::string FileName(std::size_t number, const Display& display) {
  static constexpr std::size_t kDigits = 6;
  static constexpr std::size_t kLongestStem = 64;
  std::string stem = std::filesystem::path(display.source).stem().string().substr(0, kLongestStem);
  std::ranges::replace_if(
      stem, [](char c) { return kPlain.find(c) == std::string_view::npos; }, '_');
  std::string count = std::to_string(number);
  count.insert(0, kDigits - std::min(kDigits, count.size()), '0');
  return count + '-' + stem + '-' + std::to_string(display.line) + ".html";
}

std::string PageOf(const Retrieved& retrieved, toolkit::Toolkit& toolkit) {
  const Display& display = retrieved.display;
  const report::Origin origin{
      .source = display.source,
      .line = display.line,
      .command = display.command,
      .meaning = std::string(MeaningOf(retrieved.result)),
      .brokenOffIn = retrieved.brokenOffIn,
      .log = retrieved.log,
  };
  return report::TicketPage(origin, retrieved.ticket.Get(), toolkit);
}

}  // namespace

PageOutput::PageOutput(const Options& options, std::ostream& out)
    : options_(options), out_(out), toolkit_(Make<simulator::SimulatedToolkit>()) {}

void PageOutput::Write(const Retrieved& retrieved) {
  ++pages_;
  if (!options_.folder.empty()) {
    std::error_code error;
    std::filesystem::create_directories(options_.folder, error);
    std::ofstream file(std::filesystem::path(options_.folder) / FileName(pages_, retrieved.display), std::ios::binary);
    Send(file, PageOf(retrieved, *toolkit_));
    return;
  }
  if (pages_ > 1) {
    throw UsageError("a page holds one display; name a folder with --output for several");
  }
  Send(out_, PageOf(retrieved, *toolkit_));
}

}  // namespace qorltst::tstdump
