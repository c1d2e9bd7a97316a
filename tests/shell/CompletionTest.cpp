// What Tab offers. See tools/shell/Completion.h.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/shell/Ticket.h"
#include "tools/shell/Completion.h"

namespace qorltst::shell {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class CompletionTest : public WithTicket {
 protected:
  std::vector<std::string> Words(std::string_view line) { return Complete(shell_, line); }
};

TEST_F(CompletionTest, TheFirstWordMayBeACommandAnEntryOrAProperty) {
  EXPECT_THAT(Words("re"), ElementsAre("retrieve"));
  EXPECT_THAT(Words("t"), ElementsAre("TQT", "TSTHeader", "TaxElements", "Text", "TotalBankersRateId",
                                      "TotalCollection", "TotalCollectionAmount", "TotalCurrencyCode", "TotalErrorText",
                                      "TotalLineText", "TotalRateExchange", "tree"));
  EXPECT_THAT(Words(""), Contains("MD"));
}

TEST_F(CompletionTest, MethodsAreNotOffered) { EXPECT_THAT(Words(""), Not(Contains(StartsWith("RetrieveCurrent")))); }

TEST_F(CompletionTest, ItemsAreOfferedByTheirNumbers) {
  EXPECT_THAT(Words("airsegments("), ElementsAre("airsegments(1)", "airsegments(2)", "airsegments(3)"));
  EXPECT_THAT(Words("AirSegments(2"), ElementsAre("AirSegments(2)"));
  EXPECT_THAT(Words("ZapOff("), IsEmpty());
}

TEST_F(CompletionTest, TheMembersOfAnItemAreOffered) {
  EXPECT_THAT(Words("AirSegments(2).b"), ElementsAre("AirSegments(2).BaggageAllowance", "AirSegments(2).BoardPoint"));
  EXPECT_THAT(Words("AirSegments."), ElementsAre("AirSegments.Count"));
  EXPECT_THAT(Words("AirSegments(9).b"), IsEmpty());
}

TEST_F(CompletionTest, ArgumentsFollowTheirCommand) {
  EXPECT_THAT(Words("log o"), ElementsAre("off", "on"));
  EXPECT_THAT(Words("retrieve "), ElementsAre("MD", "TQT"));
  EXPECT_THAT(Words("classes Air"), ElementsAre("AirOpenSegment", "AirSegment"));
  EXPECT_THAT(Words("TREE AirS"), ElementsAre("AirSegments"));
  EXPECT_THAT(Words("quit "), IsEmpty());
  EXPECT_THAT(Words("ZapOff "), IsEmpty());
}

/// What is offered stands in the place of the last word, so a folder with blanks is there from its last one on.
std::string LastWord(const std::string& name) { return name.substr(name.find_last_of(' ') + 1); }

TEST_F(CompletionTest, FilesAreOfferedForADisplay) {
  const std::string folder = QORL_SOURCE_DIR "/examples/";
  EXPECT_THAT(Words("display " + folder + "disp"), ElementsAre(LastWord(folder) + "displays/"));
  EXPECT_THAT(Words("display " + folder + "displays/not"), ElementsAre(LastWord(folder) + "displays/not-a-tst.txt"));
  EXPECT_THAT(Words("display /no/such/folder/"), IsEmpty());
}

TEST_F(CompletionTest, NamesOfFilesMayHoldBlanks) {
  const std::filesystem::path folder = std::filesystem::path(::testing::TempDir()) / "two words of qorl";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "a first one.txt") << "";
  EXPECT_THAT(Words("  display  " + folder.string() + "/a fi"), ElementsAre("first one.txt"));
  EXPECT_THAT(Words("display " + folder.string() + "/a si"), IsEmpty());
  EXPECT_THAT(Words("display " + folder.parent_path().string() + "/two words o"), ElementsAre("of qorl/"));
  EXPECT_THAT(Words("tree two words"), IsEmpty());
  std::filesystem::remove_all(folder);
}

TEST(CommonStartTest, IsWhatAllWordsStartWithButForTheCaseOfLetters) {
  EXPECT_EQ(CommonStart({"TotalCollection", "TotalCurrencyCode"}), "TotalC");
  EXPECT_EQ(CommonStart({"TQT", "tree"}), "T");
  EXPECT_EQ(CommonStart({"retrieve"}), "retrieve");
  EXPECT_EQ(CommonStart({}), "");
}

}  // namespace
}  // namespace qorltst::shell
