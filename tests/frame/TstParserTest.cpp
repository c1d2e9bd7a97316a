#include <gtest/gtest.h>

#include "frame/TST.h"
#include "frame/TstParser.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Concat;
using testing::Entry;
using testing::Parsed;
using testing::TestToolkit;
using testing::TraceEntry;
using testing::Tree;
using Texts = std::vector<std::string>;

Entry ParseTrace(std::u16string_view text) { return TraceEntry(text, u"TstParser.ParseTst"); }

const std::u16string kBegin = u"Beginning of ParseTst(in TstParser) Function";
const std::u16string kEnd = u"End of ParseTst(in TstParser) Function";

class TstParserTest : public ::testing::Test {
 protected:
  /// Parses a text that the toolkit reads as these top-level nodes.
  std::int32_t Parse(std::vector<Tree> nodes, std::int32_t result = toolkit::kParseSuccess) {
    parsed_ = {result, std::move(nodes)};
    return TstParser(*toolkit_).ParseTst(u"the text", *tst_);
  }

  Parsed parsed_;
  Ref<TestToolkit> toolkit_ = Make<TestToolkit>([this](std::u16string_view) { return parsed_; });
  Ref<TST> tst_ = Make<TST>(*toolkit_);
};

TEST_F(TstParserTest, ADisplayWithoutRecognisedNodesIsParsedAndEverythingIsEmpty) {
  EXPECT_EQ(Parse({{602, u"TST"}, {4711, u"?", {{147, u"EUR"}}}}), 0);
  EXPECT_EQ(testing::FilledTexts(*tst_), Texts{"Text=the text"});
  for (const Member& row : TST::kDescription.members) {
    if (const auto* const field = std::get_if<ObjectField>(&row.access)) {
      const auto* const collection = dynamic_cast<Collection*>(field->in(*tst_));
      EXPECT_TRUE(collection == nullptr || collection->Count() == 0) << testing::Readable(row.name);
    }
  }
}

TEST_F(TstParserTest, ATextThatTheToolkitCannotParseIsAParseError) {
  EXPECT_EQ(Parse({{602, u"TST"}}, 10001), 1006);
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{ParseTrace(kBegin),
                                ParseTrace(u"Parsing Error. End of ParseTst(in TstParser) Function with Error")}));
  EXPECT_EQ(testing::FilledTexts(*tst_), Texts()) << "the text is not kept either";
}

TEST_F(TstParserTest, ATextWithoutTheRootIsNotATst) {
  EXPECT_EQ(Parse({{2850, u"FARE"}}), 1000);
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{ParseTrace(kBegin), ParseTrace(u"Not a TST. End ParseTst(in TstParser) Function")}));
  EXPECT_EQ(testing::FilledTexts(*tst_), Texts());
}

TEST_F(TstParserTest, TheLinesOfTheTstAreFilledInDisplayOrder) {
  EXPECT_EQ(Parse({{602, u"TST"},
                   {2850, u"FARE", {{2717, u"100.00"}}},
                   {2852, u"EQUIV", {{2717, u"110.00"}}},
                   {2857, u"TOTAL", {{2725, u"130.00"}}},
                   {3337, u"NET", {{2717, u"090.00"}}},
                   {2835, u"CASH ONLY"},
                   {3336, u"ZAP", {{3330, u"5"}}}}),
            0);
  EXPECT_EQ(testing::FilledTexts(*tst_),
            (Texts{"EquivalentLineText=EQUIV", "NetFareFareAmount=90", "FareBaseLineBase=100.00",
                   "FareBaseLineText=FARE", "NetFareBaseLineText=NET", "TotalCollection=130.00", "TotalLineText=TOTAL",
                   "EquivalentLineFareBase=110.00", "PaymentRestrictionLineFreeFlowText=CASH ONLY", "Text=the text",
                   "ZapOff=5"}));
  EXPECT_EQ(toolkit_->log, Concat({{ParseTrace(kBegin)},
                                   Around(u"SetTextToParse", u"TST"),
                                   testing::EmptyHeaderLog(),
                                   Around(u"FillFareWithData", u"TST"),
                                   Around(u"FillEquivWithData", u"TST"),
                                   Around(u"FillTotalWithData", u"TST"),
                                   Around(u"FillNetFareLineWithData", u"TST"),
                                   Around(u"FillPaymentRestrictionLine", u"TST"),
                                   Around(u"FillZapOffValue", u"TST"),
                                   {ParseTrace(kEnd)}}));
}

TEST_F(TstParserTest, EachWarningIsTracedWithItsTypeAndTheNodeIsStillDispatched) {
  EXPECT_EQ(Parse({{602, u"TST"},
                   Tree{2850, u"FARE", {{2717, u"100.00"}}}.WithWarning(),
                   Tree{7, u"?"}.WithWarning(),
                   {2852, u"EQUIV"}}),
            1005);
  EXPECT_EQ(testing::TextOf(*tst_, u"FareBaseLineBase"), u"100.00");
  const std::u16string warning = u"Parsing WARNING in ParseTst(in TstParser) Function. On object type: ";
  EXPECT_EQ(toolkit_->log, Concat({{ParseTrace(kBegin)},
                                   Around(u"SetTextToParse", u"TST"),
                                   testing::EmptyHeaderLog(),
                                   {ParseTrace(warning + u"2850")},
                                   Around(u"FillFareWithData", u"TST"),
                                   {ParseTrace(warning + u"7")},
                                   Around(u"FillEquivWithData", u"TST"),
                                   {ParseTrace(kEnd)}}));
}

TEST_F(TstParserTest, AWarningBelowTheTopLevelIsNotSeen) {
  EXPECT_EQ(Parse({{602, u"TST"}, {2850, u"FARE", {Tree{2717, u"1"}.WithWarning()}}}), 0);
}

TEST_F(TstParserTest, ASecondRetrievalKeepsWhatItsDisplayDoesNotHold) {
  Parse({{602, u"TST"}, {2850, u"FARE", {{2717, u"100.00"}, {1201, u"F"}}}, {3336, u"ZAP", {{3330, u"5"}}}});
  Parse({{602, u"TST"}, {2850, u"FARE 2", {{2717, u"200.00"}}}});
  EXPECT_EQ(testing::TextOf(*tst_, u"FareBaseLineText"), u"FARE 2");
  EXPECT_EQ(testing::TextOf(*tst_, u"FareBaseLineIssueId"), u"F");
  EXPECT_EQ(testing::TextOf(*tst_, u"ZapOff"), u"5");
}

TEST_F(TstParserTest, AnUnexpectedFailureRaises9999UnderTheMethodAndLeavesWithoutItsErrorLine) {
  // Begin, create, parse, find, children, next, warning, type: the ninth call is the first inside the fare line.
  toolkit_->FailAt(8, RuntimeError(toolkit::kObjectNotSet));
  try {
    Parse({{2850, u"FARE", {{602, u"TST"}}}});
    FAIL() << "nothing was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x8004270FU);
    EXPECT_EQ(error.Source(), u"TstParser:ParseTst Method");
  }
  EXPECT_EQ(toolkit_->log,
            Concat({{ParseTrace(kBegin)},
                    Around(u"SetTextToParse", u"TST"),
                    {TraceEntry(u"Beginning of FillFareWithData(in TST) Function", u"TST.FillFareWithData")}}));
}

TEST_F(TstParserTest, AFailureAtAnyToolkitCallRaises9999AndKeepsWhatWasFilledBefore) {
  const std::vector<Tree> nodes{{602, u"TST"}, {2850, u"FARE", {{147, u"EUR"}}}, {2852, u"EQUIV", {{147, u"USD"}}}};
  ASSERT_EQ(Parse(nodes), 0);
  const std::size_t calls = toolkit_->calls.size();
  for (std::size_t n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    tst_ = Make<TST>(*toolkit_);
    toolkit_->FailAt(n, RuntimeError(5));
    EXPECT_THROW(Parse(nodes), RuntimeError);
    EXPECT_TRUE(testing::TextOf(*tst_, u"EquivalentLineText").empty() ||
                testing::TextOf(*tst_, u"FareBaseLineCurrencyCode") == u"EUR");
  }
}

TEST_F(TstParserTest, ReadsEachTopLevelNodeWithExactlyTheseCalls) {
  Parse({{602, u"TST"}, {4711, u"?", {{147, u"EUR"}}}});
  EXPECT_EQ(toolkit_->calls,
            (std::vector<std::string>{"CreateParser", "Parse 6", "FindNode 602", "Children 0", "Next 0",
                                      "HasWarning 602", "TypeId 602", "Text 602", "ErrorText 602", "Children 602",
                                      "Next 602", "Next 0", "HasWarning 4711", "TypeId 4711", "Next 0"}));
}

}  // namespace
}  // namespace qorltst
