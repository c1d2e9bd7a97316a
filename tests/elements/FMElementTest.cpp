// The commission line. See src/elements/FMElement.h.
#include <gtest/gtest.h>

#include <algorithm>

#include "elements/FMElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Outcome;
using testing::Texts;
using testing::Tree;

using FMElementTest = testing::ElementTest<FMElement>;

/// A commission line with these groups in its data.
Tree LineWith(std::vector<Tree> groups) { return {2861, u"", {{728, u"data", std::move(groups)}}}; }

/// A commission line with a current commission in percent, a cap and an old commission that is an amount.
Tree WholeLine() {
  return Tree{2861,
              u"FM 7A",
              {{91, u"4"},
               {728,
                u"data",
                {{729, u"current", {{730, u"M"}, {537, u"7"}, {539, u"19"}}},
                 {731, u"cap", {{852, u"100.00"}}},
                 {732, u"old", {{537, u"25.00"}, {538, u"A"}, {539, u"16"}}}}}}}
      .WithError(u"col 6");
}

bool IsSet(const Outcome& outcome, const std::string& text) {
  return std::ranges::find(outcome.filled, text) != outcome.filled.end();
}

TEST_F(FMElementTest, EveryPartOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"CommisionId=M", "ElementNumber=4", "Text=FM 7A", "CommissionPercent=7", "CommissionCAP=100.00",
                   "OldCommissionFlatAmount=25.00", "OldCommissionVAT=16", "CommissionVAT=19", "ErrorText=col 6"}));
}

TEST_F(FMElementTest, ALineWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2861, u"FM"}.WithError(u"e")), (Texts{"Text=FM", "ErrorText=e"}));
}

TEST_F(FMElementTest, AValueWithoutAMarkerIsAPercentage) {
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{537, u"10"}}}})), Texts{"CommissionPercent=10"});
}

TEST_F(FMElementTest, AValueWithAMarkerIsAnAmount) {
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{537, u"25.00"}, {538, u"A"}}}})), Texts{"CommissionFlatAmount=25.00"});
}

TEST_F(FMElementTest, AnOldValueWithoutAMarkerIsAnOldPercentage) {
  EXPECT_EQ(FilledFrom(LineWith({{732, u"", {{537, u"10"}}}})), Texts{"OldCommissionPercent=10"});
}

TEST_F(FMElementTest, AnOldValueWithAMarkerIsAnOldAmount) {
  EXPECT_EQ(FilledFrom(LineWith({{732, u"", {{537, u"25.00"}, {538, u"A"}}}})), Texts{"OldCommissionFlatAmount=25.00"});
}

TEST_F(FMElementTest, TheMarkerMayStandBeforeTheValueAndSayAnything) {
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{538, u"%"}, {537, u"5"}}}, {732, u"", {{538, u" "}, {537, u"6"}}}})),
            (Texts{"CommissionFlatAmount=5", "OldCommissionFlatAmount=6"}));
}

TEST_F(FMElementTest, AnEmptyMarkerIsNone) {
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{538, u"A"}, {537, u"5"}, {538, u""}}}})), Texts{"CommissionPercent=5"});
}

TEST_F(FMElementTest, AGroupWithoutAValueStillWritesAnEmptyPercentage) {
  Fill(LineWith({{729, u"", {{537, u"7"}}}, {732, u"", {{537, u"8"}}}}));
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{539, u"19"}}}, {732, u""}})), Texts{"CommissionVAT=19"});
}

TEST_F(FMElementTest, AGroupWithAMarkerAloneWritesAnEmptyAmount) {
  Fill(LineWith({{729, u"", {{537, u"7"}, {538, u"A"}}}, {732, u"", {{537, u"8"}, {538, u"A"}}}}));
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{538, u"A"}}}, {732, u"", {{538, u"A"}}}})), Texts());
}

TEST_F(FMElementTest, ALineWithoutGroupsLeavesAnEarlierPercentageAlone) {
  Fill(LineWith({{729, u"", {{537, u"7"}}}}));
  EXPECT_EQ(FilledFrom(LineWith({{731, u""}})), Texts{"CommissionPercent=7"});
}

TEST_F(FMElementTest, AnIdentifierInsideTheOldCommissionIsNotRead) {
  Fill(LineWith({{729, u"", {{730, u"M"}}}, {732, u"", {{730, u"X"}}}}));
  EXPECT_EQ(testing::TextOf(*element_, u"CommisionId"), u"M");
  EXPECT_EQ(std::ranges::count(toolkit_->calls, "Text 730"), 1);
}

TEST_F(FMElementTest, EachCurrentGroupDecidesForItself) {
  EXPECT_EQ(FilledFrom(LineWith({{729, u"", {{537, u"25.00"}, {538, u"A"}}}, {729, u"", {{537, u"7"}}}})),
            (Texts{"CommissionFlatAmount=25.00", "CommissionPercent=7"}));
}

TEST_F(FMElementTest, ASecondGroupStartsWithoutTheValueOfTheFirst) {
  EXPECT_EQ(FilledFrom(LineWith(
                {{729, u"", {{537, u"7"}}}, {729, u"", {{538, u"A"}}}, {732, u"", {{537, u"8"}}}, {732, u""}})),
            Texts{"CommissionPercent=7"});
}

TEST_F(FMElementTest, OnlyTheElementNumberIsStoredDirectly) {
  EXPECT_EQ(StoredBelow({}), Texts{"91 ElementNumber=text"});
}

TEST_F(FMElementTest, NothingDirectlyInTheCommissionDataIsStored) { EXPECT_EQ(StoredBelow({728}), Texts()); }

TEST_F(FMElementTest, ExactlyTheseFieldsOfTheCurrentCommissionAreStored) {
  EXPECT_EQ(StoredBelow({728, 729}),
            (Texts{"537 CommissionPercent=text", "539 CommissionVAT=text", "730 CommisionId=text"}));
}

TEST_F(FMElementTest, OnlyTheCapIsStoredOfTheCapGroup) {
  EXPECT_EQ(StoredBelow({728, 731}), Texts{"852 CommissionCAP=text"});
}

TEST_F(FMElementTest, ExactlyTheseFieldsOfTheOldCommissionAreStored) {
  EXPECT_EQ(StoredBelow({728, 732}), (Texts{"537 OldCommissionPercent=text", "539 OldCommissionVAT=text"}));
}

TEST_F(FMElementTest, GroupsAtTheWrongLevelAreIgnored) {
  EXPECT_EQ(FilledFrom({2861,
                        u"",
                        {{729, u"", {{537, u"1"}}},
                         {731, u"", {{852, u"2"}}},
                         {728, u"", {{728, u"", {{729, u"", {{537, u"3"}}}}}, {91, u"4"}, {537, u"5"}}}}}),
            Texts());
}

TEST_F(FMElementTest, TheLastCapWins) {
  EXPECT_EQ(FilledFrom(LineWith({{731, u"", {{852, u"1"}, {852, u"2"}}}, {731, u"", {{852, u"3"}}}})),
            Texts{"CommissionCAP=3"});
}

TEST_F(FMElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"FMElement"));
}

TEST_F(FMElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill({2861, u"", {{91, u"4"}, {728, u"d", {{7, u"?"}, {732, u"o", {{730, u"X"}, {538, u"A"}}}}}}});
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 2861",  "ErrorText 2861", "Children 2861", "Next 2861",  "TypeId 91", "Text 91",
                   "Next 2861",  "TypeId 728",     "Children 728",  "Next 728",   "TypeId 7",  "Next 728",
                   "TypeId 732", "Children 732",   "Next 732",      "TypeId 730", "Next 732",  "TypeId 538",
                   "Text 538",   "Next 732",       "Next 728",      "Next 2861"}));
}

TEST_F(FMElementTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(FMElementTest, EveryFailureKeepsWhatWasSetAndWritesNoValueBeforeTheEndOfItsGroup) {
  const std::vector<Outcome> outcomes = FailAtEveryCall(WholeLine());
  const auto afterLast = [&outcomes](const std::string& call) {
    const auto last = std::ranges::find(outcomes.rbegin(), outcomes.rend(), call, &Outcome::failedCall);
    return static_cast<std::size_t>(outcomes.rend() - last);
  };
  const std::vector<std::pair<std::string, std::size_t>> setAfter{
      {"Text=FM 7A", afterLast("Text 2861")},         {"ErrorText=col 6", afterLast("ErrorText 2861")},
      {"ElementNumber=4", afterLast("Text 91")},      {"CommisionId=M", afterLast("Text 730")},
      {"CommissionPercent=7", afterLast("Next 729")}, {"CommissionCAP=100.00", afterLast("Text 852")},
      {"OldCommissionVAT=16", afterLast("Text 539")}, {"OldCommissionFlatAmount=25.00", afterLast("Next 732")}};
  for (std::size_t n = 0; n < outcomes.size(); ++n) {
    SCOPED_TRACE("before " + outcomes[n].failedCall);
    for (const auto& [text, call] : setAfter) {
      EXPECT_EQ(IsSet(outcomes[n], text), n >= call) << text;
    }
  }
}

}  // namespace
}  // namespace qorltst
