// The loggers; see simulator/Logger.h.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <thread>

#include "simulator/FileLogger.h"
#include "simulator/MemoryLogger.h"
#include "simulator/StreamLogger.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

using toolkit::Make;

/// A file of the test's own, which ends with it.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& name) : path_(std::filesystem::temp_directory_path() / name) { Remove(); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() { Remove(); }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  [[nodiscard]] std::string Content() const {
    std::ifstream stream(path_, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
  }

 private:
  void Remove() const {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  std::filesystem::path path_;
};

TEST(MemoryLogger, KeepsEntriesInTheirOrder) {
  const auto logger = Make<MemoryLogger>();
  logger->SetApplication(u"QorlTST");
  logger->Write(3, u"QorlTST.TST", 1, u"begin");
  logger->Write(0, u"QorlTST.TST", 3004, u"no session");
  EXPECT_EQ(logger->Application(), u"QorlTST");
  EXPECT_EQ(logger->Log()->Entries(), (std::vector<LogEntry>{{u"QorlTST", 3, u"QorlTST.TST", 1, u"begin"},
                                                             {u"QorlTST", 0, u"QorlTST.TST", 3004, u"no session"}}));
}

TEST(MemoryLogger, SharesALogWithOthersInTheOrderOfArrival) {
  const auto log = Make<SharedLog>();
  const auto first = Make<MemoryLogger>(log);
  const auto second = Make<MemoryLogger>(log);
  first->Write(3, u"a", 1, u"1");
  second->Write(3, u"b", 1, u"2");
  first->Write(3, u"a", 1, u"3");
  ASSERT_EQ(log->Count(), 3U);
  EXPECT_EQ(log->Entries()[1].source, u"b");
  EXPECT_EQ(log->Entries()[2].message, u"3");
}

TEST(SharedLog, OutlivesItsLoggers) {
  const auto log = Make<SharedLog>();
  Make<MemoryLogger>(log)->Write(3, u"a", 1, u"1");
  EXPECT_EQ(log->Count(), 1U);
  log->Clear();
  EXPECT_EQ(log->Count(), 0U);
}

TEST(SharedLog, LosesNoEntryOfTwoThreads) {
  const auto log = Make<SharedLog>();
  const auto write = [&log] {
    const auto logger = Make<MemoryLogger>(log);
    for (int i = 0; i < 1000; ++i) {
      logger->Write(3, u"a", 1, u"1");
    }
  };
  std::thread other(write);
  write();
  other.join();
  EXPECT_EQ(log->Count(), 2000U);
}

TEST(StreamLogger, WritesOneReadableLineAnEntry) {
  std::ostringstream stream;
  const auto logger = Make<StreamLogger>(stream);
  logger->SetApplication(u"QorlTST");
  logger->Write(3, u"QorlTST.TST.Fill", 1, u"Beginning");
  logger->Write(2, u"QorlTST.", 1005, u"Parsing Warning");
  logger->Write(0, u"", 1000, u"");
  logger->Write(7, u"S", -1, u"M");
  EXPECT_EQ(stream.str(),
            "QorlTST TRACE 1 QorlTST.TST.Fill: Beginning\n"
            "QorlTST WARNING 1005 QorlTST.: Parsing Warning\n"
            "QorlTST ERROR 1000 : \n"
            "QorlTST 7 -1 S: M\n");
}

TEST(StreamLogger, KeepsAnEntryOnItsLine) {
  std::ostringstream stream;
  Make<StreamLogger>(stream)->Write(3, u"S", 1, u"a\r\nb \u20AC");
  EXPECT_EQ(stream.str(), "- TRACE 1 S: a\\x0d\\x0ab \xE2\x82\xAC\n");
}

TEST(FileLogger, AppendsToItsFile) {
  const TemporaryFile file("qorltst-file-logger-test.log");
  Make<FileLogger>(file.Path())->Write(3, u"S", 1, u"first");
  Make<FileLogger>(file.Path())->Write(3, u"S", 1, u"second");
  EXPECT_EQ(file.Content(), "- TRACE 1 S: first\n- TRACE 1 S: second\n");
}

TEST(FileLogger, MakesNoFileBeforeItsFirstEntry) {
  const TemporaryFile file("qorltst-file-logger-empty-test.log");
  Make<FileLogger>(file.Path())->SetApplication(u"QorlTST");
  EXPECT_FALSE(std::filesystem::exists(file.Path()));
}

TEST(FileLogger, FailsWhereItCannotWrite) {
  const auto logger = Make<FileLogger>(std::filesystem::temp_directory_path() / "no-such-folder" / "log.txt");
  EXPECT_THROW(logger->Write(3, u"S", 1, u"M"), toolkit::RuntimeError);
}

}  // namespace
}  // namespace qorltst::simulator
