// When the TST gets what the parser built: single objects at once, collections at the end of a whole walk.
// See src/frame/Harvest.h and src/frame/TstBuilders.cpp.
#include <gtest/gtest.h>

#include "tests/support/ParserFixture.h"

namespace qorltst {
namespace {

using testing::CountOf;
using testing::FilledTexts;
using testing::ItemOf;
using testing::ObjectOf;
using testing::TextOf;
using testing::Tree;
using Texts = std::vector<std::string>;

using HandOverTest = testing::ParserFixture;

constexpr std::int32_t kUnexpected = -2147211505;  // 0x8004270F

/// One line of each of the eleven kinds, with the collection that it feeds.
const std::vector<std::pair<std::u16string_view, Tree>>& OneOfEachKind() {
  static const std::vector<std::pair<std::u16string_view, Tree>> kLines{
      {u"AirSegments", {230, u"line"}},
      {u"NameElements", {2845, u"", {{563, u"", {{565, u"line"}}}}}},
      {u"ARNKSegments", {239, u"line"}},
      {u"AirOpenSegments", {2847, u"line"}},
      {u"TaxElements", {2853, u"", {{2817, u"", {{2854, u"line"}}}}}},
      {u"FVElements", {2868, u"line"}},
      {u"FTElements", {2867, u"line"}},
      {u"FPElements", {2863, u"line"}},
      {u"PublishedAndNetFares", {2932, u"", {{2849, u"line"}}}},
      {u"FMElements", {2861, u"line"}},
      {u"FOElements", {2862, u"line"}},
  };
  return kLines;
}

std::vector<Tree> AllKinds() {
  std::vector<Tree> nodes;
  for (const auto& [property, node] : OneOfEachKind()) {
    nodes.push_back(node);
  }
  return nodes;
}

TEST_F(HandOverTest, EachKindGoesToItsOwnCollection) {
  Parse(AllKinds());
  for (const auto& [property, node] : OneOfEachKind()) {
    SCOPED_TRACE(testing::Readable(property));
    ASSERT_EQ(CountOf(*tst_, property), 1);
    EXPECT_EQ(FilledTexts(ItemOf(*tst_, property, 1)), Texts{"Text=line"});
  }
}

TEST_F(HandOverTest, ANewCollectionReplacesTheOneBefore) {
  Parse(AllKinds());
  for (const auto& [property, node] : OneOfEachKind()) {
    SCOPED_TRACE(testing::Readable(property));
    const Ref<Object> before(ObjectOf(*tst_, property));
    Parse({node, node});
    EXPECT_NE(ObjectOf(*tst_, property), before.Get());
    EXPECT_EQ(CountOf(*tst_, property), 2);
    EXPECT_EQ(dynamic_cast<Collection&>(*before).Count(), 1) << "what a caller holds does not change";
  }
}

TEST_F(HandOverTest, AKindThatTheNextDisplayLacksKeepsItsCollection) {
  Parse(AllKinds());
  for (const auto& [property, node] : OneOfEachKind()) {
    SCOPED_TRACE(testing::Readable(property));
    const Object* const before = ObjectOf(*tst_, property);
    Parse({});
    EXPECT_EQ(ObjectOf(*tst_, property), before);
    EXPECT_EQ(CountOf(*tst_, property), 1);
  }
}

TEST_F(HandOverTest, ContainersThatAreMissingOrEmptyKeepTheirCollections) {
  Parse(AllKinds());
  const Object* const names = ObjectOf(*tst_, u"NameElements");
  const Object* const taxes = ObjectOf(*tst_, u"TaxElements");
  const Object* const fares = ObjectOf(*tst_, u"PublishedAndNetFares");
  Parse({{2845}, {2845, u"", {{563}}}, {2853}, {3338, u"", {{2817}}}, {2932}, {2932, u"", {{2850}}}});
  EXPECT_EQ(ObjectOf(*tst_, u"NameElements"), names);
  EXPECT_EQ(ObjectOf(*tst_, u"TaxElements"), taxes);
  EXPECT_EQ(ObjectOf(*tst_, u"PublishedAndNetFares"), fares);
}

TEST_F(HandOverTest, AFreshTstKeepsItsOwnEmptyCollectionsWhereNothingIsFound) {
  const Object* const before = ObjectOf(*tst_, u"AirSegments");
  Parse({{239, u"ARNK"}});
  EXPECT_EQ(ObjectOf(*tst_, u"AirSegments"), before);
}

TEST_F(HandOverTest, AFailureHandsOverNoCollectionNotEvenOneThatWasComplete) {
  for (const auto& [property, node] : OneOfEachKind()) {
    SCOPED_TRACE(testing::Readable(property));
    tst_ = Make<TST>(*toolkit_);
    Parse({node});
    const Object* const before = ObjectOf(*tst_, property);
    EXPECT_EQ(FailureAt("Text 2850", {node, node, {2850, u"FARE"}}), kUnexpected);
    EXPECT_EQ(ObjectOf(*tst_, property), before);
    EXPECT_EQ(CountOf(*tst_, property), 1);
  }
}

TEST_F(HandOverTest, AFailureAtTheVeryEndOfTheWalkHandsOverNoCollectionEither) {
  parsed_.nodes = {{602, u"TST"}, {230, u"AIR"}};
  TstParser(*toolkit_).ParseTst(u"", *Make<TST>(*toolkit_));
  ASSERT_EQ(toolkit_->calls.back(), "Next 0");
  toolkit_->FailAt(toolkit_->calls.size(), toolkit::RuntimeError(5));
  EXPECT_THROW(TstParser(*toolkit_).ParseTst(u"", *tst_), toolkit::RuntimeError);
  EXPECT_EQ(CountOf(*tst_, u"AirSegments"), 0);
}

/// A single object: its property, a line for it and a text of that line that is read.
struct Single {
  std::u16string_view property;
  std::int32_t type;
  std::int32_t field;
  std::u16string_view fieldProperty;
  std::int32_t group;

  friend void PrintTo(const Single& single, std::ostream* out) { *out << testing::Readable(single.property); }
};

class SingleObjectTest : public testing::ParserFixture, public ::testing::WithParamInterface<Single> {
 protected:
  static Tree Line(const std::u16string& value) {
    Tree field{GetParam().field, value};
    if (GetParam().group != 0) {
      field = Tree{GetParam().group, u"group", {field}};
    }
    return {GetParam().type, u"line", {field}};
  }
  Object* Current() { return ObjectOf(*tst_, GetParam().property); }
  std::u16string Value() { return TextOf(*Current(), GetParam().fieldProperty); }
};

TEST_P(SingleObjectTest, ALaterLineReplacesTheObject) {
  Parse({Line(u"1")});
  const Ref<Object> first(Current());
  Parse({Line(u"2"), Line(u"3")});
  EXPECT_NE(Current(), first.Get());
  EXPECT_EQ(Value(), u"3");
  EXPECT_EQ(TextOf(*first, GetParam().fieldProperty), u"1") << "what a caller holds does not change";
}

TEST_P(SingleObjectTest, StaysWhenALaterLineFails) {
  EXPECT_EQ(FailureAt("Text 2850", {Line(u"1"), {2850, u"FARE"}}), kUnexpected);
  EXPECT_EQ(Value(), u"1");
}

TEST_P(SingleObjectTest, IsStoredOnlyWhenItsFillSucceeded) {
  Parse({Line(u"1")});
  const Ref<Object> before(Current());
  EXPECT_EQ(FailureAt("Text " + std::to_string(GetParam().field), {Line(u"2")}), kUnexpected);
  if (GetParam().type != 602) {  // the display's own header is stored before the line fails
    EXPECT_EQ(Current(), before.Get());
    EXPECT_EQ(Value(), u"1");
  } else {
    EXPECT_EQ(Value(), u"");
  }
}

TEST_P(SingleObjectTest, AFailureWritesNothingBehindItsBeginLines) {
  EXPECT_EQ(FailureAt("Text " + std::to_string(GetParam().field), {Line(u"1")}), kUnexpected);
  EXPECT_TRUE(toolkit_->log.back().message.starts_with(u"Beginning"));
}

INSTANTIATE_TEST_SUITE_P(EveryKind, SingleObjectTest,
                         ::testing::Values(Single{u"TSTHeader", 602, 464, u"OfficeId", 0},
                                           Single{u"ItineraryLastLine", 2848, 2714, u"DestinationCode", 0},
                                           Single{u"FEElement", 2860, 2731, u"FreeFlowText", 719}),
                         [](const auto& single) { return testing::Readable(single.param.property); });

TEST_F(HandOverTest, ALaterFareCalculationReplacesTheObject) {
  Parse({{2869, u"first"}});
  const Ref<Object> first(ObjectOf(*tst_, u"FareCalculation"));
  Parse({{2869, u"second"}});
  EXPECT_NE(ObjectOf(*tst_, u"FareCalculation"), first.Get());
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"FareCalculation"), u"Text"), u"second");
  EXPECT_EQ(TextOf(*first, u"Text"), u"first");
}

TEST_F(HandOverTest, AFareCalculationStaysWhenALaterLineFails) {
  EXPECT_EQ(FailureAt("Text 2850", {{2869, u"FC"}, {2850, u"FARE"}}), kUnexpected);
  EXPECT_EQ(TextOf(*ObjectOf(*tst_, u"FareCalculation"), u"Text"), u"FC");
}

TEST_F(HandOverTest, SingleObjectsThatTheNextDisplayLacksAreKept) {
  Parse({{2848, u"", {{2714, u"ROM"}}}, {2860, u"FE"}, {2869, u"FC"}});
  const std::vector<Object*> before{ObjectOf(*tst_, u"ItineraryLastLine"), ObjectOf(*tst_, u"FEElement"),
                                    ObjectOf(*tst_, u"FareCalculation")};
  Parse({});
  EXPECT_EQ(before, (std::vector<Object*>{ObjectOf(*tst_, u"ItineraryLastLine"), ObjectOf(*tst_, u"FEElement"),
                                          ObjectOf(*tst_, u"FareCalculation")}));
}

}  // namespace
}  // namespace qorltst
