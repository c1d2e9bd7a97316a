// The bytes of a node in an input; read by ScenarioReader.cpp and written by ScenarioWriter.cpp.
#pragma once

#include <array>
#include <cstdint>

#include "toolkit/NodeTypeId.h"

namespace qorltst::fuzz {

/// A node is its type, its marks, then what the marks announce in their order, then its children and an end of nodes.
enum NodeMark : std::uint8_t {
  kHasWarning = 1,
  kHasText = 2,
  kHasErrorText = 4,
  kHasDate = 8,
  kHasOwnBuffer = 16,
  kHasNoBuffer = 32,
  kFails = 64,
  kHasChildren = 128,
};

/// Stands for a type: the nodes of this parent end here.
inline constexpr std::uint8_t kEndOfNodes = 0;
/// Stands for a type: the four bytes behind it are the type.
inline constexpr std::uint8_t kAnyType = 255;

/// The types that a byte names by its position here.
inline constexpr std::array kNodeTypes = [] {
  using toolkit::NodeTypeId;
  return std::array{
#include "NodeTypes.inc"
  };
}();
static_assert(kNodeTypes.size() < kAnyType);

}  // namespace qorltst::fuzz
