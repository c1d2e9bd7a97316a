// Writes first inputs for the display and tree targets: the sample displays, and random fare calculations.
// qorl_fuzz_seeds <folder of displays> <folder for the inputs>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "FareCalculationGenerator.h"
#include "fuzz/support/DisplayInput.h"
#include "fuzz/support/Scenario.h"
#include "simulator/RecordingReader.h"
#include "simulator/Screen.h"
#include "simulator/ScreenParser.h"

namespace qorltst::fuzz {
namespace {

constexpr std::uint32_t kFareCalculations = 200;

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

void WriteAll(const std::filesystem::path& displays, const std::filesystem::path& folder) {
  for (const auto& entry : std::filesystem::directory_iterator(displays)) {
    int number = 0;
    for (const simulator::Exchange& exchange : simulator::ReadRecording(entry.path())) {
      if (!exchange.screens.empty()) {
        WriteInputs(folder, entry.path().stem().string() + std::to_string(++number), exchange.screens);
      }
    }
  }
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
