// One retrieval of a recorded display through a toolkit that can go wrong.
#pragma once

#include <vector>

#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/SimulatedToolkit.h"
#include "tests/support/FaultingToolkit.h"
#include "tests/support/ModelDump.h"

namespace qorltst::testing {

/// A root object, its toolkit and its log.
class Retrieval {
 public:
  explicit Retrieval(const simulator::Recording& recording)
      : recording_(recording),
        simulated_(Make<simulator::SimulatedToolkit>()),
        toolkit_(Make<FaultingToolkit>(simulated_)),
        tst_(Make<TST>(*toolkit_)) {
    Plan().logLength = [log = simulated_->Log()] { return log->Count(); };
  }

  [[nodiscard]] FaultPlan& Plan() const noexcept { return toolkit_->Plan(); }

  /// A fresh session on the recording; the log is empty then.
  [[nodiscard]] Ref<toolkit::HostSession> Session() const {
    simulated_->Log()->Clear();
    return toolkit_->Wrap(Make<simulator::RecordedSession>(recording_));
  }

  /// Retrieves from the beginning of the recording.
  std::int32_t Retrieve() { return tst_->RetrieveCurrentTst(Session().Get()); }

  [[nodiscard]] std::vector<simulator::LogEntry> Log() const { return simulated_->Log()->Entries(); }
  [[nodiscard]] TST& Root() const noexcept { return *tst_; }
  [[nodiscard]] ModelDump Dump() const { return DumpOf(*tst_); }

 private:
  const simulator::Recording& recording_;
  Ref<simulator::SimulatedToolkit> simulated_;
  Ref<FaultingToolkit> toolkit_;
  Ref<TST> tst_;
};

/// What a retrieval gives where nothing goes wrong.
struct CleanRetrieval {
  explicit CleanRetrieval(const simulator::Recording& recording) {
    Retrieval retrieval(recording);
    result = retrieval.Retrieve();
    log = retrieval.Log();
    dump = retrieval.Dump();
    texts = retrieval.Plan().Texts();
    calls = retrieval.Plan().Calls();
    loggerCalls = retrieval.Plan().LoggerCalls();
  }

  std::int32_t result = 0;
  std::vector<simulator::LogEntry> log;
  ModelDump dump;
  std::set<std::u16string> texts;
  std::vector<NotedCall> calls;
  std::size_t loggerCalls = 0;
};

}  // namespace qorltst::testing
