// What the component's library serves. See Server.h.
#include "automation/Identities.h"
#include "automation/LateBoundToolkit.h"
#include "automation/Server.h"

namespace qorltst::automation {

const Server& ThisServer() noexcept {
  static const Server server{ComponentLibrary(), &LateBoundToolkit::OfThisThread};
  return server;
}

}  // namespace qorltst::automation
