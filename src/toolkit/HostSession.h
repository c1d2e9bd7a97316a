// The caller's session with the reservation host.
#pragma once

#include <cstdint>
#include <string_view>

#include "toolkit/HostResponse.h"
#include "toolkit/RefCounted.h"

namespace qorltst::toolkit {

class HostSession : public RefCounted {
 public:
  /// Sends a command and, with `wait`, waits for the answer. Nothing when the host gave none.
  virtual Ref<HostResponse> SendCommand(std::u16string_view command, bool wait) = 0;

  /// Sets a session option; what the session does with it is its own business.
  virtual void SetOption(std::int32_t option, bool value) = 0;
};

}  // namespace qorltst::toolkit
