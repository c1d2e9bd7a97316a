// The program as a whole, within the process; see tools/tstdump/Run.h. What needs a process is in program.sh.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/tools/support/Samples.h"
#include "tests/tools/support/ToolRun.h"

namespace qorltst::tstdump {
namespace {

using testing::RunTool;
using testing::SamplePath;
using testing::ToolRun;

constexpr const char* kTicket = "> TQT\nTST 1\n";

/// A ticket whose total no currency amount can hold.
constexpr const char* kBeyondCurrency = "> TQT\nTST 1\nTOTAL EUR 922337203685478.00\nDEST LON\n";

TEST(Run, PrintsATreeForEachDisplay) {
  const ToolRun run = RunTool({"-"}, "> TQT\nTST 1\n> TQT/T2\nTST 2\n");
  EXPECT_EQ(run.code, ExitCode::AllGood);
  EXPECT_EQ(run.out,
            "-:1: TQT: parsed (0)\n  Text  TST 1\n  TSTHeader\n    Text           TST 1\n    ElementNumber  1\n"
            "\n"
            "-:3: TQT/T2: parsed (0)\n  Text  TST 2\n  TSTHeader\n    Text           TST 2\n    ElementNumber  2\n");
  EXPECT_EQ(run.messages, "");
}

TEST(Run, ReadsTheInputWhereNoFileIsNamed) { EXPECT_EQ(RunTool({}, kTicket).out, RunTool({"-"}, kTicket).out); }

TEST(Run, ReadsAPlainDisplay) { EXPECT_EQ(RunTool({}, "TST 1\n").out, RunTool({}, kTicket).out); }

TEST(Run, PrintsAJsonLineForEachDisplay) {
  const ToolRun run = RunTool({"--jsonl"}, "> TQT\nTST 1\n> RH\nNO\n");
  const std::size_t end = run.out.find('\n');
  EXPECT_EQ(std::ranges::count(run.out, '\n'), 2);
  const auto first = nlohmann::json::parse(run.out.substr(0, end));
  EXPECT_EQ(first.at("source"), "-");
  EXPECT_EQ(first.at("line"), 1);
  EXPECT_EQ(first.at("result"), 0);
  EXPECT_EQ(first.at("ticket").at("TSTHeader").at("ElementNumber"), "1");
  EXPECT_EQ(first.at("log").size(), 0U);
  EXPECT_TRUE(first.at("brokenOffIn").is_null());
  const auto second = nlohmann::json::parse(run.out.substr(end));
  EXPECT_EQ(second.at("command"), "RH");
  EXPECT_EQ(second.at("result"), 1000);
  EXPECT_EQ(second.at("meaning"), "not a stored ticket");
  EXPECT_TRUE(second.at("ticket").is_null());
  EXPECT_EQ(second.at("log")[0].at("kind"), "ERROR");
}

TEST(Run, PrintsOneJsonArray) {
  EXPECT_EQ(nlohmann::json::parse(RunTool({"--json", SamplePath("minimal.txt")}).out).size(), 2U);
  EXPECT_EQ(nlohmann::json::parse(RunTool({"--json"}, kTicket).out).size(), 1U);
  EXPECT_EQ(RunTool({"--json"}, "").out, "[]\n");
}

TEST(Run, PrintsSelectedObjectsWithTheirPaths) {
  EXPECT_EQ(RunTool({"--class", "arnksegment", "--property", "boardpoint", SamplePath("rich.txt")}).out,
            SamplePath("rich.txt") + ":3: TQT: parsed (0)\n  ARNKSegments(1)\n    BoardPoint  ROM\n");
  const auto record = nlohmann::json::parse(
      RunTool({"--jsonl", "--class", "ARNKSegment", "--property", "BoardPoint", SamplePath("rich.txt")}).out);
  EXPECT_EQ(record.at("matches").dump(),
            R"x([{"object":{"BoardPoint":"ROM","className":"ARNKSegment"},"path":"ARNKSegments(1)"}])x");
  EXPECT_FALSE(record.contains("ticket"));
}

TEST(Run, TakesOnlyTheCommandThatIsAskedFor) {
  const ToolRun run = RunTool({"--command", "TQT/T2", SamplePath("minimal.txt")});
  EXPECT_NE(run.out.find(":6: TQT/T2: parsed"), std::string::npos);
  EXPECT_EQ(run.out.find("TQT: "), std::string::npos);
}

TEST(Run, ShowsTheWholeLogOnRequest) {
  EXPECT_NE(RunTool({"--trace"}, kTicket).out.find("  log: QorlTST TRACE "), std::string::npos);
  EXPECT_EQ(RunTool({}, kTicket).out.find("  log: "), std::string::npos);
}

TEST(Run, ShowsTheLogOfEachDisplayAlone) {
  const std::string out = RunTool({"--jsonl"}, "> RH\nNO\n> RH\nNO\n").out;
  const auto last = nlohmann::json::parse(out.substr(out.find('\n')));
  EXPECT_EQ(last.at("log").size(), 1U);
}

TEST(Run, EndsWithZeroWhereWarningsAreAllUnlessItIsStrict) {
  EXPECT_EQ(RunTool({SamplePath("warnings.txt")}).code, ExitCode::AllGood);
  EXPECT_EQ(RunTool({"--strict", SamplePath("warnings.txt")}).code, ExitCode::SomeNotParsed);
}

TEST(Run, EndsWithOneWhereADisplayIsNoTicket) {
  EXPECT_EQ(RunTool({SamplePath("not-a-tst.txt")}).code, ExitCode::SomeNotParsed);
  EXPECT_EQ(RunTool({}, "> TQT\nNO\n> TQT\nTST 1\n").code, ExitCode::SomeNotParsed);
}

TEST(Run, EndsWithOneWhereSomethingFailedOnTheWay) {
  const ToolRun run = RunTool({}, kBeyondCurrency);
  EXPECT_EQ(run.code, ExitCode::SomeNotParsed) << run.out;
  EXPECT_NE(run.out.find("  broken off in QorlTST.TST.FillTotalWithData\n"), std::string::npos) << run.out;
  const auto record = nlohmann::json::parse(RunTool({"--jsonl"}, kBeyondCurrency).out);
  EXPECT_EQ(record.at("brokenOffIn"), "QorlTST.TST.FillTotalWithData");
  EXPECT_EQ(record.at("ticket").at("ItineraryLastLine").at("DestinationCode"), "");
}

TEST(Run, EndsWithTwoForACommandLineThatCannotBeUnderstood) {
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{{"--nonsense"},
                                                                                         {"--json", "--jsonl"},
                                                                                         {"--all", "--filled"},
                                                                                         {"--class"},
                                                                                         {"--class", "Nonsense"},
                                                                                         {"--property", "Nonsense"},
                                                                                         {"-0"},
                                                                                         {"-", "-"},
                                                                                         {"-", "--files-from", "-"}}) {
    const ToolRun run = RunTool(arguments, kTicket);
    EXPECT_EQ(run.code, ExitCode::Usage) << arguments.front();
    EXPECT_EQ(run.out, "") << arguments.front();
    EXPECT_TRUE(run.messages.starts_with("tstdump: ")) << run.messages;
    EXPECT_TRUE(run.messages.ends_with("\nTry tstdump --help\n")) << run.messages;
  }
}

TEST(Run, EndsWithThreeForAFileThatCannotBeReadAndReadsTheOthers) {
  const ToolRun run = RunTool({SamplePath("none.txt"), SamplePath("not-a-tst.txt"), SamplePath("minimal.txt")});
  EXPECT_EQ(run.code, ExitCode::SomeUnreadable);
  EXPECT_EQ(run.messages, "tstdump: " + SamplePath("none.txt") + ": No such file or directory\n");
  EXPECT_NE(run.out.find("minimal.txt:6: TQT/T2: parsed (0)"), std::string::npos);
}

TEST(Run, NamesTheLineOfDamageAndGoesOnBehindIt) {
  const ToolRun run = RunTool({"--jsonl"}, "> TQT\nTST 1\n> TQT\nTST 2\n\\n\n> TQT\nTST 3\n");
  EXPECT_EQ(run.code, ExitCode::SomeUnreadable);
  EXPECT_EQ(run.messages, "tstdump: -:5: unknown escape; a backslash itself is written \\\\\n");
  EXPECT_EQ(std::ranges::count(run.out, '\n'), 2);
}

TEST(Run, ReportsAFileWithoutADisplay) {
  const ToolRun run = RunTool({}, "# nothing\n");
  EXPECT_EQ(run.code, ExitCode::SomeUnreadable);
  EXPECT_EQ(run.messages, "tstdump: -: there is no display in the file\n");
}

TEST(Run, EndsWithFourWhereTheOutputTakesNoMore) {
  std::istringstream in(kTicket);
  std::ostringstream out;
  std::ostringstream messages;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(tstdump::Run({}, {in, out, messages}), ExitCode::NotWritten);
  EXPECT_EQ(messages.str(), "tstdump: the output cannot be written\n");
}

TEST(Run, PrintsHelpAndVersion) {
  const ToolRun help = RunTool({"--help"});
  EXPECT_EQ(help.code, ExitCode::AllGood);
  EXPECT_NE(help.out.find("--files-from"), std::string::npos);
  EXPECT_NE(help.out.find("Exit codes:"), std::string::npos);
  EXPECT_TRUE(RunTool({"--version"}).out.starts_with("tstdump 1."));
}

TEST(Run, GivesTheSameOutputForADisplayWhateverCameBeforeIt) {
  const std::string once = RunTool({"--jsonl"}, kTicket).out;
  EXPECT_EQ(RunTool({"--jsonl"}, kTicket).out, once);
}

}  // namespace
}  // namespace qorltst::tstdump
