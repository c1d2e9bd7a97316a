// The program tstdump: its streams and its exit code. What it does is in Run.h, how it is used in tstdump.1.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <span>

#include "tools/tstdump/Run.h"

int main(int count, char** arguments) {
  using qorltst::tstdump::ExitCode;
  try {
    std::ios::sync_with_stdio(false);
    const std::span given(arguments, static_cast<std::size_t>(count));
    // On a terminal that shows the output already, progress would stand in between.
    const bool isWatched = isatty(STDERR_FILENO) == 1 && isatty(STDOUT_FILENO) == 0;
    const qorltst::tstdump::Streams streams{std::cin, std::cout, std::cerr, isWatched ? &std::cerr : nullptr};
    return static_cast<int>(qorltst::tstdump::Run({given.begin() + 1, given.end()}, streams));
  } catch (const std::exception& error) {
    std::cerr << "tstdump: " << error.what() << '\n';
    return static_cast<int>(ExitCode::NotWritten);
  }
}
