// Whole sessions: what stands behind the prompts of a transcript is done again, and the output must be the transcript.
// The manual's is one of them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tools/shell/Input.h"

namespace qorltst::shell {
namespace {

std::string Content(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file;
  return {std::istreambuf_iterator(stream), {}};
}

/// The lines of the transcript that were written by its user.
std::string WrittenIn(const std::string& transcript) {
  std::istringstream lines(transcript);
  std::string written;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kPrompt)) {
      written += line.substr(std::string_view(kPrompt).size()) + '\n';
    }
  }
  return written;
}

/// The session, with files named from the root of the sources.
std::string Repeated(const std::string& transcript) {
  std::filesystem::current_path(QORL_SOURCE_DIR);
  std::istringstream in(WrittenIn(transcript));
  std::ostringstream out;
  Shell shell(out);
  const auto input = ReadStream(in, out);
  for (auto line = input->Next(); line && !shell.IsOver(); line = input->Next()) {
    shell.Run(*line);
  }
  return out.str();
}

TEST(TranscriptTest, ASessionWithEveryCommandAndItsMistakes) {
  const std::string transcript = Content(QORL_SOURCE_DIR "/tests/shell/session.txt");
  EXPECT_EQ(Repeated(transcript), transcript);
}

TEST(TranscriptTest, TheManualShowsWhatHappens) {
  const std::string manual = Content(QORL_SOURCE_DIR "/docs/shell.md");
  constexpr std::string_view kFence = "```\n";
  const std::size_t begin = manual.find("```\ntst> ") + kFence.size();
  const std::string transcript = manual.substr(begin, manual.find(kFence, begin) - begin);
  ASSERT_GT(transcript.size(), 200U);
  EXPECT_EQ(Repeated(transcript), transcript);
}

TEST(ShellTest, ALineThatCannotBeDoneIsToldFromOneThatCan) {
  std::ostringstream out;
  Shell shell(out);
  EXPECT_TRUE(shell.Run("  "));
  EXPECT_TRUE(shell.Run("# a remark"));
  EXPECT_TRUE(shell.Run("AirSegments"));
  EXPECT_FALSE(shell.Run("AirSegments(1)"));
  EXPECT_FALSE(shell.Run("display no-such-file.txt"));
  EXPECT_FALSE(shell.IsOver());
  EXPECT_TRUE(shell.Run("quit"));
  EXPECT_TRUE(shell.IsOver());
}

TEST(ShellTest, AHostThatDoesNotAnswerIsNoError) {
  const std::string file = testing::TempDir() + "silent-host.txt";
  std::ofstream(file) << "> TQT\n";
  std::ostringstream out;
  Shell shell(out);
  EXPECT_TRUE(shell.Run("display " + file));
  EXPECT_TRUE(shell.Run("TQT"));
  EXPECT_TRUE(shell.Run("retrieve"));
  EXPECT_EQ(out.str(), "The host answers TQT MD\nThe host does not answer\nResult 3004: problem with the session\n");
}

TEST(ShellTest, WhatCouldSteerATerminalIsShownInDigits) {
  const std::string file = testing::TempDir() + "steering-host.txt";
  std::ofstream(file) << "> TQT\nA\\u001b[2JB\n";
  std::ostringstream out;
  Shell shell(out);
  ASSERT_TRUE(shell.Run("display " + file));
  out.str({});
  EXPECT_TRUE(shell.Run("TQT"));
  EXPECT_EQ(out.str(), "A\\u001b[2JB\n");
  out.str({});
  EXPECT_FALSE(shell.Run("\x1b[2J"));
  EXPECT_EQ(out.str().find('\x1b'), std::string::npos);
}

}  // namespace
}  // namespace qorltst::shell
