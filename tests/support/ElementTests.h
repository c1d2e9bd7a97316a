// Tests of the classes that are filled from a node: a fill as the parser does it, a sweep over all node types, and a
// failure at every toolkit call.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "elements/FEElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/TSTHeader.h"
#include "frame/ClassDescription.h"
#include "frame/Walk.h"
#include "tests/support/Printers.h"
#include "tests/support/TestToolkit.h"

namespace qorltst::testing {

using Texts = std::vector<std::string>;
using Calls = std::vector<std::string>;

/// Every text that is not empty and every date that is not zero, "Name=value" in interface order.
[[nodiscard]] Texts Filled(Object& object);

/// What is left of a fill that failed at one toolkit call, or of one that did not.
struct Outcome {
  std::string failedCall;
  toolkit::RuntimeError error{0};
  Texts filled;
  std::vector<Entry> log;
};

/// What a failure becomes behind so many traps: the automation error of its number under its source behind the first,
/// then overflow and the automation error of overflow in turn.
[[nodiscard]] std::string Climbed(const toolkit::RuntimeError& raised, std::size_t traps);

/// "0x80040006 QorlTST"
[[nodiscard]] std::string NumberAndSource(const toolkit::RuntimeError& error);

/// The base of the tests of one class. See `ElementTest`.
class ElementFixture : public ::testing::Test {
 protected:
  using CreateElement = Ref<Object> (*)(toolkit::Toolkit&);
  using FillElement = void (*)(Object&, toolkit::ParseNode&);

  ElementFixture(CreateElement create, FillElement fill);

  /// Fills the test's one element, as the parser does.
  void Fill(Tree line);

  /// The same, and what is set then.
  [[nodiscard]] Texts FilledFrom(Tree line);

  /// Fills; what the failure climbs out as.
  [[nodiscard]] std::string FailureOf(Tree line);

  /// Which types of a node are stored where, "2699 ElementNumber=text"; the node stands below the groups named, each
  /// inside the one before it, in a fresh element each time. Its first items have the buffers "one" and "two".
  [[nodiscard]] Texts StoredBelow(const std::vector<std::int32_t>& groups);

  /// Fills fresh elements from this line, failing at the first toolkit call, at the second and so on; the last outcome
  /// is that of the fill that did not fail.
  [[nodiscard]] std::vector<Outcome> FailAtEveryCall(const Tree& line);

  /// At whichever call the fill fails, the failure climbs through the traps of the procedures that have begun, and
  /// none of them writes anything more. Calls that the parser makes itself are under no trap here.
  void ExpectEveryFailureToClimb(const Tree& line, const Calls& callsOfTheParser = {});

  /// At whichever call the fill fails, what was read before it is set and nothing else. Each text of the line must
  /// fill a property of its own.
  void ExpectEveryFailureToKeepWhatWasSet(const Tree& line);

  Ref<TestToolkit> toolkit_ = Make<TestToolkit>();
  Ref<Object> element_;

 private:
  Outcome FillFresh(const Tree& line, std::size_t failAt);

  CreateElement create_;
  FillElement fill_;
};

/// Fills an element from its line's node in the way of its class: at once, or child by child.
template <class ElementClass>
void FillAsTheParser(Object& object, toolkit::ParseNode& node) {
  auto& element = static_cast<ElementClass&>(object);
  if constexpr (std::is_same_v<ElementClass, TSTHeader>) {
    element.FillTextWithData(node);
  } else if constexpr (std::is_same_v<ElementClass, FEElement>) {
    element.FillUpLevelData(node);
  } else if constexpr (!std::is_same_v<ElementClass, ItineraryLastLine>) {
    element.FillWithData(node);
    return;
  }
  ForEachChild(node, [&element](toolkit::ParseNode& child) { element.FillWithData(child); });
}

/// The fixture of one class.
template <class ElementClass>
class ElementTest : public ElementFixture {
 protected:
  ElementTest() : ElementFixture(&CreateObject<ElementClass>, &FillAsTheParser<ElementClass>) {}
};

}  // namespace qorltst::testing
