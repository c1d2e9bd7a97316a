// Nodes by name. See LateBoundNode.h.
#include "automation/LateBoundNode.h"

#include "automation/Errors.h"

namespace qorltst::automation {
namespace {

constexpr std::array<std::u16string_view, 10> kNodeNames{u"Parse",     u"FindNode",   u"TypeId",      u"Text",
                                                         u"ErrorText", u"HasWarning", u"HasChildren", u"DateValue",
                                                         u"Item",      u"Buffer"};

static_assert(kNodeNames.size() <= LateBoundObject::kMaximumMembers);

/// In the order of the names.
enum NodeMember : std::size_t {
  kParse,
  kFindNode,
  kTypeId,
  kText,
  kErrorText,
  kHasWarning,
  kHasChildren,
  kDateValue,
  kItem,
  kBuffer
};

constexpr std::array<std::u16string_view, 1> kItemNames{u"Buffer"};

/// Toolkits may offer these as a property or as a method.
constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

/// An enumerator arrives as an object of any interface.
ComRef<IEnumVARIANT> EnumeratorIn(const VARIANT& result) {
  const VARIANT& value = Dereferenced(result);
  if (value.vt != VT_UNKNOWN && value.vt != VT_DISPATCH) {
    throw toolkit::RuntimeError(toolkit::kTypeMismatch);
  }
  // The two interface members of a variant lie in one place.
  IUnknown* const object = value.vt == VT_DISPATCH ? value.pdispVal : value.punkVal;
  if (object == nullptr) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  ComRef<IEnumVARIANT> enumerator = Query<IEnumVARIANT>(object);
  if (!enumerator) {
    throw toolkit::RuntimeError(toolkit::kNoSuchMember);
  }
  return enumerator;
}

}  // namespace

Ref<DispatchNames> MakeNodeNames() { return Make<DispatchNames>(kNodeNames); }

LateBoundNode::LateBoundNode(ComRef<IDispatch> object, Ref<DispatchNames> names)
    : names_(std::move(names)), object_(std::move(object), names_) {}

std::int32_t LateBoundNode::Parse(std::u16string_view text, std::int32_t mode) {
  std::array<Variant, 2> arguments{Variant(text), Variant(mode)};
  Variant result;
  object_.Call(kParse, DISPATCH_METHOD, arguments, result);
  return result.ConvertTo(VT_I4).lVal;
}

Ref<toolkit::ParseNode> LateBoundNode::FindNode(toolkit::NodeTypeId type) {
  // The start node is left out.
  std::array<Variant, 1> arguments{Variant(static_cast<std::int32_t>(type))};
  Variant result;
  object_.Call(kFindNode, DISPATCH_METHOD, arguments, result);
  ComRef<IDispatch> found = LateBoundObject::ObjectIn(result);
  return found ? Ref<toolkit::ParseNode>(Make<LateBoundNode>(std::move(found), names_)) : nullptr;
}

toolkit::NodeTypeId LateBoundNode::TypeId() { return static_cast<toolkit::NodeTypeId>(object_.GetLong(kTypeId)); }

std::u16string LateBoundNode::Text() { return object_.GetText(kText); }

std::u16string LateBoundNode::ErrorText() { return object_.GetText(kErrorText); }

bool LateBoundNode::HasWarning() { return object_.GetBoolean(kHasWarning); }

bool LateBoundNode::HasChildren() { return object_.GetBoolean(kHasChildren); }

toolkit::Date LateBoundNode::DateValue() { return {object_.GetDate(kDateValue)}; }

Ref<toolkit::BufferOwner> LateBoundNode::Item(std::int32_t index) {
  std::array<Variant, 1> arguments{Variant(index)};
  Variant result;
  object_.Call(kItem, kEither, arguments, result);
  ComRef<IDispatch> item = LateBoundObject::ObjectIn(result);
  return item ? Ref<toolkit::BufferOwner>(Make<LateBoundItem>(std::move(item))) : nullptr;
}

Ref<toolkit::NodeEnumerator> LateBoundNode::Children() {
  Variant result;
  object_.CallById(DISPID_NEWENUM, kEither, {}, result);
  return Make<LateBoundEnumerator>(EnumeratorIn(result.Get()), names_);
}

std::u16string LateBoundNode::Buffer() { return object_.GetText(kBuffer); }

LateBoundItem::LateBoundItem(ComRef<IDispatch> object) : object_(std::move(object), kItemNames) {}

std::u16string LateBoundItem::Buffer() { return object_.GetText(0); }

LateBoundEnumerator::LateBoundEnumerator(ComRef<IEnumVARIANT> children, Ref<DispatchNames> names)
    : children_(std::move(children)), names_(std::move(names)) {}

Ref<toolkit::ParseNode> LateBoundEnumerator::Next() {
  Variant child;
  ULONG taken = 0;
  const HRESULT code = children_->Next(1, &child.Get(), &taken);
  RaiseIfFailed(code);
  if (code == S_FALSE || taken == 0) {
    return nullptr;
  }
  return Make<LateBoundNode>(LateBoundObject::ObjectIn(child), names_);
}

}  // namespace qorltst::automation
