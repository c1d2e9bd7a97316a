// Tests of an intermediate point of a higher class differential.
#include <gtest/gtest.h>

#include "farecalc/FareHigherIntermediate.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class FareHigherIntermediateTest : public testing::RecordTest<FareHigherIntermediate> {};

TEST_F(FareHigherIntermediateTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2904, u"PARROM C"}.WithError(u"e")), (Texts{"Text=PARROM C", "ErrorText=e"}));
}

TEST_F(FareHigherIntermediateTest, TakesTheCityPairAndNothingElse) {
  EXPECT_EQ(StoredBelow(2904, {}), Texts{"1130 CityPair=text"});
}

TEST_F(FareHigherIntermediateTest, TakesTheClassFromItsGroup) {
  EXPECT_EQ(StoredBelow(2904, {2908}), Texts{"2780 Class=text"});
}

TEST_F(FareHigherIntermediateTest, KeepsTheLastClassOfAllItsGroups) {
  EXPECT_EQ(
      FilledFrom({2904, u"", {{2908, u"", {{2780, u"C"}, {2780, u"D"}}}, {2908, u"", {{2780, u"F"}, {93, u"Y"}}}}}),
      Texts{"Class=F"});
}

TEST_F(FareHigherIntermediateTest, IgnoresTheBookingClassOfOtherItems) {
  EXPECT_EQ(FilledFrom({2904, u"", {{93, u"Y"}, {2780, u"C"}, {2908, u"", {{1130, u"PARLON"}}}}}), Texts());
}

const Tree kPoint =
    Tree{2904, u"PARROM C", {{1130, u"PARROM"}, {93, u"?"}, {2908, u"C", {{2780, u"C"}, {93, u"?"}}}}}.WithError(u"e");

const Story kPointStory = Tell(
    {Writes(u"Beginning of FillWithData (in FareHigherIntermediate) Function", u"FareHigherIntermediate.FillWithData"),
     Asks(1, "Text 2904 => Text=PARROM C, ErrorText 2904 => ErrorText=e, Children 2904"),
     Asks(1, "Next 2904, TypeId 1130, Text 1130 => CityPair=PARROM, Next 2904, TypeId 93"),
     Asks(1, "Next 2904, TypeId 2908, Children 2908, Next 2908, TypeId 2780, Text 2780 => Class=C"),
     Asks(1, "Next 2908, TypeId 93, Next 2908, Next 2904"),
     Writes(u"End of FillWithData (in FareHigherIntermediate) Function", u"FareHigherIntermediate.FillWithData")});

TEST_F(FareHigherIntermediateTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kPoint, kPointStory); }

TEST_F(FareHigherIntermediateTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kPoint, kPointStory); }

}  // namespace
}  // namespace qorltst
