// What the component's library serves. See Server.h.
#include "automation/Identities.h"
#include "automation/LateBoundToolkit.h"
#include "automation/NumberFormat.h"
#include "automation/Server.h"
#include "frame/Amount.h"

namespace qorltst::automation {
namespace {

Server MakeServer() {
  SetDecimalSeparatorSource(&SystemDecimalSeparator);
  return {ComponentLibrary(), &LateBoundToolkit::OfThisThread};
}

}  // namespace

const Server& ThisServer() noexcept {
  // On the first use, which comes before the first object; nothing happens while the library is loaded.
  static const Server server = MakeServer();
  return server;
}

}  // namespace qorltst::automation
