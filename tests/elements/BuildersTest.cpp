// What the parser does with each kind of top-level node. When it hands over what it built is in HandOverTest.cpp.
// See src/frame/TstBuilders.cpp.
#include <gtest/gtest.h>

#include "tests/support/ParserFixture.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Concat;
using testing::Entry;
using testing::TraceEntry;
using testing::Tree;
using Texts = std::vector<std::string>;

/// A line that makes elements of a collection.
struct CollectionLine {
  std::string name;
  Tree node;
  std::u16string_view property;
  std::u16string_view className;
  /// What each element holds, in order.
  std::vector<Texts> elements;
  std::vector<Entry> log;

  friend void PrintTo(const CollectionLine& line, std::ostream* out) { *out << line.name; }
};

/// The traces of a builder around those of one element, or of several.
std::vector<Entry> Built(std::u16string_view builder, std::u16string_view className, int elements = 1) {
  std::vector<Entry> fills;
  for (int i = 0; i < elements; ++i) {
    fills = Concat({fills, Around(u"FillWithData", className)});
  }
  return Around(builder, u"TstParser", fills);
}

std::vector<CollectionLine> CollectionLines() {
  const Tree taxes{2817, u"taxes", {{2854, u"T1", {{2719, u"X"}}}, {1, u"T2", {{2719, u"O"}}}}};
  const Tree names{563, u"names", {{565, u"N1", {{466, u"DOE"}}}, {1, u"N2", {{466, u"ROE"}}}}};
  return {
      {"Air",
       {230, u"A", {{3, u"QX"}}},
       u"AirSegments",
       u"AirSegment",
       {{"Text=A", "AirLine=QX"}},
       Built(u"BuildAirLine", u"AirSegment")},
      {"Arnk",
       {239, u"A", {{2713, u"LON"}}},
       u"ARNKSegments",
       u"ARNKSegment",
       {{"Text=A", "BoardPoint=LON"}},
       Built(u"BuildARNKLine", u"ARNKSegment")},
      {"Names",
       {2845, u"A", {{7}, names}},
       u"NameElements",
       u"NameElement",
       {{"Text=N1", "LastName=DOE"}, {"Text=N2", "LastName=ROE"}},
       Built(u"BuildNameCollection", u"NameElement", 2)},
      {"NamesFurtherDown",
       {2845, u"A", {{7, u"", {names}}}},
       u"NameElements",
       u"NameElement",
       {{"Text=N1", "LastName=DOE"}, {"Text=N2", "LastName=ROE"}},
       Built(u"BuildNameCollection", u"NameElement", 2)},
      {"NamesWithoutContainer",
       {2845, u"A", {{565, u"N1", {{466, u"DOE"}}}}},
       u"NameElements",
       u"NameElement",
       {},
       Built(u"BuildNameCollection", u"NameElement", 0)},
      {"Open",
       {2847, u"A", {{3, u"QX"}}},
       u"AirOpenSegments",
       u"AirOpenSegment",
       {{"Text=A", "AirLine=QX"}},
       Around(u"FillWithData", u"AirOpenSegment")},
      {"Taxes",
       {2853, u"A", {{7}, taxes}},
       u"TaxElements",
       u"TaxElement",
       {{"Text=T1", "TaxId=X"}, {"Text=T2", "TaxId=O"}},
       Built(u"BuildTaxCollection", u"TaxElement", 2)},
      {"AdditionalTaxes",
       {3338, u"A", {taxes}},
       u"TaxElements",
       u"TaxElement",
       {{"Text=T1", "TaxId=X"}, {"Text=T2", "TaxId=O"}},
       Built(u"BuildTaxCollection", u"TaxElement", 2)},
      {"TaxesWithoutContainer",
       {2853, u"A", {{2854, u"T1", {{2719, u"X"}}}}},
       u"TaxElements",
       u"TaxElement",
       {},
       Built(u"BuildTaxCollection", u"TaxElement", 0)},
      {"Commission",
       {2861, u"A", {{91, u"1"}}},
       u"FMElements",
       u"FMElement",
       {{"ElementNumber=1", "Text=A"}},
       Built(u"BuildCommissionLine", u"FMElement")},
      {"OriginalIssue",
       {2862, u"A", {{91, u"1"}}},
       u"FOElements",
       u"FOElement",
       {{"ElementNumber=1", "Text=A"}},
       Built(u"BuildOriginalIssue", u"FOElement")},
      {"FormOfPayment",
       {2863, u"A", {{91, u"1"}}},
       u"FPElements",
       u"FPElement",
       {{"ElementNumber=1", "Text=A"}},
       Built(u"BuildFormOfPaymentLine", u"FPElement")},
      {"TourCode",
       {2867, u"A", {{91, u"1"}}},
       u"FTElements",
       u"FTElement",
       {{"ElementNumber=1", "Text=A"}},
       Built(u"BuildFTLine", u"FTElement")},
      {"ValidatingCarrier",
       {2868, u"A", {{91, u"1"}}},
       u"FVElements",
       u"FVElement",
       {{"ElementNumber=1", "Text=A"}},
       Built(u"BuildFVLine", u"FVElement")},
      {"Fares",
       {2932, u"A", {{2849, u"F1"}, {7, u"?", {{2849, u"F"}}}, {2849, u"F2"}}},
       u"PublishedAndNetFares",
       u"PublishedAndNetFares",
       {{"Text=F1"}, {"Text=F2"}},
       Concat({Built(u"BuildFarePubCollection", u"PublishedAndNetFares"),
               Built(u"BuildFarePubCollection", u"PublishedAndNetFares")})},
      {"FaresWithoutFare", {2932, u"A", {{2850, u"F1"}}}, u"PublishedAndNetFares", u"PublishedAndNetFares", {}, {}},
  };
}

class CollectionLineTest : public testing::ParserFixture, public ::testing::WithParamInterface<CollectionLine> {};

TEST_P(CollectionLineTest, BuildsItsElementsUnderItsTraces) {
  const CollectionLine& line = GetParam();
  EXPECT_EQ(Parse({line.node}), 0);
  ASSERT_EQ(testing::CountOf(*tst_, line.property), static_cast<std::int32_t>(line.elements.size()));
  for (std::size_t i = 0; i < line.elements.size(); ++i) {
    Object& element = testing::ItemOf(*tst_, line.property, static_cast<std::int32_t>(i) + 1);
    EXPECT_EQ(element.Description().name, line.className);
    EXPECT_EQ(testing::FilledTexts(element), line.elements[i]);
  }
  EXPECT_EQ(toolkit_->log, LogOf(line.log));
}

TEST_P(CollectionLineTest, TouchesNothingElse) {
  const CollectionLine& line = GetParam();
  Parse({line.node});
  EXPECT_EQ(testing::FilledTexts(*tst_), Texts{"Text=the text"});
  for (const Member& row : TST::kDescription.members) {
    if (std::holds_alternative<ObjectField>(row.access) && row.name != line.property) {
      auto* const collection = dynamic_cast<Collection*>(testing::ObjectOf(*tst_, row.name));
      EXPECT_TRUE(collection == nullptr || collection->Count() == 0) << testing::Readable(row.name);
    }
  }
}

TEST_P(CollectionLineTest, AccumulatesOverSeveralLinesInDisplayOrder) {
  const CollectionLine& line = GetParam();
  Tree second = line.node;
  Parse({line.node, Tree{4711, u"between"}, second});
  const auto once = static_cast<std::int32_t>(line.elements.size());
  ASSERT_EQ(testing::CountOf(*tst_, line.property), 2 * once);
  for (std::int32_t i = 0; i < 2 * once; ++i) {
    EXPECT_EQ(testing::FilledTexts(testing::ItemOf(*tst_, line.property, i + 1)),
              line.elements[static_cast<std::size_t>(i % once)]);
  }
  EXPECT_EQ(toolkit_->log, LogOf(Concat({line.log, line.log})));
}

INSTANTIATE_TEST_SUITE_P(EveryKind, CollectionLineTest, ::testing::ValuesIn(CollectionLines()),
                         [](const auto& line) { return line.param.name; });

using BuildersTest = testing::ParserFixture;

TEST_F(BuildersTest, ExactlyTheseTypesAreHandledAndAllOthersLeftUnread) {
  Parse({{4711, u"x"}});
  ASSERT_EQ(toolkit_->calls.back(), "Next 0");
  const std::size_t callsForASkippedNode = toolkit_->calls.size();
  std::vector<std::int32_t> handled;
  for (std::int32_t type = -2; type <= 4000; ++type) {
    toolkit_->calls.clear();
    Parse({{type, u"x"}});
    if (toolkit_->calls.size() != callsForASkippedNode) {
      handled.push_back(type);
    }
  }
  EXPECT_EQ(handled, (std::vector<std::int32_t>{230,  239,  602,  2835, 2845, 2847, 2848, 2850, 2852, 2853, 2857,
                                                2860, 2861, 2862, 2863, 2867, 2868, 2869, 2932, 3336, 3337, 3338}));
}

TEST_F(BuildersTest, TheHeaderTakesItsTextsAndEachChild) {
  Parse({{602, u"SECOND", {{464, u"LONQX0100"}, {4711, u"?"}}}});
  EXPECT_EQ(testing::FilledTexts(*testing::ObjectOf(*tst_, u"TSTHeader")),
            (Texts{"OfficeId=LONQX0100", "Text=SECOND"}));
  const auto child = Around(u"FillWithData", u"TstHeader");
  EXPECT_EQ(toolkit_->log, LogOf(Around(u"BuildHeaderLine", u"TstParser",
                                        Concat({Around(u"FillTextWithData", u"TstHeader"), child, child}))));
}

TEST_F(BuildersTest, TheLastLineTakesEachChild) {
  Parse({{2848, u"ROM", {{2714, u"ROM"}, Tree{4711, u"?"}.WithError(u"e")}}});
  EXPECT_EQ(testing::FilledTexts(*testing::ObjectOf(*tst_, u"ItineraryLastLine")),
            (Texts{"ErrorText=e", "DestinationCode=ROM"}));
  const auto child = Around(u"FillWithData", u"ItineraryLastLine");
  EXPECT_EQ(toolkit_->log, LogOf(Around(u"BuildItineraryLastLine", u"TstParser", Concat({child, child}))));
}

TEST_F(BuildersTest, TheEndorsementTakesItsTextsAndEachChild) {
  Parse({{2860, u"FE", {{91, u"7"}, {719, u"", {{2731, u"NONREF"}}}}}});
  EXPECT_EQ(testing::FilledTexts(*testing::ObjectOf(*tst_, u"FEElement")),
            (Texts{"ElementNumber=7", "Text=FE", "FreeFlowText=NONREF"}));
  const auto child = Around(u"FillWithData", u"FEElement");
  EXPECT_EQ(toolkit_->log, LogOf(Around(u"BuildFEElement", u"TstParser",
                                        Concat({Around(u"FillUpLevelData", u"FEElement"), child, child}))));
}

TEST_F(BuildersTest, TheFareCalculationIsBuiltUnderTextsOfItsOwn) {
  Parse({Tree{2869, u"LON QX ROM"}.WithError(u"e")});
  EXPECT_EQ(testing::FilledTexts(*testing::ObjectOf(*tst_, u"FareCalculation")),
            (Texts{"Text=LON QX ROM", "ErrorText=e"}));
  EXPECT_EQ(
      toolkit_->log,
      LogOf(
          {TraceEntry(u"Beginning of BuildFareCalculation (in TST parser) Function", u"TSTParser.BuildFareCalculation"),
           TraceEntry(u"Beginning of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"),
           TraceEntry(u"End of FillWithData (in FareCalculation) Function", u"FareCalculation.FillWithData"),
           TraceEntry(u"End of BuildFareCalculation (in TSTParser) Function", u"TSTParser.BuildFareCalculation")}));
}

TEST_F(BuildersTest, BothKindsOfTaxLinesFeedOneCollectionInDisplayOrder) {
  const auto taxes = [](std::int32_t type, const std::u16string& id) {
    return Tree{type, u"", {{2817, u"", {{2854, u"", {{2719, id}}}}}}};
  };
  Parse({taxes(3338, u"A"), taxes(2853, u"B"), taxes(3338, u"C")});
  ASSERT_EQ(testing::CountOf(*tst_, u"TaxElements"), 3);
  EXPECT_EQ(testing::TextOf(testing::ItemOf(*tst_, u"TaxElements", 1), u"TaxId"), u"A");
  EXPECT_EQ(testing::TextOf(testing::ItemOf(*tst_, u"TaxElements", 2), u"TaxId"), u"B");
  EXPECT_EQ(testing::TextOf(testing::ItemOf(*tst_, u"TaxElements", 3), u"TaxId"), u"C");
}

TEST_F(BuildersTest, OnlyTheFirstContainerOfALineIsRead) {
  const Tree container{563, u"", {{565, u"", {{466, u"DOE"}}}}};
  Parse({{2845, u"", {container, container}}});
  EXPECT_EQ(testing::CountOf(*tst_, u"NameElements"), 1);
}

TEST_F(BuildersTest, AContainerAtTheTopLevelIsNotALine) {
  Parse({{563, u"", {{565, u"", {{466, u"DOE"}}}}}, {2817, u"", {{2854, u"", {{2719, u"X"}}}}}, {2849, u"F"}});
  EXPECT_EQ(testing::CountOf(*tst_, u"NameElements"), 0);
  EXPECT_EQ(testing::CountOf(*tst_, u"TaxElements"), 0);
  EXPECT_EQ(testing::CountOf(*tst_, u"PublishedAndNetFares"), 0);
  EXPECT_EQ(toolkit_->log, LogOf({}));
}

TEST_F(BuildersTest, ABlockOfFaresReadsNothingOfOtherChildren) {
  Parse({{2932, u"B", {{2850, u"?", {{2849, u"F"}}}}}});
  EXPECT_EQ(std::vector<std::string>(toolkit_->calls.end() - 7, toolkit_->calls.end()),
            (std::vector<std::string>{"HasWarning 2932", "TypeId 2932", "Children 2932", "Next 2932", "TypeId 2850",
                                      "Next 2932", "Next 0"}));
}

}  // namespace
}  // namespace qorltst
