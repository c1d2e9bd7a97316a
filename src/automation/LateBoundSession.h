// The caller's host session and its responses, reached by name. Counterpart: toolkit/HostSession.h.
#pragma once

#include "automation/LateBoundObject.h"
#include "toolkit/HostSession.h"

namespace qorltst::automation {

class LateBoundSession final : public toolkit::HostSession {
 public:
  explicit LateBoundSession(ComRef<IDispatch> object);

  Ref<toolkit::HostResponse> SendCommand(std::u16string_view command, bool wait) override;
  void SetOption(std::int32_t option, bool value) override;

 private:
  LateBoundObject object_;
};

class LateBoundResponse final : public toolkit::HostResponse {
 public:
  explicit LateBoundResponse(ComRef<IDispatch> object);

  std::u16string Text() override;

 private:
  LateBoundObject object_;
};

}  // namespace qorltst::automation
