// Tests of what a fare calculation takes from its line. Its calls and lines are in FareCalculationStoryTest.cpp.
#include <gtest/gtest.h>

#include <array>

#include "farecalc/FareCalculation.h"
#include "tests/support/FareCalculationTests.h"

namespace qorltst {
namespace {

using testing::CountOf;
using testing::ObjectOf;
using testing::Tree;
using Texts = std::vector<std::string>;

constexpr std::array kCollections{u"Itineraries", u"ExtraSeats", u"HigherClassDifferentials",
                                  u"ItineraryCompositeElements", u"FareMinimums"};

class FareCalculationTest : public testing::RecordTest<FareCalculation> {
 protected:
  /// No object and no collection is absent.
  void ExpectAllPresent() {
    EXPECT_NE(ObjectOf(*record_, u"DepartureRoutingPoint"), nullptr);
    EXPECT_NE(ObjectOf(*record_, u"EndLine"), nullptr);
    for (const char16_t* const name : kCollections) {
      EXPECT_NE(ObjectOf(*record_, name), nullptr);
    }
  }
};

TEST_F(FareCalculationTest, IsEmptyUntilFilledAndNothingIsAbsent) {
  EXPECT_EQ(testing::Contents(*record_), Texts());
  ExpectAllPresent();
}

TEST_F(FareCalculationTest, WithoutChildrenHasItsTextsAndEmptyParts) {
  EXPECT_EQ(FilledFrom(Tree{2869, u"PAR QX ROM"}.WithError(u"e")), (Texts{"Text=PAR QX ROM", "ErrorText=e"}));
  ExpectAllPresent();
  for (const char16_t* const name : kCollections) {
    EXPECT_EQ(CountOf(*record_, name), 0);
  }
}

TEST_F(FareCalculationTest, TakesTheDepartureIdBeforeTheEndLine) {
  const auto next = Make<FareCalculation>(*toolkit_);
  EXPECT_EQ(testing::NumberOf(*next, u"ClassDebugID"), testing::NumberOf(*record_, u"ClassDebugID") + 3);
}

TEST_F(FareCalculationTest, TakesItsDeparturePointAndItsEndAndNothingElse) {
  EXPECT_EQ(StoredBelow(2869, {}), (Texts{"2870 DepartureRoutingPoint.Text=text", "2880 EndLine.Text=text"}));
}

TEST_F(FareCalculationTest, MakesItsItemsOfTheseTypesBelowTheItineraries) {
  EXPECT_EQ(
      StoredBelow(2869, {2821}),
      (Texts{"889 Itineraries(1)", "889 Itineraries(1).Text=text", "2875 FareMinimums(1)",
             "2875 FareMinimums(1).Text=text", "2877 HigherClassDifferentials(1)",
             "2877 HigherClassDifferentials(1).Text=text", "2878 ExtraSeats(1)", "2878 ExtraSeats(1).Text=text"}));
}

TEST_F(FareCalculationTest, MakesItsCompositeElementsThreeLevelsBelow) {
  EXPECT_EQ(StoredBelow(2869, {2821, 2820}), Texts());
  EXPECT_EQ(StoredBelow(2869, {2821, 2820, 2873}),
            (Texts{"2825 ItineraryCompositeElements(1)", "2825 ItineraryCompositeElements(1).Text=below"}));
}

TEST_F(FareCalculationTest, TakesTheAmountAloneFromAFareAmongTheItineraries) {
  EXPECT_EQ(StoredBelow(2869, {2821, 2898}), Texts{"2717 FareCommonAmount=text"});
}

TEST_F(FareCalculationTest, TakesTheWholeFareFromTheCommonFare) {
  EXPECT_EQ(StoredBelow(2869, {2821, 2876}), Texts());
  EXPECT_EQ(StoredBelow(2869, {2821, 2876, 2898}), (Texts{"2717 FareCommonAmount=text", "2899 FareCommonLessId=True"}));
  EXPECT_EQ(StoredBelow(2869, {2821, 2876, 2898, 2899}), Texts{"2771 FareCommonAmountToSub=text"});
  EXPECT_EQ(StoredBelow(2869, {2821, 2876, 2898, 2903}),
            (Texts{"2764 FareCommonStopOverChargeValue=text", "2767 FareCommonNumberStopAllowed=text"}));
}

TEST_F(FareCalculationTest, TakesTheCitiesOfTheCommonFareTwoLevelsBelow) {
  EXPECT_EQ(StoredBelow(2869, {2821, 2876, 2826}), Texts());
  EXPECT_EQ(StoredBelow(2869, {2821, 2876, 2826, 2896}), Texts{"92 FareCommonCityCode=text"});
}

TEST_F(FareCalculationTest, IgnoresGroupsAtTheWrongLevel) {
  EXPECT_EQ(FilledFrom({2869,
                        u"",
                        {{889, u"?"},
                         {2898, u"", {{2717, u"1"}}},
                         {2876, u"", {{2898, u"", {{2717, u"2"}}}}},
                         {2821,
                          u"",
                          {{2821, u"", {{889, u"?"}}},
                           {2870, u"?"},
                           {2880, u"?"},
                           {2873, u"", {{2825, u"", {{1, u"?"}}}}},
                           {2826, u"", {{2896, u"", {{92, u"PAR"}}}}},
                           {2876, u"", {{2896, u"", {{92, u"PAR"}}}, {2899, u""}, {92, u"PAR"}}}}}}}),
            Texts());
}

TEST_F(FareCalculationTest, ReplacesItsDeparturePointByTheSecond) {
  EXPECT_EQ(FilledFrom({2869, u"", {{2870, u"PAR", {{2752, u"PAR"}}}, {2870, u"LON"}}}),
            Texts{"DepartureRoutingPoint.Text=LON"});
}

TEST_F(FareCalculationTest, ReplacesItsEndByTheSecond) {
  EXPECT_EQ(FilledFrom({2869, u"", {{2880, u"a", {{2774, u"END"}, {2829, u"", {{2883, u"XT"}}}}}, {2880, u"b"}}}),
            Texts{"EndLine.Text=b"});
}

TEST_F(FareCalculationTest, KeepsTheOrderOfItsItems) {
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {{889, u"a"}, {2875, u"m"}, {889, u"b"}, {2875, u"n"}}}}}),
            (Texts{"Itineraries(1)", "Itineraries(1).Text=a", "Itineraries(2)", "Itineraries(2).Text=b",
                   "FareMinimums(1)", "FareMinimums(1).Text=m", "FareMinimums(2)", "FareMinimums(2).Text=n"}));
}

TEST_F(FareCalculationTest, NeverMergesTheItemsOfTwoItineraryNodes) {
  const Tree first{2821,
                   u"",
                   {{889, u"a"},
                    {889, u"b"},
                    {2875, u"c"},
                    {2877, u"d"},
                    {2878, u"e"},
                    {2820, u"", {{2873, u"", {{2825, u"", {{1, u"f"}}}}}}}}};
  EXPECT_EQ(
      FilledFrom({2869, u"", {first, {2821, u"", {{889, u"g"}, {2878, u"h"}, {2820, u""}}}, {2821, u""}}}),
      (Texts{"Itineraries(1)", "Itineraries(1).Text=g", "ExtraSeats(1)", "ExtraSeats(1).Text=h", "FareMinimums(1)",
             "FareMinimums(1).Text=c", "ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=f",
             "HigherClassDifferentials(1)", "HigherClassDifferentials(1).Text=d"}));
}

TEST_F(FareCalculationTest, MakesOneCompositeElementOfEachChildOfAnyType) {
  EXPECT_EQ(
      FilledFrom(
          {2869,
           u"",
           {{2821,
             u"",
             {{2820, u"", {{2873, u"", {{2825, u"", {{2763, u"a"}, {1, u"b"}, {2825, u"c"}, {7777, u"d"}}}}}}}}}}}),
      (Texts{"ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=a", "ItineraryCompositeElements(2)",
             "ItineraryCompositeElements(2).Text=b", "ItineraryCompositeElements(3)",
             "ItineraryCompositeElements(3).Text=c", "ItineraryCompositeElements(4)",
             "ItineraryCompositeElements(4).Text=d"}));
}

TEST_F(FareCalculationTest, GathersItsCompositeElementsOverAllGroups) {
  EXPECT_EQ(FilledFrom({2869,
                        u"",
                        {{2821,
                          u"",
                          {{2820, u"", {{2873, u"", {{2825, u"", {{1, u"a"}}}, {2825, u"", {{1, u"b"}}}}}}},
                           {2820, u"", {{2873, u"", {{2825, u"", {{1, u"c"}}}}}}}}}}}),
            (Texts{"ItineraryCompositeElements(1)", "ItineraryCompositeElements(1).Text=a",
                   "ItineraryCompositeElements(2)", "ItineraryCompositeElements(2).Text=b",
                   "ItineraryCompositeElements(3)", "ItineraryCompositeElements(3).Text=c"}));
}

TEST_F(FareCalculationTest, JoinsTheCitiesOfTheCommonFare) {
  EXPECT_EQ(
      FilledFrom(
          {2869,
           u"",
           {{2821, u"", {{2876, u"", {{2826, u"", {{2896, u"", {{92, u"PAR"}, {92, u"LON"}, {92, u"PAR"}}}}}}}}}}}),
      Texts{"FareCommonCityCode=PARLONPAR"});
}

TEST_F(FareCalculationTest, JoinsTheCitiesOfTheCommonFareOverAllGroups) {
  const Tree groups{2826, u"", {{2896, u"", {{92, u"PAR"}}}, {2896, u"", {{93, u"?"}, {92, u"LON"}}}}};
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {{2876, u"", {groups, groups}}, {2876, u"", {groups}}}}}}),
            Texts{"FareCommonCityCode=PARLONPARLONPARLON"});
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {{2876, u"", {{2826, u"", {{2896, u"", {{92, u"ROM"}}}}}}}}}}}),
            Texts{"FareCommonCityCode=PARLONPARLONPARLONROM"});
}

TEST_F(FareCalculationTest, IsLessAlsoWithoutAnAmountToSubtract) {
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {{2876, u"", {{2898, u"", {{2899, u"LESS"}}}}}}}}}),
            Texts{"FareCommonLessId=True"});
}

TEST_F(FareCalculationTest, KeepsTheLastAmountWhicheverFareItIsOf) {
  const Tree direct{2898, u"", {{2717, u"1"}, {2899, u"", {{2771, u"?"}}}, {2903, u"", {{2764, u"?"}}}}};
  const Tree common{2876, u"", {{2898, u"", {{2717, u"2"}}}}};
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {direct, common}}}}), Texts{"FareCommonAmount=2"});
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {common, direct}}}}), Texts{"FareCommonAmount=1"});
}

TEST_F(FareCalculationTest, HasNoCommonIdAndNoCurrencyWhateverItsNodeHolds) {
  const std::vector<Tree> ids{{147, u"EUR"}, {1201, u"F"}, {2716, u"NUC"}};
  EXPECT_EQ(FilledFrom({2869, u"", {{2821, u"", {{2898, u"", ids}, {2876, u"", {{2898, u"", ids}, {147, u"EUR"}}}}}}}),
            Texts());
}

}  // namespace
}  // namespace qorltst
