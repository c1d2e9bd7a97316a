// Where the component gets its toolkit objects from: the automation bridge, the simulator, or a test.
#pragma once

#include "toolkit/HostLogger.h"
#include "toolkit/ParseNode.h"
#include "toolkit/RefCounted.h"

namespace qorltst::toolkit {

/// Makes the two toolkit objects that the component creates itself. Each object of the component holds the
/// toolkit that it was created with and hands it on to what it creates.
class Toolkit : public RefCounted {
 public:
  /// A new screen parser, which is the root of the tree that it will read. Never nothing.
  virtual Ref<ParseNode> CreateParser() = 0;

  /// A new log sink. Never nothing.
  virtual Ref<HostLogger> CreateLogger() = 0;
};

}  // namespace qorltst::toolkit
