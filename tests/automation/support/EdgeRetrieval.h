// A retrieval of a recorded display through automation on both sides: the caller's Invoke, and proxies in front of the
// simulated toolkit's objects.
#pragma once

#include <string>
#include <vector>

#include "automation/DispatchNames.h"
#include "frame/TST.h"
#include "simulator/LogEntry.h"
#include "support/ProxyObject.h"
#include "tests/support/ModelDump.h"
#include "toolkit/Toolkit.h"

namespace qorltst::automation::test {

using Log = std::vector<simulator::LogEntry>;

/// The simulated toolkit's classes, behind proxies of one plan; its loggers write into one list.
class ProxyToolkit final : public toolkit::Toolkit {
 public:
  explicit ProxyToolkit(Manner manner);

  Ref<toolkit::ParseNode> CreateParser() override;
  Ref<toolkit::HostLogger> CreateLogger() override;

  /// A session that plays the display, behind a proxy.
  [[nodiscard]] ComRef<IDispatch> Session(const std::string& display) const;

  [[nodiscard]] CallPlan& Plan() const noexcept { return *plan_; }

  /// The n-th call that a logger gets from now on has this answer.
  void AnswerLoggerAt(std::size_t n, const OddAnswer& answer);

  [[nodiscard]] std::size_t LoggerCalls() const noexcept { return loggerCalls_; }

  Log log;

 private:
  HRESULT LoggerCalled(VARIANT& result, EXCEPINFO* info);
  HRESULT Write(const FakeObject::Arguments& arguments, VARIANT& result, EXCEPINFO* info);

  Manner manner_;
  std::shared_ptr<CallPlan> plan_;
  std::size_t loggerCalls_ = 0;
  std::size_t loggerAt_ = 0;
  const OddAnswer* loggerAnswer_ = nullptr;
  Ref<DispatchNames> nodeNames_;
  Ref<DispatchNames> loggerNames_;
};

class EdgeRetrieval {
 public:
  explicit EdgeRetrieval(const std::string& display, Manner manner = Manner::Plain);

  /// The result code. An error from Invoke fails the test.
  std::int32_t Retrieve();

  [[nodiscard]] ProxyToolkit& Toolkit() const noexcept { return *toolkit_; }
  [[nodiscard]] CallPlan& Plan() const noexcept { return toolkit_->Plan(); }
  [[nodiscard]] const Log& Entries() const noexcept { return toolkit_->log; }
  [[nodiscard]] TST& Root() const noexcept { return *tst_; }
  [[nodiscard]] testing::ModelDump Dump() const { return testing::DumpOf(*tst_); }

 private:
  Ref<ProxyToolkit> toolkit_;
  ComRef<IDispatch> session_;
  Ref<TST> tst_;
  Client client_;
  /// Found beforehand: a look-up needs memory for the name.
  DISPID retrieve_;
};

/// What a retrieval gives where nothing goes wrong.
struct CleanEdgeRetrieval {
  explicit CleanEdgeRetrieval(const std::string& display, Manner manner = Manner::Plain);

  std::int32_t result = 0;
  Log log;
  testing::ModelDump dump;
  std::vector<NotedCall> calls;
  std::size_t loggerCalls = 0;
};

/// The displays that together fill an object of every class.
[[nodiscard]] std::vector<std::string> DisplaysToWearOut();

/// Whether the log begins with the first `length` entries of the other.
[[nodiscard]] bool StartsWith(const Log& log, const Log& clean, std::size_t length);

/// The object and collection properties that a model must hold and does not.
[[nodiscard]] std::set<std::u16string> MissingObjects(TST& root);

}  // namespace qorltst::automation::test
