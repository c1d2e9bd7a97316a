// A caller's own object in the place of one of ours: a collection that a caller sets.
#pragma once

#include "automation/Com.h"
#include "automation/DualFace.h"
#include "frame/ClassDescription.h"

namespace qorltst::automation {

/// Handing it out gives the caller's own object back.
class ForeignObject final : public Object {
 public:
  explicit ForeignObject(IDispatch& object);

  [[nodiscard]] const ClassDescription& Description() const noexcept override;
};

/// The object that is to stand for a collection: `own`, where it is one of ours, else the foreign one behind an
/// `Object`. Raises the runtime error 13 where it does not know the names that make a collection, "Count" and "Item".
[[nodiscard]] Ref<Object> CollectionFrom(IDispatch& object, const Ref<Object>& own);

}  // namespace qorltst::automation
