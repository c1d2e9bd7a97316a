// The toolkit's log sink.
#pragma once

#include <cstdint>
#include <string_view>

#include "toolkit/RefCounted.h"

namespace qorltst::toolkit {

class HostLogger : public RefCounted {
 public:
  /// Names the application in whose name entries are written.
  virtual void SetApplication(std::u16string_view name) = 0;

  /// Writes one entry. `kind` is a `LogKind`.
  virtual void Write(std::int32_t kind, std::u16string_view source, std::int32_t number,
                     std::u16string_view message) = 0;
};

}  // namespace qorltst::toolkit
