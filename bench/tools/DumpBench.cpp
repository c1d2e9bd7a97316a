// What tstdump costs a display in each of its forms: "items_per_second" is displays a second. The input is in memory
// and the output is dropped.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <streambuf>

#include "tools/tstdump/Run.h"

namespace {

/// Takes everything and keeps nothing.
class Nowhere final : public std::streambuf {
 protected:
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override { return size; }
  int_type overflow(int_type character) override { return traits_type::not_eof(character); }
};

using Options = std::vector<std::string>;

/// Every sample starts with a comment, so each command has a line end in front.
constexpr std::string_view kCommand = "\n> ";
constexpr int kRepetitions = 20;

/// The sample so many times, as an archive.
std::string Archive(const char* sample) {
  const auto file = std::filesystem::path(QORL_SOURCE_DIR) / "examples/displays" / sample;
  std::ostringstream archive;
  for (int i = 0; i < kRepetitions; ++i) {
    archive << std::ifstream(file).rdbuf() << '\n';
  }
  return archive.str();
}

void Dump(benchmark::State& state, const char* sample, const Options& options) {
  const std::string archive = Archive(sample);
  std::int64_t displays = 0;
  for (std::size_t at = archive.find(kCommand); at != std::string::npos; at = archive.find(kCommand, at + 1)) {
    ++displays;
  }
  Nowhere nowhere;
  std::ostream out(&nowhere);
  for ([[maybe_unused]] auto _ : state) {
    std::istringstream in(archive);
    benchmark::DoNotOptimize(qorltst::tstdump::Run(options, {in, out, out}));
  }
  state.SetItemsProcessed(state.iterations() * displays);
}
BENCHMARK_CAPTURE(Dump, OneScreenTree, "fares.txt", Options{});
BENCHMARK_CAPTURE(Dump, OneScreenJsonLines, "fares.txt", Options{"--jsonl"});
BENCHMARK_CAPTURE(Dump, OneScreenFilledJsonLines, "fares.txt", Options{"--jsonl", "--filled"});
BENCHMARK_CAPTURE(Dump, TwoScreensTree, "rich.txt", Options{});
BENCHMARK_CAPTURE(Dump, TwoScreensJsonLines, "rich.txt", Options{"--jsonl"});

}  // namespace
