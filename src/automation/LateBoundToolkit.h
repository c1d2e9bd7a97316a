// The host toolkit as registered on this machine. Counterparts: toolkit/Toolkit.h, the LateBound... classes.
#pragma once

#include "automation/Com.h"
#include "automation/DispatchNames.h"
#include "toolkit/Toolkit.h"

namespace qorltst::automation {

/// One for each thread while objects made there hold it; it keeps the toolkit's class factories, so that the logger
/// of each further object costs no look-up in the registry.
class LateBoundToolkit final : public toolkit::Toolkit {
 public:
  /// The toolkit of the calling thread.
  [[nodiscard]] static Ref<toolkit::Toolkit> OfThisThread();

  LateBoundToolkit();

  /// Both raise the runtime error 429 where the toolkit is not installed or its class cannot be made.
  Ref<toolkit::ParseNode> CreateParser() override;
  Ref<toolkit::HostLogger> CreateLogger() override;

 protected:
  ~LateBoundToolkit() override;

 private:
  /// The factory is found on first use; a failure is not remembered, the toolkit may be installed later.
  static ComRef<IDispatch> Create(ComRef<IClassFactory>& factory, const wchar_t* programId);

  ComRef<IClassFactory> parserFactory_;
  ComRef<IClassFactory> loggerFactory_;
  Ref<DispatchNames> nodeNames_;
  Ref<DispatchNames> loggerNames_;
};

}  // namespace qorltst::automation
