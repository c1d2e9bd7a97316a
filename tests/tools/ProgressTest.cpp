// The line on the terminal; see tools/tstdump/Progress.h.
#include <gtest/gtest.h>

#include <sstream>

#include "tools/tstdump/Progress.h"

namespace qorltst::tstdump {
namespace {

using namespace std::chrono_literals;

class ProgressTest : public ::testing::Test {
 protected:
  Progress::Clock Clock() {
    return [this] { return now_; };
  }

  Progress::Time now_{};
  std::ostringstream terminal_;
};

TEST_F(ProgressTest, SaysNothingInTheFirstSecond) {
  {
    Progress progress(&terminal_, Clock());
    now_ += 999ms;
    progress.Count("a.txt");
  }
  EXPECT_EQ(terminal_.str(), "");
}

TEST_F(ProgressTest, SpeaksUpFourTimesASecond) {
  Progress progress(&terminal_, Clock());
  now_ += 2s;
  progress.Count("a.txt");
  now_ += 249ms;
  progress.Count("b.txt");
  EXPECT_EQ(terminal_.str(), "\r\033[K1 displays, 0 a second, a.txt");
  now_ += 1ms;
  progress.Count("c.txt");
  EXPECT_EQ(terminal_.str(), "\r\033[K1 displays, 0 a second, a.txt\r\033[K3 displays, 1 a second, c.txt");
}

TEST_F(ProgressTest, TakesItsLineAwayOnce) {
  Progress progress(&terminal_, Clock());
  now_ += 2s;
  progress.Count("a.txt");
  terminal_.str("");
  progress.Clear();
  progress.Clear();
  EXPECT_EQ(terminal_.str(), "\r\033[K");
}

TEST_F(ProgressTest, KeepsItsLineShortAndTheTerminalAsItIs) {
  Progress progress(&terminal_, Clock());
  now_ += 2s;
  progress.Count(std::string(100, 'x') + "\033[2J.txt");
  EXPECT_LT(terminal_.str().size(), 100U);
  EXPECT_EQ(terminal_.str().find("\033[2J"), std::string::npos);
}

TEST_F(ProgressTest, StaysSilentWithoutATerminal) {
  Progress progress(nullptr, Clock());
  now_ += 2s;
  progress.Count("a.txt");
  progress.Clear();
}

}  // namespace
}  // namespace qorltst::tstdump
