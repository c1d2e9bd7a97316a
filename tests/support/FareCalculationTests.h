// Tests of the fare calculation classes: what a fill leaves in an object and in all it holds, a sweep over all node
// types, and the story of a fill (calls, log lines, values) told again with a failure at every call.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/ClassDescription.h"
#include "tests/support/Printers.h"
#include "tests/support/TestToolkit.h"

namespace qorltst::testing {

/// Everything that is set in an object and in what it holds, in interface order: "Amount=120.00", "EndId=True",
/// "Fare.Amount=120.00"; each item of a collection is announced, "AnyPFCs(1)".
[[nodiscard]] std::vector<std::string> Contents(Object& object);

/// One step of a fill: toolkit calls, a log line, or values that show from then on.
struct Step {
  std::size_t traps = 0;
  std::vector<std::string> calls = {};
  std::vector<Entry> lines = {};
  std::vector<std::string> values = {};
};

/// A fill from its first call to its end.
using Story = std::vector<Step>;

/// Calls under so many error traps, "Next 2898, TypeId 2717, Text 2717 => Amount=120.00"; what stands behind an arrow
/// shows as soon as the call before it has returned.
[[nodiscard]] Story Asks(std::size_t traps, const std::string& calls);

/// A trace line.
[[nodiscard]] Story Writes(std::u16string_view message, std::u16string_view source);

/// Values that show from here on.
[[nodiscard]] Story Sets(std::vector<std::string> values);

/// Several stories one after another.
[[nodiscard]] Story Tell(const std::vector<Story>& chapters);

/// The base of the tests of one class. See `RecordTest`.
class RecordFixture : public ::testing::Test {
 protected:
  using Create = Ref<Object> (*)(toolkit::Toolkit&);
  using FillRecord = void (*)(Object&, toolkit::ParseNode&);

  RecordFixture(Create create, FillRecord fill);

  /// Fills the test's one object.
  void Fill(Tree node);

  /// The same, and what is set then.
  [[nodiscard]] std::vector<std::string> FilledFrom(Tree node);

  /// Fills, which must fail; what the failure climbs out as, "0x8004005B QorlTST".
  [[nodiscard]] std::string FailureOf(Tree node);

  /// Which types of a node set what, "2717 Amount=text"; the node stands below the groups named, each inside the one
  /// before it, in a fresh object each time. It holds one node of a type that nobody knows, with the text "below". A
  /// text that is not stored must not be read either.
  [[nodiscard]] std::vector<std::string> StoredBelow(std::int32_t type, const std::vector<std::int32_t>& groups);

  /// A fill makes exactly these calls, writes exactly these lines and sets exactly these values.
  void ExpectStory(const Tree& node, const Story& story);

  /// At whichever call the fill fails, the story stops there: nothing more is called, written or set, what was set
  /// before stays, and the failure climbs through the traps.
  void ExpectStoryToStopAtEveryFailure(const Tree& node, const Story& story);

  Ref<TestToolkit> toolkit_ = Make<TestToolkit>();
  Ref<Object> record_;

 private:
  std::string FillFresh(const Tree& node);
  std::vector<std::string> ContentsOfFresh(const Tree& node);
  void ExpectPart(const Story& story, std::size_t calls);
  void SweepType(std::int32_t root, const std::vector<std::int32_t>& groups, std::int32_t swept,
                 const std::vector<std::string>& always, std::vector<std::string>& stored);

  Create create_;
  FillRecord fill_;
};

/// The fixture of one class.
template <class Record>
class RecordTest : public RecordFixture {
 protected:
  RecordTest()
      : RecordFixture(&CreateObject<Record>, [](Object& object, toolkit::ParseNode& node) {
          static_cast<Record&>(object).FillWithData(node);
        }) {}
};

}  // namespace qorltst::testing
