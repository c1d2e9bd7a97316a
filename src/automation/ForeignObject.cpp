// Foreign objects. See ForeignObject.h.
#include "automation/ForeignObject.h"

#include "automation/LateBoundObject.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation {
namespace {

constexpr ClassDescription kForeignDescription{u"ForeignObject", u"An object of the caller.", {}, {}, {}, nullptr};

class ForeignFace final : public AutomationFace {
 public:
  explicit ForeignFace(IDispatch& object) : object_(&object) {}

  [[nodiscard]] IDispatch* Dispatch() noexcept override { return object_.Get(); }

 private:
  ComRef<IDispatch> object_;
};

}  // namespace

ForeignObject::ForeignObject(IDispatch& object) { SetFace(std::make_unique<ForeignFace>(object)); }

const ClassDescription& ForeignObject::Description() const noexcept { return kForeignDescription; }

Ref<Object> CollectionFrom(IDispatch& object, const Ref<Object>& own) {
  LateBoundObject candidate{ComRef<IDispatch>(&object), LateBoundObject::Names()};
  if (!candidate.Knows(u"Count") || !candidate.Knows(u"Item")) {
    throw toolkit::RuntimeError(toolkit::kTypeMismatch);
  }
  return own ? own : Ref<Object>(Make<ForeignObject>(object));
}

}  // namespace qorltst::automation
