// A node of the toolkit's parse tree. Implemented by the automation bridge, the simulator and the tests.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/NodeTypeId.h"
#include "toolkit/RefCounted.h"

namespace qorltst::toolkit {

/// A day as automation writes it: days since 30 December 1899, the time of day as the fraction.
struct Date {
  double days = 0;
  friend bool operator==(const Date&, const Date&) = default;
};

/// Something that can be asked for its "Buffer" by name: an item of a node, or a found node.
class BufferOwner : public RefCounted {
 public:
  /// The text buffer. Raises the toolkit's error when the object has none.
  virtual std::u16string Buffer() = 0;
};

class ParseNode;

/// Hands out a node's direct children one after another, in display order.
class NodeEnumerator : public RefCounted {
 public:
  /// The next child, or nothing after the last.
  virtual Ref<ParseNode> Next() = 0;
};

/// A typed node; the parser object is itself the root. Every operation may raise a `RuntimeError`.
class ParseNode : public BufferOwner {
 public:
  /// Reads `text`; `kParseSuccess` when the text could be read. Only the root is asked.
  virtual std::int32_t Parse(std::u16string_view text, std::int32_t mode) = 0;

  /// The first node of this type below this one, or nothing.
  virtual Ref<ParseNode> FindNode(NodeTypeId type) = 0;

  virtual NodeTypeId TypeId() = 0;
  virtual std::u16string Text() = 0;
  virtual std::u16string ErrorText() = 0;
  virtual bool HasWarning() = 0;
  virtual bool HasChildren() = 0;
  virtual Date DateValue() = 0;

  /// The item at this 1-based position, or nothing where there is no such item.
  virtual Ref<BufferOwner> Item(std::int32_t index) = 0;

  /// A fresh enumeration of the direct children. Never nothing.
  virtual Ref<NodeEnumerator> Children() = 0;
};

}  // namespace qorltst::toolkit
