// Recorded sessions and their responses as automation objects. Counterparts: simulator/RecordedSession.h,
// simulator/ScreenResponse.h.
#pragma once

#include "frame/ClassDescription.h"
#include "frame/Object.h"
#include "simulator/RecordedSession.h"

namespace qorltst::simulator {

/// Created without a recording; every operation but `Load` raises the runtime error 91 until it has one.
class SessionObject final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit SessionObject(toolkit::Toolkit& /*toolkit*/) noexcept {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
  [[nodiscard]] RecordedSession& Session() const;

  /// Raises the runtime error 53 with the reader's own words where the file cannot be read.
  void Load(std::u16string_view path);

 private:
  struct Table;

  Ref<RecordedSession> session_;
};

class ResponseObject final : public Object {
 public:
  static const ClassDescription kDescription;

  explicit ResponseObject(Ref<toolkit::HostResponse> response) noexcept : response_(std::move(response)) {}

  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
  [[nodiscard]] toolkit::HostResponse& Response() const noexcept { return *response_; }

 private:
  struct Table;

  Ref<toolkit::HostResponse> response_;
};

}  // namespace qorltst::simulator
