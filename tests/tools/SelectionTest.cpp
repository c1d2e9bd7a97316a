// Classes and properties by name; see tools/model/Selection.h.
#include <gtest/gtest.h>

#include "tests/tools/support/Samples.h"
#include "tools/model/NearNames.h"
#include "tools/model/Selection.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

using Names = std::vector<std::string>;

/// "path: Row Row" for each match in the rich sample.
Names Matches(const Names& classes, const Names& properties, Filter filter = {}) {
  const Ref<TST> ticket = testing::SampleTicket("rich.txt");
  Names lines;
  for (const Match& match : Selection(classes, properties).Find(*ticket, filter)) {
    std::string line = match.path + ':';
    for (const Member* const row : match.rows) {
      line += ' ' + NameText(row->name);
    }
    lines.push_back(line);
  }
  return lines;
}

std::string ErrorOf(const Names& classes, const Names& properties) {
  try {
    Selection(classes, properties);
  } catch (const UnknownName& error) {
    return error.what();
  }
  return "no error";
}

TEST(Selection, FindsEveryObjectOfAClassWhateverTheCase) {
  EXPECT_EQ(Matches({"airsegment"}, {}), (Names{"AirSegments(1):", "AirSegments(2):", "AirSegments(3):"}));
}

TEST(Selection, FindsObjectsDeepInTheFareCalculation) {
  EXPECT_EQ(Matches({"AnySymbol"}, {}),
            (Names{"FareCalculation.Itineraries(1).AnySymbols(1):", "FareCalculation.Itineraries(2).AnySymbols(1):",
                   "FareCalculation.Itineraries(2).AnySymbols(2):"}));
}

TEST(Selection, DoesNotGoIntoAnObjectThatIsShownWhole) { EXPECT_EQ(Matches({"TST", "AirSegment"}, {}), Names{":"}); }

TEST(Selection, FindsAPropertyInEveryClassThatHasIt) {
  EXPECT_EQ(Matches({}, {"BOARDPOINT"}),
            (Names{"AirSegments(1): BoardPoint", "AirSegments(2): BoardPoint", "AirSegments(3): BoardPoint",
                   "AirOpenSegments(1): BoardPoint", "ARNKSegments(1): BoardPoint"}));
}

TEST(Selection, TakesPropertiesOfTheClassesAlone) {
  EXPECT_EQ(Matches({"ARNKSegment", "TST"}, {"Text", "boardpoint", "TEXT"}),
            (Names{": Text", "ARNKSegments(1): Text BoardPoint"}));
}

TEST(Selection, LeavesOutWhatIsEmptyUnlessItIsAskedFor) {
  EXPECT_EQ(Matches({"NameElement"}, {"CabinBaggage"}), Names{"NameElements(3): CabinBaggage"});
  EXPECT_EQ(Matches({"NameElement"}, {"CabinBaggage"}, {.empty = true}).size(), 4U);
  EXPECT_EQ(Matches({"HigherClassDifferential"}, {}, {.empty = true}), Names{});
}

TEST(Selection, ShowsANumberThatIsAskedFor) {
  EXPECT_EQ(Matches({"ARNKSegment"}, {"ClassDebugID"}), Names{"ARNKSegments(1): ClassDebugID"});
}

TEST(Selection, NamesNearClasses) {
  EXPECT_EQ(ErrorOf({"AirSegmnt"}, {}), "there is no class AirSegmnt; did you mean AirSegment?");
  EXPECT_EQ(ErrorOf({"segment"}, {}),
            "there is no class segment; did you mean AirSegment, ARNKSegment or AirOpenSegment?");
  EXPECT_EQ(ErrorOf({"Zeppelin"}, {}), "there is no class Zeppelin");
  EXPECT_EQ(ErrorOf({""}, {}), "there is no class ");
}

TEST(Selection, KnowsNoClassesWithoutContent) {
  EXPECT_EQ(ErrorOf({"Collection"}, {}), "there is no class Collection");
  EXPECT_EQ(ErrorOf({"EtLog"}, {}), "there is no class EtLog");
}

TEST(Selection, NamesNearPropertiesOfTheClassesChosen) {
  EXPECT_EQ(ErrorOf({}, {"BordPoint"}), "there is no property BordPoint; did you mean BoardPoint?");
  EXPECT_EQ(ErrorOf({"TST"}, {"BordPoint"}), "there is no property BordPoint");
  EXPECT_EQ(ErrorOf({"TST"}, {"RetrieveCurrentTst"}), "there is no property RetrieveCurrentTst");
}

TEST(NearNames, KnowsANameByItsStart) {
  EXPECT_EQ(DidYouMean(u"FareBasLine", {u"FareBaseLineText", u"TotalLineText"}), "; did you mean FareBaseLineText?");
  EXPECT_EQ(DidYouMean(u"fx", {u"FareBaseLineText"}), "");
}

TEST(NearNames, ListsAtMostFour) {
  EXPECT_EQ(DidYouMean(u"abc", {u"abc1", u"abc2", u"abc3", u"abc4", u"abc5"}),
            "; did you mean abc1, abc2, abc3 or abc4?");
  EXPECT_EQ(DidYouMean(u"ab", {u"xabx"}), "");
}

}  // namespace
}  // namespace qorltst::model
