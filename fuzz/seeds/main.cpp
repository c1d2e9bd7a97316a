// Writes first inputs for the display and tree targets: the sample displays and their lines, random fare calculations,
// and hosts that fail. qorl_fuzz_seeds <folder of displays> <folder for the inputs>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "FareCalculationGenerator.h"
#include "fuzz/support/DisplayInput.h"
#include "fuzz/support/Scenario.h"
#include "simulator/DisplayLine.h"
#include "simulator/RecordingReader.h"
#include "simulator/Screen.h"
#include "simulator/ScreenParser.h"

namespace qorltst::fuzz {
namespace {

constexpr std::uint32_t kFareCalculations = 100;

using Screens = std::vector<std::u16string>;

void WriteInput(const std::filesystem::path& file, const std::string& bytes) {
  create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

void WriteInputs(const std::filesystem::path& folder, const std::string& name, const Screens& screens) {
  WriteInput(folder / "display" / name, DisplayInput(screens));
  const auto parser = toolkit::Make<simulator::ScreenParser>();
  parser->Parse(screens.front(), toolkit::kParseMode);
  WriteInput(folder / "tree" / name, ScenarioInput(*parser));
}

/// A small ticket behind a host that answers in each of its ways: the screen's kind, and what it raises.
void WriteHosts(const std::filesystem::path& folder) {
  constexpr std::string_view kTicket("\0\0\0\0\x11\2\1A\0", 9);
  for (char kind = 0; kind < 4; ++kind) {
    for (char error = 0; error < 5; ++error) {
      const std::string host{0, 0, 1, kind, error};
      WriteInput(folder / "tree" / ("host" + std::to_string(kind) + std::to_string(error)),
                 host + std::string(kTicket));
    }
  }
}

/// Each line of a screen in a display of its own, with its continuations: small inputs are tried more often.
void WriteLines(const std::filesystem::path& folder, const std::string& name, std::u16string_view screen) {
  int number = 0;
  for (const simulator::DisplayLine& line : simulator::SplitDisplay(screen)) {
    const Screens lines{u"TST 1", std::u16string(line.text.substr(0, toolkit::kLineLength))};
    const std::u16string rest(line.text.substr(lines.back().size()));
    WriteInputs(folder, name + "-" + std::to_string(++number), {simulator::JoinLines(lines) + rest});
  }
}

void WriteAll(const std::filesystem::path& displays, const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::directory_iterator(displays)) {
    int number = 0;
    for (const simulator::Exchange& exchange : simulator::ReadRecording(entry.path())) {
      if (!exchange.screens.empty()) {
        const std::string name = entry.path().stem().string() + std::to_string(++number);
        WriteInputs(folder, name, exchange.screens);
        WriteLines(folder, name, exchange.screens.front());
      }
    }
  }
  WriteHosts(folder);
  for (std::uint32_t seed = 0; seed < kFareCalculations; ++seed) {
    Screens lines = simulator::FareCalculationGenerator(seed).Write().lines;
    lines.insert(lines.begin(), u"TST 1");
    WriteInputs(folder, "fare" + std::to_string(seed), {simulator::JoinLines(lines)});
  }
}

}  // namespace
}  // namespace qorltst::fuzz

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "qorl_fuzz_seeds <folder of displays> <folder for the inputs>\n";
    return 2;
  }
  qorltst::fuzz::WriteAll(argv[1], argv[2]);
  return 0;
}
