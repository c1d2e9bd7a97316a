// Tests of the symbols at a point of a fare calculation.
#include <gtest/gtest.h>

#include "farecalc/AnySymbol.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class AnySymbolTest : public testing::RecordTest<AnySymbol> {};

TEST_F(AnySymbolTest, TakesEachSymbolFromItsTypeAndNothingElse) {
  EXPECT_EQ(StoredBelow(2822, {}),
            (Texts{"2756 OtherSymbol=text", "2757 ExtraMileageRoutingPoint=text", "2758 StopOverNotAllowed=text",
                   "2759 ReducedMileageRoutingPoint=text", "2760 TicketedPointNotInMileage=text",
                   "2761 GapInRoutinNotInMileage=text", "2762 GapInRoutingIncludedInMileage=text"}));
}

TEST_F(AnySymbolTest, WithTwoSymbolsHasExactlyThese) {
  EXPECT_EQ(FilledFrom({2822, u"X//", {{2758, u"X"}, {2762, u"//"}}}),
            (Texts{"GapInRoutingIncludedInMileage=//", "StopOverNotAllowed=X"}));
}

TEST_F(AnySymbolTest, KeepsItsOwnTextsNowhereAndDoesNotReadThem) {
  EXPECT_EQ(FilledFrom(Tree{2822, u"X//"}.WithError(u"e")), Texts());
  EXPECT_EQ(toolkit_->calls, (Texts{"Children 2822", "Next 2822"}));
}

TEST_F(AnySymbolTest, IgnoresSymbolsOneLevelTooLow) {
  EXPECT_EQ(FilledFrom({2822, u"", {{2822, u"", {{2758, u"X"}}}}}), Texts());
}

TEST_F(AnySymbolTest, KeepsTheLastOfEachSymbol) {
  EXPECT_EQ(FilledFrom({2822, u"", {{2756, u"a"}, {2756, u"b"}}}), Texts{"OtherSymbol=b"});
}

const Tree kSymbol{2822, u"X//", {{2758, u"X"}, {2763, u"?"}, {2761, u"//"}}};

const Story kSymbolStory =
    Tell({Writes(u"Beginning of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData"),
          Asks(1, "Children 2822, Next 2822, TypeId 2758, Text 2758 => StopOverNotAllowed=X, Next 2822, TypeId 2763"),
          Asks(1, "Next 2822, TypeId 2761, Text 2761 => GapInRoutinNotInMileage=//, Next 2822"),
          Writes(u"End of FillWithData (in AnySymbol) Function", u"AnySymbol.FillWithData")});

TEST_F(AnySymbolTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kSymbol, kSymbolStory); }

TEST_F(AnySymbolTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kSymbol, kSymbolStory); }

}  // namespace
}  // namespace qorltst
