// Life over many retrievals: memory stays flat, threads keep apart, and what a caller keeps outlives its root.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <thread>

#include "frame/ClassDescription.h"
#include "tests/faults/Retrieval.h"
#include "tests/memory/Allocations.h"
#include "tests/support/Samples.h"

namespace qorltst {
namespace {

using testing::CleanRetrieval;
using testing::Retrieval;

std::size_t Rounds(std::size_t few, std::size_t many) { return testing::LongForm() ? many : few; }

class SilentLogger final : public toolkit::HostLogger {
 public:
  void SetApplication(std::u16string_view /*name*/) override {}
  void Write(std::int32_t /*kind*/, std::u16string_view /*source*/, std::int32_t /*number*/,
             std::u16string_view /*message*/) override {}
};

Ref<simulator::SimulatedToolkit> SilentToolkit() {
  auto toolkit = Make<simulator::SimulatedToolkit>();
  toolkit->SetLoggerSource([] { return Make<SilentLogger>(); });
  return toolkit;
}

TEST(Life, ManyRetrievalsHoldNoMoreMemoryThanOne) {
  const auto toolkit = SilentToolkit();
  const std::int32_t living = Object::Living();
  const auto displays = {"minimal", "rich", "warnings", "fc-side-trip", "not-a-tst"};
  const auto retrieveEach = [&] {
    for (const char* const name : displays) {
      const simulator::Recording& recording = testing::SampleNamed(name).recording;
      const auto tst = Make<TST>(*toolkit);
      const auto session = Make<simulator::RecordedSession>(recording);
      tst->RetrieveCurrentTst(session.Get());
    }
  };
  retrieveEach();
  const std::int64_t before = testing::BytesHeld();
  const std::size_t rounds = Rounds(400, 200'000);
  for (std::size_t round = 0; round < rounds; ++round) {
    retrieveEach();
    ASSERT_EQ(testing::BytesHeld(), before) << "after " << (round + 1) * displays.size() << " retrievals";
  }
  EXPECT_EQ(Object::Living(), living);
}

TEST(Life, OneRootForManyRetrievalsHoldsNoMoreMemoryThanForTwo) {
  const auto toolkit = SilentToolkit();
  const auto tst = Make<TST>(*toolkit);
  const auto retrieve = [&] {
    const auto session = Make<simulator::RecordedSession>(testing::SampleNamed("rich").recording);
    tst->RetrieveCurrentTst(session.Get());
  };
  retrieve();
  retrieve();
  const std::int64_t before = testing::BytesHeld();
  for (std::size_t round = 0; round < Rounds(200, 20'000); ++round) {
    retrieve();
    ASSERT_EQ(testing::BytesHeld(), before);
  }
}

/// Everything below an object that callers can hold, itself included.
void Gather(Object& object, std::vector<Ref<Object>>& held) {
  held.emplace_back(&object);
  if (const auto* const collection = dynamic_cast<const Collection*>(&object)) {
    for (std::int32_t i = 1; i <= collection->Count(); ++i) {
      Gather(*collection->Item(i), held);
    }
    return;
  }
  for (const Member& row : object.Description().members) {
    const auto* const field = std::get_if<ObjectField>(&row.access);
    if (Object* const child = field != nullptr ? field->in(object) : nullptr) {
      Gather(*child, held);
    }
  }
}

TEST(Life, WhatACallerHoldsMayBeReleasedInAnyOrder) {
  std::mt19937 random(7);
  const std::int32_t living = Object::Living();
  for (std::size_t round = 0; round < Rounds(30, 3'000); ++round) {
    std::vector<Ref<Object>> held;
    std::vector<testing::ModelDump> whole;
    {
      Retrieval retrieval(testing::SampleNamed(round % 2 == 0 ? "rich" : "fc-side-trip").recording);
      retrieval.Retrieve();
      Gather(retrieval.Root(), held);
      std::shuffle(held.begin(), held.end(), random);
      std::ranges::transform(held, std::back_inserter(whole),
                             [](const auto& object) { return testing::DumpOf(*object); });
    }
    while (!held.empty()) {
      // Still whole, whatever else is gone.
      ASSERT_TRUE(testing::DumpOf(*held.back()) == whole.back());
      held.pop_back();
      whole.pop_back();
    }
    ASSERT_EQ(Object::Living(), living);
  }
}

TEST(Life, ThreadsThatRetrieveAtOnceKeepApart) {
  static constexpr std::array kDisplays{"rich", "fc-two-screens", "warnings", "minimal"};
  const std::int32_t living = Object::Living();
  std::array<std::thread, kDisplays.size()> threads;
  std::array<std::size_t, kDisplays.size()> wrong{};
  for (std::size_t i = 0; i < threads.size(); ++i) {
    threads[i] = std::thread([i, &wrong] {
      const simulator::Recording& recording = testing::SampleNamed(kDisplays[i]).recording;
      const CleanRetrieval clean(recording);
      for (std::size_t round = 0; round < Rounds(50, 5'000); ++round) {
        Retrieval retrieval(recording);
        const bool right =
            retrieval.Retrieve() == clean.result && retrieval.Dump() == clean.dump && retrieval.Log() == clean.log;
        wrong[i] += right ? 0 : 1;
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, (std::array<std::size_t, kDisplays.size()>{}));
  EXPECT_EQ(Object::Living(), living);
}

}  // namespace
}  // namespace qorltst
