// Whatever allocation of the component fails, once or for good: at creation, in a retrieval, at a read.
#include <gtest/gtest.h>

#include <new>

#include "frame/ClassDescription.h"
#include "frame/PublicClasses.h"
#include "tests/faults/Retrieval.h"
#include "tests/memory/Allocations.h"
#include "tests/support/Printers.h"
#include "tests/support/Samples.h"

namespace qorltst {
namespace {

using testing::AllocationFault;
using testing::CleanRetrieval;
using testing::Retrieval;
using testing::Sample;
using Extent = AllocationFault::Extent;

/// 0x80040000 + 9999, which a public method raises where it cannot even begin.
constexpr std::int32_t kNotBegun = -2147211505;

/// What a retrieval that ran out of memory came to: its code, or that it could not begin.
struct Outcome {
  std::int32_t code = 0;
  bool began = true;
  bool struck = false;
};

Outcome RetrieveWith(Retrieval& retrieval, std::size_t n, Extent extent) {
  Outcome outcome;
  const auto session = retrieval.Session();
  const AllocationFault fault(n, extent);
  try {
    outcome.code = retrieval.Root().RetrieveCurrentTst(session.Get());
  } catch (const RuntimeError& error) {
    outcome.began = false;
    EXPECT_EQ(error.Number(), kNotBegun);
  } catch (const std::bad_alloc&) {
    outcome.began = false;
  }
  outcome.struck = fault.Struck();
  return outcome;
}

bool IsSubsequence(const std::vector<simulator::LogEntry>& part, const std::vector<simulator::LogEntry>& whole) {
  auto at = whole.begin();
  for (const simulator::LogEntry& entry : part) {
    at = std::find(at, whole.end(), entry);
    if (at == whole.end()) {
      return false;
    }
    ++at;
  }
  return true;
}

class AllocationFaults : public ::testing::TestWithParam<Sample> {
 protected:
  /// What must hold after a retrieval that could not have all its memory; `n` says where it failed.
  void ExpectWhole(Retrieval& retrieval, const Outcome& outcome) {
    // A log line that could not be written is left out, and the retrieval goes on.
    ASSERT_TRUE(IsSubsequence(retrieval.Log(), clean_.log));
    if (outcome.code == clean_.result && outcome.began && retrieval.Dump() == clean_.dump) {
      return;
    }
    ASSERT_EQ(outcome.code, 0);
    std::u16string path;
    ASSERT_TRUE(testing::IsPartOf(retrieval.Dump(), clean_.dump, clean_.texts, path)) << testing::Readable(path);
  }

  void FailEach(Extent extent) {
    std::size_t n = 1;
    for (bool struck = true; struck; n += testing::FaultStep()) {
      SCOPED_TRACE(n);
      const std::int32_t living = Object::Living();
      {
        Retrieval retrieval(GetParam().recording);
        const Outcome outcome = RetrieveWith(retrieval, n, extent);
        struck = outcome.struck;
        ASSERT_NO_FATAL_FAILURE(ExpectWhole(retrieval, outcome));
        ASSERT_EQ(retrieval.Retrieve(), clean_.result);
        ASSERT_TRUE(retrieval.Dump() == clean_.dump);
      }
      ASSERT_EQ(Object::Living(), living);
    }
    RecordProperty("allocations", static_cast<int>(n));
    EXPECT_GT(n, 10U) << "too few allocations to say anything";
  }

  CleanRetrieval clean_{GetParam().recording};
};

TEST_P(AllocationFaults, OneAnywhereInARetrievalLosesNothingThatWasThere) { FailEach(Extent::One); }

TEST_P(AllocationFaults, AllFromAnyPointOfARetrievalOnLoseNothingThatWasThere) { FailEach(Extent::AllFurther); }

INSTANTIATE_TEST_SUITE_P(Displays, AllocationFaults, ::testing::ValuesIn(testing::SamplesToWearOut()),
                         [](const auto& display) {
                           std::string name = display.param.name;
                           std::erase(name, '-');
                           return name;
                         });

TEST(AllocationFaultsAtTheBeginning, AreTheErrorOfThePublicMethod) {
  const simulator::Recording& recording = testing::SampleNamed("minimal").recording;
  Retrieval retrieval(recording);
  const auto session = retrieval.Session();
  for (const bool current : {true, false}) {
    const AllocationFault fault(1, Extent::One);
    try {
      current ? retrieval.Root().RetrieveCurrentTst(session.Get())
              : retrieval.Root().RetrieveSpecificTst(session.Get(), u"TQT");
      FAIL() << "the retrieval began without memory";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), kNotBegun);
      EXPECT_EQ(error.Source(), current ? u"TST:RetrieveCurrentTST Method" : u"TST:RetrieveSpecificTst Method");
    }
  }
  EXPECT_TRUE(retrieval.Log().empty());
  EXPECT_EQ(retrieval.Retrieve(), CleanRetrieval(recording).result);
}

class AllocationFaultsOfAClass : public ::testing::TestWithParam<const ClassDescription*> {};

std::vector<const ClassDescription*> CreatableClasses() {
  std::vector<const ClassDescription*> classes;
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create != nullptr) {
      classes.push_back(description);
    }
  }
  return classes;
}

TEST_P(AllocationFaultsOfAClass, LeaveNothingBehindAtItsCreation) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const std::int32_t living = Object::Living();
  const std::int64_t before = testing::BytesHeld();
  bool struck = true;
  for (std::size_t n = 1; struck; ++n) {
    Ref<Object> object;
    {
      const AllocationFault fault(n, Extent::One);
      try {
        object = GetParam()->create(*toolkit);
      } catch (const std::bad_alloc&) {
        EXPECT_TRUE(fault.Struck());
      }
      struck = fault.Struck();
    }
    ASSERT_EQ(static_cast<bool>(object), !struck);
    object = nullptr;
    ASSERT_EQ(Object::Living(), living);
    ASSERT_EQ(testing::BytesHeld(), before);
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, AllocationFaultsOfAClass, ::testing::ValuesIn(CreatableClasses()),
                         [](const auto& description) { return testing::Readable(description.param->name); });

}  // namespace
}  // namespace qorltst
