// The public tables of nodes and items. See NodeObject.h.
#include "simulator/automation/NodeObject.h"

#include <array>

#include "simulator/automation/Arguments.h"

namespace qorltst::simulator {
namespace {

constexpr std::int32_t kNewEnumerator = -4;

class ChildCursor final : public Cursor {
 public:
  explicit ChildCursor(Ref<toolkit::ParseNode> node) : node_(std::move(node)), children_(node_->Children()) {}

  Ref<Object> Next() override {
    Ref<toolkit::ParseNode> child = children_->Next();
    if (!child) {
      return nullptr;
    }
    ++taken_;
    return Make<NodeObject>(std::move(child));
  }

  void Reset() override {
    children_ = node_->Children();
    taken_ = 0;
  }

  [[nodiscard]] Ref<Cursor> Clone() const override {
    Ref<ChildCursor> clone = Make<ChildCursor>(node_);
    while (clone->taken_ < taken_ && clone->children_->Next()) {
      ++clone->taken_;
    }
    return clone;
  }

 private:
  Ref<toolkit::ParseNode> node_;
  Ref<toolkit::NodeEnumerator> children_;
  std::size_t taken_ = 0;
};

toolkit::ParseNode& NodeOf(Object& object) { return static_cast<NodeObject&>(object).Node(); }

Ref<Object> Shown(Ref<toolkit::ParseNode> node) {
  return node ? Ref<Object>(Make<NodeObject>(std::move(node))) : nullptr;
}

Ref<Object> ShownItem(Ref<toolkit::BufferOwner> item) {
  if (auto* const node = dynamic_cast<toolkit::ParseNode*>(item.Get())) {
    return Shown(Ref<toolkit::ParseNode>(node));
  }
  return item ? Ref<Object>(Make<ItemObject>(std::move(item))) : nullptr;
}

/// The start node of a search: the one given, or the node itself.
toolkit::ParseNode& StartOf(Object& object, const Value& start) {
  const auto* const given = std::get_if<Ref<Object>>(&start);
  if (given == nullptr || !*given) {
    return NodeOf(object);
  }
  auto* const node = dynamic_cast<NodeObject*>(given->Get());
  if (node == nullptr) {
    throw toolkit::RuntimeError(toolkit::kTypeMismatch);
  }
  return node->Node();
}

Value CallParse(Object& object, Arguments arguments) {
  return NodeOf(object).Parse(TextIn(arguments[0]), NumberIn(arguments[1]));
}

Value CallFindNode(Object& object, Arguments arguments) {
  return Shown(StartOf(object, arguments[1]).FindNode(toolkit::NodeTypeId{NumberIn(arguments[0])}));
}

Value CallItem(Object& object, Arguments arguments) { return ShownItem(NodeOf(object).Item(NumberIn(arguments[0]))); }

Value CallTypeId(Object& object, Arguments /*none*/) { return static_cast<std::int32_t>(NodeOf(object).TypeId()); }

Value CallChildren(Object& object, Arguments /*none*/) {
  return Ref<Cursor>(Make<ChildCursor>(Ref<toolkit::ParseNode>(&NodeOf(object))));
}

/// A property that is read from the node.
template <auto Read>
Value CallNode(Object& object, Arguments /*none*/) {
  return (NodeOf(object).*Read)();
}

template <auto Read>
constexpr Access Property(ValueType type) {
  return Method{{}, type, &CallNode<Read>, true};
}

Value CallItemBuffer(Object& object, Arguments /*none*/) { return static_cast<ItemObject&>(object).Item().Buffer(); }

constexpr std::array kParseParameters{Parameter{u"Text", ValueType::String}, Parameter{u"Mode", ValueType::Long}};
constexpr std::array kFindParameters{Parameter{u"TypeId", ValueType::Long},
                                     Parameter{u"StartNode", ValueType::Object, true}};
constexpr std::array kItemParameters{Parameter{u"Index", ValueType::Long}};

using toolkit::ParseNode;

}  // namespace

struct NodeObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Parse",
       .access = Method{kParseParameters, ValueType::Long, &CallParse},
       .help = u"Reads a display; 10000 is success."},
      {.name = u"FindNode",
       .access = Method{kFindParameters, ValueType::Object, &CallFindNode},
       .help = u"The first node of a type below this one, or Nothing."},
      {.name = u"TypeId", .access = Method{{}, ValueType::Long, &CallTypeId, true}, .help = u"The node's type."},
      {.name = u"Text",
       .access = Property<&ParseNode::Text>(ValueType::String),
       .help = u"The text that the node covers."},
      {.name = u"ErrorText",
       .access = Property<&ParseNode::ErrorText>(ValueType::String),
       .help = u"What the parser found wrong."},
      {.name = u"HasWarning",
       .access = Property<&ParseNode::HasWarning>(ValueType::Boolean),
       .help = u"Whether the text was only partly understood."},
      {.name = u"HasChildren",
       .access = Property<&ParseNode::HasChildren>(ValueType::Boolean),
       .help = u"Whether there are nodes below this one."},
      {.name = u"DateValue",
       .access = Property<&ParseNode::DateValue>(ValueType::Date),
       .help = u"The date that the text stands for."},
      {.name = u"Item",
       .access = Method{kItemParameters, ValueType::Object, &CallItem},
       .help = u"The item at this position, counted from 1, or Nothing."},
      {.name = u"Buffer", .access = Property<&ParseNode::Buffer>(ValueType::String), .help = u"The text buffer."},
      {.name = u"_NewEnum",
       .access = Method{{}, ValueType::Enumerator, &CallChildren, true},
       .dispatchId = kNewEnumerator,
       .help = u"A fresh enumerator over the direct children."},
  }};
};

constinit const ClassDescription NodeObject::kDescription =
    Table::kMembers.Describe(u"ParseNode", u"Simulated screen parser and its nodes.", &CreateObject<NodeObject>);

struct ItemObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Buffer", .access = Method{{}, ValueType::String, &CallItemBuffer, true}, .help = u"The text buffer."},
  }};
};

constinit const ClassDescription ItemObject::kDescription =
    Table::kMembers.Describe(u"NodeItem", u"Simulated item of a node.", nullptr);

NodeObject::NodeObject(toolkit::Toolkit& toolkit) : node_(toolkit.CreateParser()) {}

}  // namespace qorltst::simulator
