// A parse node that owns its part of the tree. Made by the display parser, or by hand with Node.h.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/HostNumbers.h"
#include "toolkit/ParseNode.h"

namespace qorltst::simulator {

using toolkit::BufferOwner;
using toolkit::Date;
using toolkit::Make;
using toolkit::NodeEnumerator;
using toolkit::NodeTypeId;
using toolkit::ParseNode;
using toolkit::Ref;

class TreeNode : public ParseNode {
 public:
  /// A root: no type, no text, no children yet.
  TreeNode() = default;

  TreeNode(NodeTypeId type, std::u16string_view text) : type_(type), text_(text) {}

  ~TreeNode() override;

  /// A node built by hand reads nothing: it keeps its tree and answers what `SetParseResult` said.
  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override;

  /// The first node of the type in display order, depth first; never this node itself.
  Ref<ParseNode> FindNode(NodeTypeId type) override;

  NodeTypeId TypeId() override { return type_; }
  std::u16string Text() override { return text_; }
  std::u16string ErrorText() override { return errorText_; }
  bool HasWarning() override { return hasWarning_; }
  bool HasChildren() override { return !children_.empty(); }
  Date DateValue() override { return date_; }

  /// The node's items where it was given some of its own, otherwise its children.
  Ref<BufferOwner> Item(std::int32_t index) override;

  /// Lazy: a child that is added during the enumeration is still met.
  Ref<NodeEnumerator> Children() override;

  /// The node's text, unless `SetBuffer` or `RemoveBuffer` said otherwise.
  std::u16string Buffer() override;

  /// Appends a child. Never absent.
  void Add(Ref<ParseNode> child);

  /// Appends a new child and gives it to be filled further.
  Ref<TreeNode> Add(NodeTypeId type, std::u16string_view text);

  void RemoveChildren() noexcept { children_.clear(); }
  void SetText(std::u16string_view text) { text_ = text; }
  void SetErrorText(std::u16string_view text) { errorText_ = text; }
  void SetWarning(bool hasWarning) noexcept { hasWarning_ = hasWarning; }

  /// Sets the warning and adds the reason to the error text, after "; " where there is one already.
  void AddWarning(std::u16string_view reason);

  void SetDate(Date date) noexcept { date_ = date; }
  void SetBuffer(std::u16string_view text) { buffer_ = text; }

  /// From now on the buffer cannot be read: the runtime error 438.
  void RemoveBuffer() noexcept { hasBuffer_ = false; }

  /// Items of the node's own, in place of its children. An empty list means no items at all.
  void SetItems(std::vector<Ref<BufferOwner>> items) { items_ = std::move(items); }

  void SetParseResult(std::int32_t result) noexcept { parseResult_ = result; }

  [[nodiscard]] std::size_t ChildCount() const noexcept { return children_.size(); }

  /// The child at this 0-based position, which must exist.
  [[nodiscard]] const Ref<ParseNode>& ChildAt(std::size_t position) const { return children_.at(position); }

 private:
  NodeTypeId type_ = NodeTypeId::None;
  std::u16string text_;
  std::u16string errorText_;
  bool hasWarning_ = false;
  bool hasBuffer_ = true;
  std::int32_t parseResult_ = toolkit::kParseSuccess;
  Date date_;
  std::optional<std::u16string> buffer_;
  std::vector<Ref<ParseNode>> children_;
  std::optional<std::vector<Ref<BufferOwner>>> items_;
};

}  // namespace qorltst::simulator
