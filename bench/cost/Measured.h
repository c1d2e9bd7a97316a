// What the cost of a retrieval is measured on: trees that are there already, a host that answers at once, a log that
// counts its lines. Nothing of this is worth measuring, and it is the same for the component and for the bare walk.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "simulator/TreeNode.h"
#include "toolkit/HostSession.h"
#include "toolkit/Toolkit.h"

namespace qorltst::cost {

using toolkit::Make;
using toolkit::Ref;

/// How often the toolkit was called, and how many lines were logged.
struct Counts {
  std::size_t calls = 0;
  std::size_t lines = 0;
};

struct Line {
  std::int32_t kind = 0;
  std::u16string source;
  std::int32_t number = 0;
  std::u16string message;
};

/// Screens and the tree of the whole display. A screen is a header where it holds "<", and more follow where it holds
/// ">"; the one after the last screen is parsed into the tree.
struct Display {
  std::vector<std::u16string> screens;
  Ref<simulator::TreeNode> tree;
};

/// A recorded display of examples/displays, read by the simulator.
[[nodiscard]] Display FromFile(const std::string& path);
/// One screen with so many air segments of ten fields.
[[nodiscard]] Display WithSegments(std::size_t count);
/// So many screens of 24 lines, and one air segment.
[[nodiscard]] Display WithScreens(std::size_t count);

struct Plan;

/// What is noted of a retrieval, where somebody wants to know: counts, lines, and what the last parser was asked.
struct Notes {
  Counts counts;
  std::vector<Line> lines;
  std::vector<std::shared_ptr<Plan>> plans;
};

/// Hands out the display's tree.
class MeasuredToolkit final : public toolkit::Toolkit {
 public:
  explicit MeasuredToolkit(const Display& display, Notes* notes = nullptr) : display_(display), notes_(notes) {}

  Ref<toolkit::ParseNode> CreateParser() override;
  Ref<toolkit::HostLogger> CreateLogger() override;
  [[nodiscard]] Ref<toolkit::HostSession> Session();

 private:
  const Display& display_;
  Notes* notes_;
};

}  // namespace qorltst::cost
