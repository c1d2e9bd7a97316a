// A tax of the fare lines. See src/elements/TaxElement.h.
#include <gtest/gtest.h>

#include "elements/TaxElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using TaxElementTest = testing::ElementTest<TaxElement>;

/// A tax with every field once.
Tree WholeTax() {
  return Tree{2854,
              u"X EUR 12.30YQ AC",
              {{2719, u"X"}, {2856, u"group", {{147, u"EUR"}, {2720, u"12.30"}, {2721, u"YQ"}, {2722, u"AC"}}}}}
      .WithError(u"col 8");
}

TEST_F(TaxElementTest, EveryFieldOfTheTaxIsStored) {
  EXPECT_EQ(FilledFrom(WholeTax()), (Texts{"Text=X EUR 12.30YQ AC", "TaxId=X", "CurrencyCode=EUR", "Amount=12.30",
                                           "ISOType=YQ", "NatureType=AC", "ErrorText=col 8"}));
}

TEST_F(TaxElementTest, ATaxWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2854, u"X"}.WithError(u"e")), (Texts{"Text=X", "ErrorText=e"}));
}

TEST_F(TaxElementTest, OnlyTheIdentifierIsStoredDirectly) { EXPECT_EQ(StoredBelow({}), Texts{"2719 TaxId=text"}); }

TEST_F(TaxElementTest, ExactlyTheseFieldsOfTheAmountGroupAreStored) {
  EXPECT_EQ(StoredBelow({2856}),
            (Texts{"147 CurrencyCode=text", "2720 Amount=text", "2721 ISOType=text", "2722 NatureType=text"}));
}

TEST_F(TaxElementTest, ACurrencyDirectlyUnderTheTaxIsIgnored) {
  EXPECT_EQ(FilledFrom({2854, u"", {{147, u"EUR"}, {2720, u"1"}, {2721, u"YQ"}, {2722, u"AC"}}}), Texts());
}

TEST_F(TaxElementTest, AnIdentifierInsideTheAmountGroupIsIgnored) {
  EXPECT_EQ(FilledFrom({2854, u"", {{2856, u"", {{2719, u"X"}}}}}), Texts());
}

TEST_F(TaxElementTest, AnAmountGroupInsideAnotherNodeIsIgnored) {
  EXPECT_EQ(
      FilledFrom(
          {2854, u"", {{4711, u"", {{2856, u"", {{147, u"EUR"}}}}}, {2856, u"", {{2856, u"", {{147, u"EUR"}}}}}}}),
      Texts());
}

TEST_F(TaxElementTest, OfSeveralAmountGroupsTheLastOneWinsForTheFieldsItCarries) {
  EXPECT_EQ(FilledFrom({2854,
                        u"",
                        {{2856, u"", {{147, u"EUR"}, {2720, u"1.00"}, {2721, u"YQ"}}},
                         {2856, u"", {{147, u"USD"}, {2720, u"2.00"}}}}}),
            (Texts{"CurrencyCode=USD", "Amount=2.00", "ISOType=YQ"}));
}

TEST_F(TaxElementTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({2854, u"", {{2719, u"X"}, {2719, u"O"}, {2856, u"", {{2720, u"1"}, {2720, u"2"}}}}}),
            (Texts{"TaxId=O", "Amount=2"}));
}

TEST_F(TaxElementTest, TheAmountStaysText) {
  EXPECT_EQ(FilledFrom({2854, u"", {{2856, u"", {{2720, u" 0012.30A"}}}}}), Texts{"Amount= 0012.30A"});
}

TEST_F(TaxElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeTax());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"TaxElement"));
}

TEST_F(TaxElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill({2854, u"", {{147, u"EUR"}, {2856, u"g", {{2719, u"X"}, {2720, u"1"}}}, {2719, u"X"}}});
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 2854", "ErrorText 2854", "Children 2854", "Next 2854", "TypeId 147", "Next 2854",
                   "TypeId 2856", "Children 2856", "Next 2856", "TypeId 2719", "Next 2856", "TypeId 2720", "Text 2720",
                   "Next 2856", "Next 2854", "TypeId 2719", "Text 2719", "Next 2854"}));
}

TEST_F(TaxElementTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeTax()); }

TEST_F(TaxElementTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeTax()); }

}  // namespace
}  // namespace qorltst
