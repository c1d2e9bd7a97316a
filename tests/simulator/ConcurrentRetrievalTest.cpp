// Retrievals on several threads at once, each with a session and a ticket of its own.
#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"

namespace qorltst {
namespace {

constexpr int kRetrievals = 50;

/// How many retrievals on one thread ended as they should.
int Retrieve() {
  int good = 0;
  for (int i = 0; i < kRetrievals; ++i) {
    const auto toolkit = Make<simulator::SimulatedToolkit>();
    const auto session = simulator::RecordedSession::Load(QORL_SOURCE_DIR "/examples/displays/fares.txt");
    const auto tst = Make<TST>(*toolkit);
    good += tst->RetrieveCurrentTst(session.Get()) == 0 && toolkit->Log()->Count() > 0 ? 1 : 0;
  }
  return good;
}

TEST(ConcurrentRetrieval, ThreadsDoNotDisturbEachOther) {
  std::array<int, 4> good{};
  {
    std::array<std::jthread, 4> threads;
    for (std::size_t i = 0; i < threads.size(); ++i) {
      threads[i] = std::jthread([&count = good[i]] { count = Retrieve(); });
    }
  }
  for (const int count : good) {
    EXPECT_EQ(count, kRetrievals);
  }
}

}  // namespace
}  // namespace qorltst
