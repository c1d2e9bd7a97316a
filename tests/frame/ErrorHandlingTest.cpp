#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <new>

#include "frame/Frame.h"
#include "frame/modErrorHandling.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

constexpr auto kAutomationBase = static_cast<std::int32_t>(0x80040000U);

RuntimeError RaisedBy(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing was raised";
  return RuntimeError(0);
}

TEST(RaiseError, RaisesTheAutomationErrorOfANumber) {
  const RuntimeError error = RaisedBy([] { modErrorHandling::RaiseError(9999, u"TST:Method"); });
  EXPECT_EQ(error.Number(), -2147211505);
  EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x8004270FU);
  EXPECT_EQ(error.Source(), u"TST:Method");
  EXPECT_EQ(error.Description(), u"An unknown error has occurred!");
}

TEST(RaiseError, RaisesOverflowWhereTheSumLeavesTheType) {
  for (const std::int32_t number : {-262145, -2147211505, kAutomationBase, std::numeric_limits<std::int32_t>::min()}) {
    SCOPED_TRACE(number);
    const RuntimeError error = RaisedBy([number] { modErrorHandling::RaiseError(number, u"Here"); });
    EXPECT_EQ(error.Number(), toolkit::kOverflow);
    EXPECT_EQ(error.Source(), u"QorlTST");
    EXPECT_EQ(error.Description(), u"Overflow");
  }
}

TEST(RaiseError, TakesTheSmallestAndTheLargestNumberThatFit) {
  EXPECT_EQ(RaisedBy([] { modErrorHandling::RaiseError(-262144, u""); }).Number(),
            std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(RaisedBy([] { modErrorHandling::RaiseError(std::numeric_limits<std::int32_t>::max(), u""); }).Number(),
            kAutomationBase + std::numeric_limits<std::int32_t>::max());
}

TEST(GetErrorMessage, IsTheSameForEveryNumber) {
  for (const std::int32_t number : {0, 6, 9999, -1}) {
    EXPECT_EQ(modErrorHandling::GetErrorMessage(number), u"An unknown error has occurred!");
  }
}

TEST(Guard, RaisesTheUnexpectedErrorUnderItsText) {
  const RuntimeError error =
      RaisedBy([] { Guarded(u"NameElement:Text Property Get", [] { throw std::bad_alloc(); }); });
  EXPECT_EQ(error.Number(), -2147211505);
  EXPECT_EQ(error.Source(), u"NameElement:Text Property Get");
}

TEST(Guard, WithoutATextLetsAFailurePass) {
  EXPECT_THROW(Guarded(u"", [] { throw std::bad_alloc(); }), std::bad_alloc);
}

/// A procedure of its own, to look at the trap from the inside.
class Procedure : public Frame {
 public:
  explicit Procedure(toolkit::Toolkit& toolkit) : Frame(toolkit) {}

  void Run(const std::function<void()>& body) {
    Traced({{u"begin", u"Here"}, {u"end", u"Here"}, {u"error end", u"Here"}}, body);
  }
  void RunUntraced(const std::function<void()>& body) { Traced({}, body); }
};

class TrapTest : public ::testing::Test {
 protected:
  Ref<testing::TestToolkit> toolkit_ = Make<testing::TestToolkit>();
  Procedure procedure_{*toolkit_};
};

TEST_F(TrapTest, ABodyThatEndsIsBetweenItsTraces) {
  procedure_.Run([] {});
  EXPECT_EQ(toolkit_->log, (std::vector{testing::TraceEntry(u"begin", u"Here"), testing::TraceEntry(u"end", u"Here")}));
}

TEST_F(TrapTest, AbsentLinesAreNotWritten) {
  procedure_.RunUntraced([] {});
  EXPECT_EQ(toolkit_->log, std::vector<testing::Entry>());
}

TEST_F(TrapTest, AFailureRaisesItsNumberAndSourceOnceMoreAndTheErrorLineIsNeverReached) {
  const RuntimeError error =
      RaisedBy([this] { procedure_.Run([] { throw RuntimeError(1234, u"Session", u"It broke"); }); });
  EXPECT_EQ(error.Number(), kAutomationBase + 1234);
  EXPECT_EQ(error.Source(), u"Session");
  EXPECT_EQ(error.Description(), u"An unknown error has occurred!");
  EXPECT_EQ(toolkit_->log, std::vector{testing::TraceEntry(u"begin", u"Here")});
}

TEST_F(TrapTest, ARuntimeErrorClimbsWithTheComponentsName) {
  const RuntimeError error = RaisedBy([this] { procedure_.Run([] { throw RuntimeError(toolkit::kObjectNotSet); }); });
  EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x8004005BU);
  EXPECT_EQ(error.Source(), u"QorlTST");
}

TEST_F(TrapTest, AtTheSecondLevelOverflowAppearsAndAtTheThirdItsAutomationError) {
  std::vector<RuntimeError> levels;
  std::function<void()> level = [] { throw RuntimeError(toolkit::kObjectNotSet, u"Node", u""); };
  for (int depth = 0; depth < 5; ++depth) {
    level = [this, level] { procedure_.RunUntraced(level); };
    levels.push_back(RaisedBy(level));
  }
  EXPECT_EQ(static_cast<std::uint32_t>(levels[0].Number()), 0x8004005BU);
  EXPECT_EQ(levels[0].Source(), u"Node");
  EXPECT_EQ(levels[1].Number(), 6);
  EXPECT_EQ(levels[1].Source(), u"QorlTST");
  EXPECT_EQ(static_cast<std::uint32_t>(levels[2].Number()), 0x80040006U);
  EXPECT_EQ(levels[3].Number(), 6);
  EXPECT_EQ(static_cast<std::uint32_t>(levels[4].Number()), 0x80040006U);
}

TEST_F(TrapTest, AFullMemoryIsTheRuntimeErrorSeven) {
  const RuntimeError error = RaisedBy([this] { procedure_.Run([] { throw std::bad_alloc(); }); });
  EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x80040007U);
}

TEST_F(TrapTest, NothingIsPendingAfterATrap) {
  (void)RaisedBy([this] { procedure_.Run([] { throw RuntimeError(5); }); });
  EXPECT_EQ(PendingError::Current(), nullptr);
}

TEST(PendingErrorTest, NestsAndEndsWithItsScope) {
  const RuntimeError outer(5);
  const RuntimeError inner(6);
  EXPECT_EQ(PendingError::Current(), nullptr);
  {
    const PendingError outerScope(outer);
    {
      const PendingError innerScope(inner);
      EXPECT_EQ(PendingError::Current(), &inner);
    }
    EXPECT_EQ(PendingError::Current(), &outer);
  }
  EXPECT_EQ(PendingError::Current(), nullptr);
}

}  // namespace
}  // namespace qorltst
