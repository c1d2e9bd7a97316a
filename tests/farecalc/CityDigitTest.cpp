// Tests of the amount of a facility charge at one airport.
#include <gtest/gtest.h>

#include "farecalc/CityDigit.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::Asks;
using testing::Story;
using testing::Tell;
using testing::Tree;
using testing::Writes;
using Texts = std::vector<std::string>;

class CityDigitTest : public testing::RecordTest<CityDigit> {};

TEST_F(CityDigitTest, WithoutChildrenHasItsTextsOnly) {
  EXPECT_EQ(FilledFrom(Tree{2889, u"JFK4.5"}.WithError(u"col 9")), (Texts{"Text=JFK4.5", "ErrorText=col 9"}));
}

TEST_F(CityDigitTest, TakesTheDigitsFromEitherTypeAndTheCity) {
  EXPECT_EQ(StoredBelow(2889, {}), (Texts{"2777 CityDigit=text", "2778 CityDigit=text", "2789 CityCode=text"}));
}

TEST_F(CityDigitTest, KeepsTheLaterOfBothDigitTypes) {
  EXPECT_EQ(FilledFrom({2889, u"", {{2777, u"4.5"}, {2778, u"3.0"}}}), Texts{"CityDigit=3.0"});
  EXPECT_EQ(FilledFrom({2889, u"", {{2778, u"3.0"}, {2777, u"4.5"}}}), Texts{"CityDigit=4.5"});
}

TEST_F(CityDigitTest, KeepsTheLastCity) {
  EXPECT_EQ(FilledFrom({2889, u"", {{2789, u"JFK"}, {2789, u"LGA"}}}), Texts{"CityCode=LGA"});
}

const Tree kDigit = Tree{2892, u"JFK4.5", {{2789, u"JFK"}, {92, u"?"}, {2778, u"4.5"}}}.WithError(u"col 9");

const Story kDigitStory =
    Tell({Writes(u"Beginning of FillWithData (in CityDigit) Function", u"CityDigit.FillWithData"),
          Asks(1, "Text 2892 => Text=JFK4.5, ErrorText 2892 => ErrorText=col 9, Children 2892, Next 2892"),
          Asks(1, "TypeId 2789, Text 2789 => CityCode=JFK, Next 2892, TypeId 92, Next 2892"),
          Asks(1, "TypeId 2778, Text 2778 => CityDigit=4.5, Next 2892"),
          Writes(u"End of FillWithData (in CityDicgit) Function", u"CityDigit.FillWithData")});

TEST_F(CityDigitTest, IsFilledWithTheseCallsAndLines) { ExpectStory(kDigit, kDigitStory); }

TEST_F(CityDigitTest, StopsWhereACallFails) { ExpectStoryToStopAtEveryFailure(kDigit, kDigitStory); }

}  // namespace
}  // namespace qorltst
