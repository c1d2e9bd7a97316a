// The parser object of the toolkit: reads a display and is from then on the root of its tree.
#pragma once

#include "simulator/TreeNode.h"

namespace qorltst::simulator {

class ScreenParser final : public TreeNode {
 public:
  /// Replaces the tree. `toolkit::kParseSuccess`, or a `ParseFailure`: then the tree is empty and the error text
  /// says where and why. The root's own text is the text that was read last.
  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override;

 private:
  void Read(std::u16string_view text, std::int32_t mode);
};

}  // namespace qorltst::simulator
