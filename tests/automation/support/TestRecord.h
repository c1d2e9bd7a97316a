// A class with a member of every kind, for tests of the machinery alone. The tests' server is in TestServer.cpp.
#pragma once

#include <string>

#include "frame/ClassDescription.h"
#include "frame/Object.h"
#include "toolkit/HostSession.h"

namespace qorltst::automation::test {

class TestRecord final : public Object {
 public:
  static const ClassDescription kDescription;

  TestRecord() = default;
  explicit TestRecord(toolkit::Toolkit& /*toolkit*/) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  std::u16string text = u"text";
  bool flag = true;
  Date when{36526.25};
  Currency amount{1234567};
  std::int32_t number = 42;
  Ref<Object> child;
  Ref<Object> holder;
  Ref<toolkit::HostSession> session;

 private:
  struct Table;
};

/// A class of plain properties only.
class PlainRecord final : public Object {
 public:
  static const ClassDescription kDescription;

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }

  std::u16string text = u"plain";
  bool flag = false;
  Date when{2.5};
  Currency amount{-10000};

 private:
  struct Table;
};

}  // namespace qorltst::automation::test
