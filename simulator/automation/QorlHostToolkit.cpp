// What the simulated toolkit's library serves. See automation/Server.h.
#include "automation/Server.h"
#include "simulator/automation/Identities.h"
#include "simulator/automation/ProcessToolkit.h"

namespace qorltst::automation {

const Server& ThisServer() noexcept {
  static const Server server{simulator::ToolkitLibrary(), &simulator::ProcessToolkit};
  return server;
}

}  // namespace qorltst::automation
