// Nodes of the host toolkit's parse tree and their items, reached by name. Counterpart: toolkit/ParseNode.h.
#pragma once

#include "automation/LateBoundObject.h"
#include "toolkit/ParseNode.h"

namespace qorltst::automation {

/// The names of a node's members, for sharing between the nodes of one toolkit.
[[nodiscard]] Ref<DispatchNames> MakeNodeNames();

class LateBoundNode final : public toolkit::ParseNode {
 public:
  /// Raises the runtime error 91 where the object is missing.
  LateBoundNode(ComRef<IDispatch> object, Ref<DispatchNames> names);

  std::int32_t Parse(std::u16string_view text, std::int32_t mode) override;
  Ref<toolkit::ParseNode> FindNode(toolkit::NodeTypeId type) override;
  toolkit::NodeTypeId TypeId() override;
  std::u16string Text() override;
  std::u16string ErrorText() override;
  bool HasWarning() override;
  bool HasChildren() override;
  toolkit::Date DateValue() override;
  Ref<toolkit::BufferOwner> Item(std::int32_t index) override;
  Ref<toolkit::NodeEnumerator> Children() override;
  std::u16string Buffer() override;

 private:
  Ref<DispatchNames> names_;
  LateBoundObject object_;
};

/// What a node's `Item` gives; only its "Buffer" is ever read.
class LateBoundItem final : public toolkit::BufferOwner {
 public:
  explicit LateBoundItem(ComRef<IDispatch> object);

  std::u16string Buffer() override;

 private:
  LateBoundObject object_;
};

/// Pulls one child at a time, so that an enumeration that fails at the third child has delivered two.
class LateBoundEnumerator final : public toolkit::NodeEnumerator {
 public:
  LateBoundEnumerator(ComRef<IEnumVARIANT> children, Ref<DispatchNames> names);

  Ref<toolkit::ParseNode> Next() override;

 private:
  ComRef<IEnumVARIANT> children_;
  Ref<DispatchNames> names_;
};

}  // namespace qorltst::automation
