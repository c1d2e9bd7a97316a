// Whatever toolkit call goes wrong, in whatever way: retrievals that together use every class, once for each call.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <new>
#include <stdexcept>

#include "frame/PublicClasses.h"
#include "tests/faults/Retrieval.h"
#include "tests/support/Printers.h"
#include "tests/support/Samples.h"

namespace qorltst {
namespace {

using simulator::LogEntry;
using testing::CleanRetrieval;
using testing::NotedCall;
using testing::Operation;
using testing::Retrieval;
using testing::Sample;
using toolkit::NodeTypeId;
using Log = std::vector<LogEntry>;

/// What a failing call throws; the port's own error, and what a toolkit in C++ might let out.
struct Failure {
  const char* name;
  void (*raise)();
};

constexpr Failure kFailures[] = {
    {"ErrorWithSource", [] { throw RuntimeError(438, u"QorlHostToolkit", u"no such member"); }},
    {"AutomationErrorWithoutSource", [] { throw RuntimeError(-2147467259, u"", u""); }},
    {"LargestNumber", [] { throw RuntimeError(2147483647, u"x", u""); }},
    {"SmallestNumber", [] { throw RuntimeError(-2147483647 - 1, u"x", u""); }},
    {"NumberZero", [] { throw RuntimeError(0, u"", u""); }},
    {"OutOfMemory", [] { throw std::bad_alloc(); }},
    {"ForeignException", [] { throw std::logic_error("a toolkit's own"); }},
    {"NoExceptionClassAtAll", [] { throw 7; }},
};

bool StartsWith(const Log& log, const Log& clean, std::size_t length) {
  return length <= clean.size() && log.size() >= length &&
         std::equal(log.begin(), log.begin() + static_cast<std::ptrdiff_t>(length), clean.begin());
}

class ToolkitFaults : public ::testing::TestWithParam<Sample> {
 protected:
  /// What must hold after anything that went wrong: every object is there, what is set belongs to the display, and a
  /// following retrieval on the same root gives everything.
  void ExpectWholeAfterwards(Retrieval& retrieval) {
    ExpectEveryObject(retrieval);
    std::u16string path;
    EXPECT_TRUE(testing::IsPartOf(retrieval.Dump(), clean_.dump, clean_.texts, path)) << testing::Readable(path);
    ExpectAGoodRetrieval(retrieval);
  }

  void ExpectEveryObject(Retrieval& retrieval) {
    std::set<std::u16string> absent = testing::AbsentObjectsOf(retrieval.Root());
    // These two come with their node.
    absent.erase(u"FareMinimun.Fare");
    absent.erase(u"ExtraSeat.Fare");
    EXPECT_TRUE(absent.empty()) << testing::Readable(*absent.begin());
  }

  void ExpectAGoodRetrieval(Retrieval& retrieval) {
    EXPECT_EQ(retrieval.Retrieve(), clean_.result);
    EXPECT_TRUE(retrieval.Dump() == clean_.dump);
    EXPECT_TRUE(retrieval.Log() == clean_.log);
  }

  CleanRetrieval clean_{GetParam().recording};
};

TEST_P(ToolkitFaults, AnErrorAtAnyCallEndsTheRetrievalWithTheCodeHeldThen) {
  for (const Failure& failure : kFailures) {
    // In the short form each of the other failures comes up at every eighth call.
    const auto which = static_cast<std::size_t>(&failure - kFailures);
    const std::size_t step = testing::FaultStep() * (which == 0 || testing::LongForm() ? 1 : std::size(kFailures));
    for (std::size_t n = 1 + which % step; n <= clean_.calls.size(); n += step) {
      SCOPED_TRACE(std::string(failure.name) + " at call " + std::to_string(n));
      const std::int32_t living = Object::Living();
      {
        Retrieval retrieval(GetParam().recording);
        retrieval.Plan().RaiseAt(n, failure.raise);
        // No call comes after a code has been settled, so the code held is 0.
        ASSERT_EQ(retrieval.Retrieve(), 0);
        ASSERT_TRUE(retrieval.Plan().Struck());
        // Nothing is written after the failing call: every line that stands behind a raise is never reached.
        ASSERT_EQ(retrieval.Log().size(), clean_.calls[n - 1].logLength);
        ASSERT_TRUE(StartsWith(retrieval.Log(), clean_.log, retrieval.Log().size()));
        if (which == 0) {
          ExpectWholeAfterwards(retrieval);
        }
      }
      ASSERT_EQ(Object::Living(), living);
      ASSERT_FALSE(HasFailure());
    }
  }
}

/// Codes and what follows where the call that answered with nothing was one of the display's own questions.
std::int32_t CodeWithoutAnswer(const CleanRetrieval& clean, std::size_t n) {
  const NotedCall& call = clean.calls[n - 1];
  const auto before = clean.calls.begin() + static_cast<std::ptrdiff_t>(n - 1);
  if (call.operation == Operation::SendCommand) {
    const bool first = std::none_of(clean.calls.begin(), before,
                                    [](const NotedCall& other) { return other.operation == Operation::SendCommand; });
    return first ? toolkit::kSessionProblem : 0;
  }
  if (call.operation == Operation::FindNode && call.sought == static_cast<std::int32_t>(NodeTypeId::TstRoot)) {
    return toolkit::kUnintendedResponse;
  }
  return clean.result;
}

TEST_P(ToolkitFaults, AnAbsentObjectAtAnyCallIsTakenForWhatItSays) {
  for (std::size_t n = 1; n <= clean_.calls.size(); n += testing::FaultStep()) {
    SCOPED_TRACE("absent at call " + std::to_string(n));
    const std::int32_t living = Object::Living();
    {
      Retrieval retrieval(GetParam().recording);
      retrieval.Plan().AbsentAt(n);
      const std::int32_t result = retrieval.Retrieve();
      if (retrieval.Plan().Struck()) {
        ASSERT_TRUE(StartsWith(retrieval.Log(), clean_.log, clean_.calls[n - 1].logLength));
        // An item that must be there is the runtime's error 91; the warnings may be among what an enumeration that
        // ends early never comes to.
        const bool item = clean_.calls[n - 1].operation == Operation::Item;
        const bool next = clean_.calls[n - 1].operation == Operation::Next;
        const bool more = clean_.calls[n - 1].sought == static_cast<std::int32_t>(NodeTypeId::MoreScreens);
        if (!more) {
          ASSERT_TRUE(result == CodeWithoutAnswer(clean_, n) || ((item || next) && result == 0)) << result;
        }
      }
      ExpectEveryObject(retrieval);
    }
    ASSERT_EQ(Object::Living(), living);
    ASSERT_FALSE(HasFailure());
  }
}

TEST_P(ToolkitFaults, AfterAnAbsentObjectTheSameRootRetrievesEverything) {
  for (std::size_t n = 1; n <= clean_.calls.size(); n += testing::FaultStep()) {
    Retrieval retrieval(GetParam().recording);
    retrieval.Plan().AbsentAt(n);
    retrieval.Retrieve();
    if (retrieval.Plan().Struck()) {
      SCOPED_TRACE("absent at call " + std::to_string(n));
      ASSERT_EQ(retrieval.Retrieve(), clean_.result);
      // What the shorter reading put in place of a collection is replaced again.
      ASSERT_TRUE(retrieval.Log() == clean_.log);
      ASSERT_TRUE(retrieval.Dump() == clean_.dump);
    }
  }
}

TEST_P(ToolkitFaults, ATextThatCannotBeReadIsACode) {
  std::size_t parses = 0;
  for (std::size_t n = 1; n <= clean_.calls.size(); ++n) {
    if (clean_.calls[n - 1].operation != Operation::Parse) {
      continue;
    }
    ++parses;
    const bool last = std::none_of(clean_.calls.begin() + static_cast<std::ptrdiff_t>(n), clean_.calls.end(),
                                   [](const NotedCall& call) { return call.operation == Operation::Parse; });
    Retrieval retrieval(GetParam().recording);
    retrieval.Plan().RefuseAt(n);
    const std::int32_t result = retrieval.Retrieve();
    ASSERT_TRUE(retrieval.Plan().Struck());
    if (parses == 1) {
      EXPECT_EQ(result, toolkit::kUnintendedResponse);
    } else if (last) {
      EXPECT_EQ(result, toolkit::kParsingError);
    }
    ExpectEveryObject(retrieval);
    ExpectAGoodRetrieval(retrieval);
  }
  EXPECT_GT(parses, 0U);
}

TEST_P(ToolkitFaults, AFailingLoggerIsNeverNoticed) {
  for (std::size_t n = 1; n <= clean_.loggerCalls; n += testing::FaultStep()) {
    Retrieval retrieval(GetParam().recording);
    retrieval.Plan().RaiseInLoggerAt(n, [] { throw 7; });
    ASSERT_EQ(retrieval.Retrieve(), clean_.result) << "logger call " << n;
    ASSERT_TRUE(retrieval.Plan().Struck());
    ASSERT_TRUE(retrieval.Dump() == clean_.dump);
    ASSERT_GE(retrieval.Log().size() + 1, clean_.log.size());
  }
}

INSTANTIATE_TEST_SUITE_P(Displays, ToolkitFaults, ::testing::ValuesIn(testing::SamplesToWearOut()),
                         [](const auto& display) {
                           std::string name = display.param.name;
                           std::erase(name, '-');
                           return name;
                         });

TEST(ToolkitFaultDisplays, TogetherUseEveryClass) {
  std::set<std::u16string> used;
  for (const Sample& sample : testing::SamplesToWearOut()) {
    Retrieval retrieval(sample.recording);
    retrieval.Retrieve();
    used.merge(testing::ClassesOf(retrieval.Root()));
  }
  for (const ClassDescription* const description : PublicClasses()) {
    // Logs are inside objects, collections between them, and a fare keeps its stop-over charges itself.
    static const std::set<std::u16string_view> kApart{u"EtLog", u"Collection", u"StopOverCharge"};
    EXPECT_TRUE(kApart.contains(description->name) || used.contains(std::u16string(description->name)))
        << testing::Readable(description->name);
  }
}

}  // namespace
}  // namespace qorltst
