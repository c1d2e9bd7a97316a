// A passenger name line. See src/elements/NameElement.h.
#include <gtest/gtest.h>

#include "elements/NameElement.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using NameElementTest = testing::ElementTest<NameElement>;

/// A name line with every field once.
Tree WholeLine() {
  return Tree{565,
              u"1.1DOE/J(ADT)",
              {{2697, u"1"},
               {466, u"DOE"},
               {460, u"J"},
               {490, u"EXST"},
               {491, u"CBBG"},
               {564, u"info", {{614, u"type", {{494, u"ADT"}}}, {615, u"identity", {{493, u"ID4711"}}}}}}}
      .WithError(u"col 5");
}

Tree PassengerTypes(std::vector<Tree> types) { return {565, u"", {{564, u"", {{614, u"", std::move(types)}}}}}; }

TEST_F(NameElementTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"ErrorText=col 5", "ElementNumber=1", "Text=1.1DOE/J(ADT)", "LastName=DOE", "Initial=J",
                   "PassengerType=ADT", "ExtraSeat=EXST", "CabinBaggage=CBBG", "IdNumber=ID4711"}));
}

TEST_F(NameElementTest, ANameWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{565, u"1.1DOE/J"}.WithError(u"e")), (Texts{"ErrorText=e", "Text=1.1DOE/J"}));
}

TEST_F(NameElementTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}), (Texts{"460 Initial=text", "466 LastName=text", "490 ExtraSeat=text",
                                    "491 CabinBaggage=text", "2697 ElementNumber=text"}));
}

TEST_F(NameElementTest, NothingDirectlyInThePassengerInformationIsStored) { EXPECT_EQ(StoredBelow({564}), Texts()); }

TEST_F(NameElementTest, OnlyPassengerTypesAreStoredOfThePassengerTypeGroup) {
  EXPECT_EQ(StoredBelow({564, 614}), Texts{"494 PassengerType=text"});
}

TEST_F(NameElementTest, OnlyTheIdentityNumberIsStoredOfTheIdentityGroup) {
  EXPECT_EQ(StoredBelow({564, 615}), Texts{"493 IdNumber=text"});
}

TEST_F(NameElementTest, PassengerTypesOfOneGroupAreJoinedWithoutASeparator) {
  EXPECT_EQ(FilledFrom(PassengerTypes({{494, u"A"}, {494, u"B"}})), Texts{"PassengerType=AB"});
}

TEST_F(NameElementTest, PassengerTypesOfSeveralGroupsAreJoinedInTheirOrder) {
  EXPECT_EQ(FilledFrom({565,
                        u"",
                        {{564, u"", {{614, u"", {{494, u"A"}}}, {615, u""}, {614, u"", {{494, u"B"}, {7, u"-"}}}}},
                         {564, u"", {{614, u"", {{494, u"C"}}}}}}}),
            Texts{"PassengerType=ABC"});
}

TEST_F(NameElementTest, ASecondFillAppendsPassengerTypesAndOverwritesTheRest) {
  Fill(WholeLine());
  EXPECT_EQ(
      FilledFrom({565, u"2", {{466, u"ROE"}, {564, u"", {{614, u"", {{494, u"CHD"}}}, {615, u"", {{493, u"ID2"}}}}}}}),
      (Texts{"ElementNumber=1", "Text=2", "LastName=ROE", "Initial=J", "PassengerType=ADTCHD", "ExtraSeat=EXST",
             "CabinBaggage=CBBG", "IdNumber=ID2"}));
}

TEST_F(NameElementTest, APassengerTypeOutsideItsGroupIsIgnored) {
  EXPECT_EQ(
      FilledFrom({565,
                  u"",
                  {{494, u"A"},
                   {614, u"", {{494, u"B"}}},
                   {564, u"", {{494, u"C"}, {615, u"", {{494, u"D"}}}, {564, u"", {{614, u"", {{494, u"E"}}}}}}}}}),
      Texts());
}

TEST_F(NameElementTest, AnIdentityNumberOutsideItsGroupIsIgnored) {
  EXPECT_EQ(
      FilledFrom(
          {565, u"", {{493, u"1"}, {615, u"", {{493, u"2"}}}, {564, u"", {{493, u"3"}, {614, u"", {{493, u"4"}}}}}}}),
      Texts());
}

TEST_F(NameElementTest, NamesInsideThePassengerInformationAreIgnored) {
  EXPECT_EQ(FilledFrom({565, u"", {{564, u"", {{466, u"DOE"}, {614, u"", {{460, u"J"}}}}}}}), Texts());
}

TEST_F(NameElementTest, TheLastIdentityNumberWins) {
  EXPECT_EQ(
      FilledFrom(
          {565, u"", {{564, u"", {{615, u"", {{493, u"1"}, {493, u"2"}}}, {615, u"", {{493, u"3"}}}, {615, u""}}}}}),
      Texts{"IdNumber=3"});
}

TEST_F(NameElementTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({565, u"", {{466, u"DOE"}, {490, u"X"}, {466, u"ROE"}, {490, u""}}}), Texts{"LastName=ROE"});
}

TEST_F(NameElementTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"NameElement"));
}

TEST_F(NameElementTest, EachNodeIsReadOnceAndOnlyWhatIsStored) {
  Fill({565, u"", {{7, u"?", {{460, u"x"}}}, {466, u"DOE"}, {564, u"", {{8, u"?"}, {614, u"", {{9}, {494, u"A"}}}}}}});
  EXPECT_EQ(toolkit_->calls,
            (Calls{"Text 565",   "ErrorText 565", "Children 565", "Next 565",     "TypeId 7",     "Next 565",
                   "TypeId 466", "Text 466",      "Next 565",     "TypeId 564",   "Children 564", "Next 564",
                   "TypeId 8",   "Next 564",      "TypeId 614",   "Children 614", "Next 614",     "TypeId 9",
                   "Next 614",   "TypeId 494",    "Text 494",     "Next 614",     "Next 564",     "Next 565"}));
}

TEST_F(NameElementTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(NameElementTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
