// Access by position and by enumeration, and the public table of collections. See Collection.h.
#include "frame/Collection.h"

#include <array>

#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

/// Dispatch ids that automation reserves.
constexpr std::int32_t kDefaultMember = 0;
constexpr std::int32_t kNewEnumerator = -4;

class CollectionCursor final : public Cursor {
 public:
  explicit CollectionCursor(const Collection& collection, std::int32_t taken = 0)
      : collection_(&collection), taken_(taken) {}

  Ref<Object> Next() override { return taken_ < collection_->Count() ? collection_->Item(++taken_) : nullptr; }
  void Reset() override { taken_ = 0; }
  [[nodiscard]] Ref<Cursor> Clone() const override { return Make<CollectionCursor>(*collection_, taken_); }

 private:
  Ref<const Collection> collection_;
  std::int32_t taken_;
};

using Arguments = std::span<const Value>;

const Collection& CollectionOf(Object& object) { return static_cast<const Collection&>(object); }

Value CallItem(Object& object, Arguments arguments) {
  return CollectionOf(object).Item(std::get<std::int32_t>(arguments[0]));
}

Value CallEnumerate(Object& object, Arguments /*none*/) { return CollectionOf(object).Enumerate(); }

constexpr std::array kItemParameters{Parameter{u"Index", ValueType::Long}};

}  // namespace

struct Collection::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Count",
       .access = LongField{[](const Object& object) { return static_cast<const Collection&>(object).Count(); }},
       .help = u"How many objects the collection holds."},
      {.name = u"Item",
       .access = Method{kItemParameters, ValueType::Object, &CallItem},
       .dispatchId = kDefaultMember,
       .help = u"The object at this position, counted from 1."},
      {.name = u"_NewEnum",
       .access = Method{{}, ValueType::Enumerator, &CallEnumerate, true},
       .dispatchId = kNewEnumerator,
       .help = u"A fresh enumerator over the objects, in their order."},
  }};
};

constinit const ClassDescription Collection::kDescription =
    Table::kMembers.Describe(u"Collection", u"An ordered collection of objects, counted from 1.", nullptr);

Ref<Object> Collection::Item(std::int32_t index) const {
  if (index < 1 || index > Count()) {
    throw toolkit::RuntimeError(toolkit::kSubscriptOutOfRange);
  }
  return items_[static_cast<std::size_t>(index) - 1];
}

Ref<Cursor> Collection::Enumerate() const { return Make<CollectionCursor>(*this); }

}  // namespace qorltst
