// Parse nodes and their items as automation objects. Counterpart: simulator/TreeNode.h, simulator/ScreenParser.h.
#pragma once

#include "frame/ClassDescription.h"
#include "frame/Object.h"
#include "toolkit/ParseNode.h"

namespace qorltst::simulator {

class NodeObject final : public Object {
 public:
  static const ClassDescription kDescription;

  /// A new parser, which is the root of the tree that it will read.
  explicit NodeObject(toolkit::Toolkit& toolkit);
  explicit NodeObject(Ref<toolkit::ParseNode> node) noexcept : node_(std::move(node)) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
  [[nodiscard]] toolkit::ParseNode& Node() const noexcept { return *node_; }

 private:
  struct Table;

  Ref<toolkit::ParseNode> node_;
};

/// An item that is no node.
class ItemObject final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit ItemObject(Ref<toolkit::BufferOwner> item) noexcept : item_(std::move(item)) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
  [[nodiscard]] toolkit::BufferOwner& Item() const noexcept { return *item_; }

 private:
  struct Table;

  Ref<toolkit::BufferOwner> item_;
};

}  // namespace qorltst::simulator
