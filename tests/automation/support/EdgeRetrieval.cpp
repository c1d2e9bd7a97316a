// See EdgeRetrieval.h.
#include "support/EdgeRetrieval.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "automation/LateBoundLogger.h"
#include "automation/LateBoundNode.h"
#include "automation/Text.h"
#include "support/InstalledToolkit.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"
#include "tests/support/Samples.h"

namespace qorltst::automation::test {
namespace {

ComRef<IDispatch> NewToolkitObject(const Guid& classId) {
  static const ServerFile file(BesideProgram(u"QorlHostToolkit.dll"));
  return file.Create(SystemGuid(classId));
}

}  // namespace

ProxyToolkit::ProxyToolkit(Manner manner)
    : manner_(manner),
      plan_(std::make_shared<CallPlan>()),
      nodeNames_(MakeNodeNames()),
      loggerNames_(MakeLoggerNames()) {
  plan_->WatchLog([this] { return log.size(); });
}

Ref<toolkit::ParseNode> ProxyToolkit::CreateParser() {
  ComRef<IDispatch> proxy(new ProxyObject(plan_, manner_, NewToolkitObject(kParserClass)));
  return Make<LateBoundNode>(std::move(proxy), nodeNames_);
}

Ref<toolkit::HostLogger> ProxyToolkit::CreateLogger() {
  const ComRef<FakeObject> logger = Fake(manner_);
  logger->On(u"SetApplication", [this](const FakeObject::Arguments&, VARIANT& result, EXCEPINFO* info) {
    return LoggerCalled(result, info);
  });
  logger->On(u"Write", [this](const FakeObject::Arguments& arguments, VARIANT& result, EXCEPINFO* info) {
    return Write(arguments, result, info);
  });
  return Make<LateBoundLogger>(ComRef<IDispatch>(logger.Get()), loggerNames_);
}

void ProxyToolkit::AnswerLoggerAt(std::size_t n, const OddAnswer& answer) {
  loggerAt_ = loggerCalls_ + n;
  loggerAnswer_ = &answer;
}

HRESULT ProxyToolkit::LoggerCalled(VARIANT& result, EXCEPINFO* info) {
  return ++loggerCalls_ == loggerAt_ ? loggerAnswer_->give(result, info) : S_OK;
}

HRESULT ProxyToolkit::Write(const FakeObject::Arguments& arguments, VARIANT& result, EXCEPINFO* info) {
  log.push_back({u"", arguments.at(0).lVal, std::u16string(View(arguments.at(1).bstrVal)), arguments.at(2).lVal,
                 std::u16string(View(arguments.at(3).bstrVal))});
  return LoggerCalled(result, info);
}

ComRef<IDispatch> ProxyToolkit::Session(const std::string& display) const {
  const Client session(NewToolkitObject(kSessionClass));
  const std::string path = SourcePath("examples/displays/" + display + ".txt");
  const Variant argument(std::u16string(path.begin(), path.end()));
  EXPECT_EQ(session.Call(u"Load", {argument.Get()}).code, S_OK) << path;
  return ComRef<IDispatch>(new ProxyObject(plan_, manner_, ComRef<IDispatch>(session.Get())));
}

EdgeRetrieval::EdgeRetrieval(const std::string& display, Manner manner)
    : toolkit_(Make<ProxyToolkit>(manner)),
      session_(toolkit_->Session(display)),
      tst_(Make<TST>(*toolkit_)),
      client_(*tst_),
      retrieve_(client_.IdOf(u"RetrieveCurrentTst")) {}

std::int32_t EdgeRetrieval::Retrieve() {
  toolkit_->log.clear();
  const Answer answer = client_.Call(retrieve_, {Dispatch(session_.Get())});
  EXPECT_EQ(answer.code, S_OK);
  return answer.Long();
}

CleanEdgeRetrieval::CleanEdgeRetrieval(const std::string& display, Manner manner) {
  EdgeRetrieval retrieval(display, manner);
  result = retrieval.Retrieve();
  log = retrieval.Entries();
  dump = retrieval.Dump();
  calls = retrieval.Plan().Calls();
  loggerCalls = retrieval.Toolkit().LoggerCalls();
}

std::vector<std::string> DisplaysToWearOut() {
  std::vector<std::string> names;
  for (const testing::Sample& sample : testing::SamplesToWearOut()) {
    names.push_back(sample.name);
  }
  return names;
}

bool StartsWith(const Log& log, const Log& clean, std::size_t length) {
  return length <= clean.size() && log.size() >= length &&
         std::equal(log.begin(), log.begin() + static_cast<std::ptrdiff_t>(length), clean.begin());
}

std::set<std::u16string> MissingObjects(TST& root) {
  std::set<std::u16string> missing = testing::AbsentObjectsOf(root);
  // These two come with their node.
  missing.erase(u"FareMinimun.Fare");
  missing.erase(u"ExtraSeat.Fare");
  return missing;
}

}  // namespace qorltst::automation::test
