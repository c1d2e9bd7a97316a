// A toolkit that is not installed, for objects that are only looked at.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "frame/ClassDescription.h"
#include "frame/PublicClasses.h"
#include "toolkit/RuntimeError.h"
#include "toolkit/Toolkit.h"

namespace qorltst::automation::test {

class NoToolkit final : public toolkit::Toolkit {
 public:
  Ref<toolkit::ParseNode> CreateParser() override { throw toolkit::RuntimeError(toolkit::kObjectNotSet); }
  Ref<toolkit::HostLogger> CreateLogger() override { throw toolkit::RuntimeError(toolkit::kObjectNotSet); }
};

/// Calls `visit(object)` for a new object of each class that callers can create.
template <class Visit>
void ForEachNewObject(Visit&& visit) {
  const auto toolkit = Make<NoToolkit>();
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create != nullptr) {
      SCOPED_TRACE(std::string(description->name.begin(), description->name.end()));
      const Ref<Object> object = description->create(*toolkit);
      visit(*object);
    }
  }
}

}  // namespace qorltst::automation::test
