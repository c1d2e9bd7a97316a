// Session files; see simulator/RecordingReader.h.
#include <gtest/gtest.h>

#include <sstream>

#include "DisplaySupport.h"
#include "simulator/RecordingReader.h"

namespace qorltst::simulator {
namespace {

using namespace std::string_literals;

Recording Read(const std::string& file) {
  std::istringstream stream(file);
  return ReadRecording(stream, "play.txt");
}

/// The message of the error that the file raises.
std::string ErrorOf(const std::string& file) {
  try {
    Read(file);
  } catch (const RecordingError& error) {
    return error.what();
  }
  return "no error";
}

/// The only screen of the only command.
std::u16string ScreenOf(const std::string& lines) {
  const Recording recording = Read("> TQT\n" + lines);
  EXPECT_EQ(recording.size(), 1U);
  EXPECT_EQ(recording.at(0).screens.size(), 1U);
  return recording.at(0).screens.at(0);
}

TEST(RecordingReader, ReadsAnEmptyFile) { EXPECT_TRUE(Read("").empty()); }

TEST(RecordingReader, ReadsCommandsWithTheirScreens) {
  const Recording recording = Read("> TQT\nA\n---\nB\nC\n\n>  TQT/T2 \nD\n");
  ASSERT_EQ(recording.size(), 2U);
  EXPECT_EQ(recording[0].command, u"TQT");
  EXPECT_EQ(recording[0].screens, (std::vector{Screen({u"A"}), Screen({u"B", u"C"})}));
  EXPECT_EQ(recording[1].command, u"TQT/T2");
  EXPECT_EQ(recording[1].screens, std::vector{Screen({u"D"})});
}

TEST(RecordingReader, TakesACommandWithoutLinesForOneWithoutAnAnswer) {
  const Recording recording = Read("> TQT\n\n> MD\n");
  ASSERT_EQ(recording.size(), 2U);
  EXPECT_TRUE(recording[0].screens.empty());
}

TEST(RecordingReader, LeavesOutCommentsWhereverTheyStand) {
  EXPECT_EQ(Read("# a\n> TQT\n# b\nA\n# c\nB\n")[0].screens, std::vector{Screen({u"A", u"B"})});
}

TEST(RecordingReader, KeepsBlankLinesInsideAScreenAndDropsThemAtItsEnd) {
  EXPECT_EQ(ScreenOf("A\n\nB\n\n   \n"), Screen({u"A", u"", u"B"}));
}

TEST(RecordingReader, KeepsABlankLineThatIsWrittenWithAnEscape) {
  EXPECT_EQ(ScreenOf("A\n\\s\n"), Screen({u"A", u""}));
}

TEST(RecordingReader, ReadsTheEndsOfLinesOfEverySystem) { EXPECT_EQ(ScreenOf("A\r\nB"), Screen({u"A", u"B"})); }

TEST(RecordingReader, LeavesOutAByteOrderMark) { EXPECT_EQ(Read("\xEF\xBB\xBF> TQT\n")[0].command, u"TQT"); }

TEST(RecordingReader, ReadsUtf8) { EXPECT_EQ(ScreenOf("\xC3\x89\xE2\x82\xAC"), Screen({u"\u00C9\u20AC"})); }

TEST(RecordingReader, ReadsEscapes) {
  EXPECT_EQ(ScreenOf("\\>\\#\\@\\-\\\\\\s\\0\\u00E9\\u000c"), Screen({u">#@-\\ \0\u00E9\u000c"s}));
}

TEST(RecordingReader, ReadsLinesThatAreWrittenLikeTheFilesOwn) {
  EXPECT_EQ(ScreenOf("\\> A\n\\# B\n\\---\n\\@page"), Screen({u"> A", u"# B", u"---", u"@page"}));
}

TEST(RecordingReader, EndsAScreenWithinALineOnRequest) { EXPECT_EQ(ScreenOf("A\n\\>\\.\n\n"), Screen({u"A"}) + u">"); }

TEST(RecordingReader, CutsADisplayIntoScreensOnRequest) {
  const Recording recording = Read("> TQT\n@page 4\nA\nB\nC\nD\nE\\.\n> TQT/T2\nA\nB\nC\nD\nE\n");
  EXPECT_EQ(recording[0].screens,
            (std::vector{Screen({u"A", u"B", u"C", u"-MORE-"}), Screen({u"B", u"C", u"D"}) + u"E"}));
  EXPECT_EQ(recording[1].screens, std::vector{Screen({u"A", u"B", u"C", u"D", u"E"})});
}

TEST(RecordingReader, CutsScreensOfTwentyFourLinesUnlessToldOtherwise) {
  std::string lines;
  for (int i = 0; i < 25; ++i) {
    lines += std::to_string(i) + '\n';
  }
  const Recording recording = Read("> TQT\n@page\n" + lines);
  ASSERT_EQ(recording[0].screens.size(), 2U);
  EXPECT_EQ(recording[0].screens[0].size(), 1920U);
}

TEST(RecordingReader, NamesFileAndLineInItsErrors) {
  EXPECT_EQ(ErrorOf("\n\nA\n"), "play.txt:3: a screen must follow its command (> TQT)");
  EXPECT_EQ(ErrorOf("> TQT\nA\n>\n"), "play.txt:3: the command is missing");
  EXPECT_EQ(ErrorOf("> TQT\n> TQT\n"), "play.txt:2: the command is answered twice");
  EXPECT_EQ(ErrorOf("> TQT\n---\nA\n"), "play.txt:2: the screen beside --- is empty");
  EXPECT_EQ(ErrorOf("> TQT\nA\n---\n\n"), "play.txt:4: the screen beside --- is empty");
}

TEST(RecordingReader, RefusesLinesThatAreNoScreenLines) {
  EXPECT_EQ(ErrorOf("> TQT\n" + std::string(81, 'A')), "play.txt:2: the line has 81 characters, 80 are the most");
  EXPECT_EQ(ErrorOf("> TQT\nA\tB"), "play.txt:2: a control character must be written as an escape");
  EXPECT_EQ(ErrorOf("> TQT\nA\xFF"), "play.txt:2: byte 2 is not UTF-8");
  EXPECT_EQ(ErrorOf("> TQT\nA\\.\n\nB"), "play.txt:4: only the last line of a screen may end with \\.");
}

TEST(RecordingReader, RefusesUnknownEscapes) {
  const std::string unknown = "play.txt:2: unknown escape; a backslash itself is written \\\\";
  EXPECT_EQ(ErrorOf("> TQT\n\\n"), unknown);
  EXPECT_EQ(ErrorOf("> TQT\nA\\"), unknown);
  EXPECT_EQ(ErrorOf("> TQT\n\\.A"), unknown);
  EXPECT_EQ(ErrorOf("> TQT\n\\u00g0"), "play.txt:2: \\u needs four hexadecimal digits");
  EXPECT_EQ(ErrorOf("> TQT\n\\u00"), "play.txt:2: \\u needs four hexadecimal digits");
}

TEST(RecordingReader, RefusesUnknownDirectives) {
  EXPECT_EQ(ErrorOf("> TQT\n@pages\n"), "play.txt:2: unknown directive");
  EXPECT_EQ(ErrorOf("> TQT\n@page 9999\n"), "play.txt:2: unknown directive");
  EXPECT_EQ(ErrorOf("> TQT\n@\n"), "play.txt:2: unknown directive");
  EXPECT_EQ(ErrorOf("@page\n"), "play.txt:1: @page must follow the command that it is for");
  EXPECT_EQ(ErrorOf("> TQT\n@page 2\n"), "play.txt:2: a screen has three lines or more");
}

TEST(RecordingReader, HandsOutOneCommandAfterAnotherWithItsLine) {
  std::istringstream stream("# a\n> TQT\nA\n> TQT\nB\n");
  RecordingReader reader(stream, "play.txt");
  for (const std::size_t line : {2U, 4U}) {
    const auto exchange = reader.Next();
    ASSERT_TRUE(exchange);
    EXPECT_EQ(exchange->command, u"TQT");
    EXPECT_EQ(exchange->line, line);
  }
  EXPECT_FALSE(reader.Next());
  EXPECT_FALSE(reader.Next());
}

TEST(RecordingReader, TellsTheCommandThatItHasComeTo) {
  std::istringstream stream("> TQT\nA\n>  MD \nB\n");
  RecordingReader reader(stream, "play.txt");
  EXPECT_EQ(reader.Ahead(), std::nullopt);
  static_cast<void>(reader.Next());
  EXPECT_EQ(reader.Ahead(), u"MD");
  static_cast<void>(reader.Next());
  EXPECT_EQ(reader.Ahead(), std::nullopt);
}

TEST(RecordingReader, GoesOnWithTheCommandBehindADamagedAnswer) {
  std::istringstream stream("> TQT\nA\tB\n\xFF\nC\n> TQT/T2\nD\n>\nE\n> TQT/T3\n");
  RecordingReader reader(stream, "play.txt");
  EXPECT_THROW(static_cast<void>(reader.Next()), RecordingError);
  const auto second = reader.Next();
  ASSERT_TRUE(second);
  EXPECT_EQ(second->command, u"TQT/T2");
  EXPECT_EQ(second->screens, std::vector{Screen({u"D"})});
  EXPECT_THROW(static_cast<void>(reader.Next()), RecordingError);
  const auto last = reader.Next();
  ASSERT_TRUE(last);
  EXPECT_EQ(last->command, u"TQT/T3");
  EXPECT_TRUE(last->screens.empty());
}

TEST(RecordingReader, TakesLinesBeforeAnyCommandForTheAnswerToTheImpliedOne) {
  std::istringstream stream("# a\n\nA\n> TQT/T2\nB\n");
  RecordingReader reader(stream, "play.txt", u"TQT");
  const auto first = reader.Next();
  ASSERT_TRUE(first);
  EXPECT_EQ(first->command, u"TQT");
  EXPECT_EQ(first->line, 3U);
  EXPECT_EQ(first->screens, std::vector{Screen({u"A"})});
  EXPECT_EQ(reader.Next().value().command, u"TQT/T2");
}

TEST(RecordingReader, RefusesALineThatNoScreenCouldHoldAndReadsALongComment) {
  const std::string tooLong(100000, 'A');
  EXPECT_EQ(ErrorOf("> TQT\n" + tooLong + "\n"), "play.txt:2: the line is too long");
  EXPECT_EQ(ErrorOf("> TQT\n" + tooLong), "play.txt:2: the line is too long");
  EXPECT_EQ(Read("> TQT\n#" + tooLong + "\nB\n")[0].screens, std::vector{Screen({u"B"})});
}

TEST(RecordingReader, NamesAFileThatCannotBeOpened) {
  const std::filesystem::path file = SourceFolder() / "no-such-file.txt";
  try {
    static_cast<void>(ReadRecording(file));
    FAIL() << "no error was raised";
  } catch (const RecordingError& error) {
    EXPECT_EQ(error.what(), file.string() + ": cannot be opened");
  }
}

}  // namespace
}  // namespace qorltst::simulator
