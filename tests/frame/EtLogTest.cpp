#include <gtest/gtest.h>

#include "frame/EtLog.h"
#include "frame/modErrorHandling.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using testing::Entry;
using testing::TestToolkit;

class EtLogTest : public ::testing::Test {
 protected:
  Ref<TestToolkit> toolkit_ = Make<TestToolkit>();
  Ref<EtLog> log_ = Make<EtLog>(*toolkit_);

  void ExpectLog(std::vector<Entry> entries) { EXPECT_EQ(toolkit_->log, entries); }
};

TEST_F(EtLogTest, TraceIsKindThreeNumberOneUnderThePrefixedSource) {
  log_->LogTrace(u"a message", u"TstParser.ParseTst");
  ExpectLog({{3, u"QorlTST.TstParser.ParseTst", 1, u"a message"}});
}

TEST_F(EtLogTest, TraceWithoutASourceHasThePrefixAlone) {
  log_->LogTrace(u"a message");
  ExpectLog({{3, u"QorlTST.", 1, u"a message"}});
}

TEST_F(EtLogTest, ASourceOfAnyLengthIsWhole) {
  for (std::size_t length = 0; length < 300; ++length) {
    std::u16string source(length, u'x');
    if (length > 0) {
      source.back() = u'y';
    }
    toolkit_->log.clear();
    log_->LogTrace(u"text", source);
    ExpectLog({{3, u"QorlTST." + source, 1, u"text"}});
  }
}

TEST_F(EtLogTest, HostErrorHasItsNumberAndText) {
  log_->LogHostError(1004, u"Here");
  ExpectLog({{0, u"QorlTST.Here", 1004, u"User not sign in"}});
}

TEST_F(EtLogTest, EveryHostErrorNumberHasItsText) {
  EXPECT_EQ(HostErrorText(1000), u"Can not retrieve the intended response");
  EXPECT_EQ(HostErrorText(1004), u"User not sign in");
  EXPECT_EQ(HostErrorText(1005), u"Parsing Warning");
  EXPECT_EQ(HostErrorText(1006), u"Parsing Error");
  EXPECT_EQ(HostErrorText(3000), u"Time out.");
  EXPECT_EQ(HostErrorText(3001), u"Unknown host.");
  EXPECT_EQ(HostErrorText(3002), u"The host is disconnected.");
  EXPECT_EQ(HostErrorText(3003), u"There is no more session available.");
  EXPECT_EQ(HostErrorText(3004), u"There is a problem with the connected session.");
}

TEST_F(EtLogTest, UnknownHostErrorNumbersHaveAnEmptyText) {
  for (const std::int32_t number : {-1, 0, 999, 1001, 1002, 1003, 1007, 2999, 3005, 10000}) {
    EXPECT_EQ(HostErrorText(number), u"") << number;
  }
  log_->LogHostError(1003);
  ExpectLog({{0, u"QorlTST.", 1003, u""}});
}

TEST_F(EtLogTest, ParseWarningIsKindTwo) {
  log_->LogParseWarning(1005, u"Here");
  ExpectLog({{2, u"QorlTST.Here", 1005, u"Parsing Warning"}});
}

TEST_F(EtLogTest, RuntimeErrorIsWrittenUnderThePendingNumberWithBothTexts) {
  const RuntimeError pending(toolkit::kObjectNotSet);
  const PendingError scope(pending);
  log_->LogVbError(5, u"description", u"Here", u"message");
  ExpectLog({{0, u"QorlTST.Here", 91, u"description - message"}});
}

TEST_F(EtLogTest, RuntimeErrorWithNothingPendingHasNumberZero) {
  log_->LogVbError(5, u"description");
  ExpectLog({{0, u"QorlTST.", 0, u"description - "}});
}

TEST_F(EtLogTest, RuntimeErrorWithAHostErrorIsFollowedByIt) {
  log_->LogVbError(5, u"description", u"Here", u"message", 3002);
  ExpectLog(
      {{0, u"QorlTST.Here", 0, u"description - message"}, {0, u"QorlTST.Here", 3002, u"The host is disconnected."}});
}

TEST_F(EtLogTest, RuntimeWarningIsKindTwoAndItsHostErrorKindZero) {
  log_->LogVbWarning(5, u"description", u"Here", u"message", 3002);
  ExpectLog(
      {{2, u"QorlTST.Here", 0, u"description - message"}, {0, u"QorlTST.Here", 3002, u"The host is disconnected."}});
}

TEST_F(EtLogTest, LogWithNothingPendingIsAnErrorWithoutANumber) {
  log_->Log(u"Here", u"message");
  ExpectLog({{0, u"QorlTST.Here", 0, u"message"}});
}

TEST_F(EtLogTest, LogWithAPendingErrorWritesItAndHostError3004) {
  const RuntimeError pending(toolkit::kOverflow);
  const PendingError scope(pending);
  log_->Log(u"Here", u"message");
  ExpectLog({{0, u"QorlTST.Here", 6, u"Overflow - message"},
             {0, u"QorlTST.Here", 3004, u"There is a problem with the connected session."}});
}

TEST_F(EtLogTest, EveryTextMayBeLeftOut) {
  log_->Log();
  ExpectLog({{0, u"QorlTST.", 0, u""}});
}

TEST_F(EtLogTest, SourceIsThePrefixOfLaterEntries) {
  EXPECT_EQ(log_->Source(), u"QorlTST.");
  log_->SetSource(u"Agency/");
  EXPECT_EQ(log_->Source(), u"Agency/");
  log_->LogTrace(u"message", u"Here");
  log_->SetSource(u"");
  log_->LogTrace(u"message", u"Here");
  ExpectLog({{3, u"Agency/Here", 1, u"message"}, {3, u"Here", 1, u"message"}});
}

TEST_F(EtLogTest, TheLoggerIsMadeOnTheFirstEntryAndNamedOnce) {
  EXPECT_EQ(toolkit_->loggersCreated, 0);
  log_->LogTrace(u"one");
  log_->LogTrace(u"two");
  EXPECT_EQ(toolkit_->loggerCalls, (std::vector<std::string>{"CreateLogger", "SetApplication", "Write", "Write"}));
  EXPECT_EQ(toolkit_->applications, std::vector<std::u16string>{u"QorlTST"});
}

TEST_F(EtLogTest, AFailingLoggerIsIgnored) {
  for (const char* const call : {"CreateLogger", "SetApplication", "Write"}) {
    SCOPED_TRACE(call);
    const auto log = Make<EtLog>(*toolkit_);
    toolkit_->FailLoggerCalls(call);
    log->Log(u"Here", u"message");
    log->LogHostError(1000);
    log->LogVbError(5, u"d", u"s", u"m", 1000);
    log->LogParseWarning(1000);
    log->LogVbWarning(5, u"d", u"s", u"m", 1000);
    log->LogTrace(u"message");
  }
}

TEST_F(EtLogTest, AnEntryIsWrittenEvenWhereTheApplicationCouldNotBeNamed) {
  toolkit_->FailLoggerCalls("SetApplication");
  log_->LogTrace(u"one");
  log_->LogTrace(u"two");
  ExpectLog({{3, u"QorlTST.", 1, u"one"}, {3, u"QorlTST.", 1, u"two"}});
  EXPECT_EQ(std::ranges::count(toolkit_->loggerCalls, "SetApplication"), 1);
}

TEST_F(EtLogTest, ALoggerThatCouldNotBeMadeIsTriedAgain) {
  toolkit_->FailLoggerCalls("CreateLogger");
  log_->LogTrace(u"lost");
  toolkit_->FailLoggerCalls("");
  log_->LogTrace(u"kept");
  ExpectLog({{3, u"QorlTST.", 1, u"kept"}});
}

TEST_F(EtLogTest, TakesNoDebugId) { EXPECT_EQ(EtLog::kDescription.FindByName(u"ClassDebugID"), nullptr); }

}  // namespace
}  // namespace qorltst
