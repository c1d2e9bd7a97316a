// A host answer: one screen.
#pragma once

#include <string>

#include "toolkit/RefCounted.h"

namespace qorltst::toolkit {

class HostResponse : public RefCounted {
 public:
  /// The screen as a run of 80-character lines without separators; NULs inside it are kept.
  virtual std::u16string Text() = 0;
};

}  // namespace qorltst::toolkit
