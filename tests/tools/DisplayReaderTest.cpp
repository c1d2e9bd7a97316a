// Displays out of session files; see tools/tstdump/DisplayReader.h.
#include <gtest/gtest.h>

#include <sstream>

#include "simulator/Utf.h"
#include "tools/tstdump/DisplayReader.h"

namespace qorltst::tstdump {
namespace {

/// "line command screens+screens" for each display, and the messages of errors.
std::vector<std::string> Read(const std::string& file) {
  std::istringstream stream(file);
  DisplayReader reader(stream, "play.txt");
  std::vector<std::string> displays;
  while (true) {
    try {
      const std::optional<Display> display = reader.Next();
      if (!display) {
        return displays;
      }
      std::string text = std::to_string(display->line) + ' ' + simulator::ToUtf8(display->command);
      for (const simulator::Exchange& exchange : display->recording) {
        text += ' ' + std::to_string(exchange.screens.size());
      }
      displays.push_back(text);
    } catch (const simulator::RecordingError& error) {
      displays.emplace_back(error.what());
    }
  }
}

using Lines = std::vector<std::string>;

TEST(DisplayReader, HandsOutEveryCommandAsADisplay) {
  EXPECT_EQ(Read("> TQT\nA\n---\nB\n> TQT\nC\n"), (Lines{"1 TQT 2", "5 TQT 1"}));
}

TEST(DisplayReader, AddsARecordedMdToItsDisplay) {
  EXPECT_EQ(Read("> TQT\nA\n> MD\nB\n> TQT/T2\nC\n"), (Lines{"1 TQT 1 1", "5 TQT/T2 1"}));
}

TEST(DisplayReader, TakesAFileWithoutACommandForOneDisplay) { EXPECT_EQ(Read("\nTST 1\nA\n"), (Lines{"2 TQT 1"})); }

TEST(DisplayReader, RefusesAnMdWithoutADisplay) {
  EXPECT_EQ(Read("> MD\nB\n> TQT\nA\n"),
            (Lines{"play.txt:1: MD must follow the display that it goes on with, and once only", "3 TQT 1"}));
}

TEST(DisplayReader, RefusesASecondMdAndKeepsTheDisplay) {
  EXPECT_EQ(
      Read("> TQT\nA\n> MD\nB\n> MD\nC\n> TQT\nD\n"),
      (Lines{"1 TQT 1 1", "play.txt:5: MD must follow the display that it goes on with, and once only", "7 TQT 1"}));
}

TEST(DisplayReader, RefusesADisplayOfWhichAScreenIsDamaged) {
  EXPECT_EQ(Read("> TQT\nA\n> MD\n\\n\n> TQT\nB\n"),
            (Lines{"play.txt:4: unknown escape; a backslash itself is written \\\\", "5 TQT 1"}));
}

TEST(DisplayReader, ReportsDamageBehindTheDisplayBeforeIt) {
  EXPECT_EQ(Read("> TQT\nA\n> TQT/T2\n\\n\n> TQT/T3\nB\n"),
            (Lines{"1 TQT 1", "play.txt:4: unknown escape; a backslash itself is written \\\\", "5 TQT/T3 1"}));
}

TEST(DisplayReader, FindsNothingInAnEmptyFile) { EXPECT_EQ(Read("# nothing\n\n"), Lines{}); }

}  // namespace
}  // namespace qorltst::tstdump
