#include <gtest/gtest.h>

#include "frame/TST.h"
#include "tests/support/Printers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::CurrencyOf;
using testing::FilledTexts;
using testing::TextOf;
using testing::Tree;
using Texts = std::vector<std::string>;

class TstTest : public ::testing::Test {
 protected:
  Ref<toolkit::ParseNode> Node(Tree tree) { return toolkit_->Node(std::move(tree)); }

  Ref<testing::TestToolkit> toolkit_ = Make<testing::TestToolkit>();
  Ref<TST> tst_ = Make<TST>(*toolkit_);
};

TEST_F(TstTest, FreshAnswersEveryCollectionEmptyAndEveryObjectWithAnEmptyElement) {
  int collections = 0;
  int objects = 0;
  for (const Member& row : TST::kDescription.members) {
    if (!std::holds_alternative<ObjectField>(row.access)) {
      continue;
    }
    SCOPED_TRACE(testing::Readable(row.name));
    Object* const value = testing::ObjectOf(*tst_, row.name);
    ASSERT_NE(value, nullptr);
    if (const auto* const collection = dynamic_cast<Collection*>(value)) {
      EXPECT_EQ(collection->Count(), 0);
      ++collections;
    } else {
      EXPECT_EQ(FilledTexts(*value), Texts());
      ++objects;
    }
  }
  EXPECT_EQ(collections, 11);
  EXPECT_EQ(objects, 4);
}

TEST_F(TstTest, FreshHasEmptyTextsAndZeroAmounts) {
  EXPECT_EQ(FilledTexts(*tst_), Texts());
  EXPECT_EQ(CurrencyOf(*tst_, u"TotalCollectionAmount"), Currency{});
  EXPECT_EQ(CurrencyOf(*tst_, u"FareBaseLineBaseAmount"), Currency{});
}

TEST_F(TstTest, CreationAndEndLogNothing) {
  tst_ = nullptr;
  EXPECT_TRUE(toolkit_->log.empty());
  EXPECT_EQ(toolkit_->loggersCreated, 0);
}

TEST_F(TstTest, InterfaceIsInItsOrder) {
  const std::vector<std::u16string_view> expected{u"PublishedAndNetFares",
                                                  u"FareBaseLineErrorText",
                                                  u"TotalBankersRateId",
                                                  u"FareBaseLineIssueId",
                                                  u"TotalErrorText",
                                                  u"EquivalentLineText",
                                                  u"EquivalentLineErrorText",
                                                  u"RetrieveCurrentTst",
                                                  u"RetrieveSpecificTst",
                                                  u"FMElements",
                                                  u"FOElements",
                                                  u"FPElements",
                                                  u"FVElements",
                                                  u"NameElements",
                                                  u"AirSegments",
                                                  u"AirOpenSegments",
                                                  u"ARNKSegments",
                                                  u"FareCalculation",
                                                  u"TSTHeader",
                                                  u"TaxElements",
                                                  u"FEElement",
                                                  u"ItineraryLastLine",
                                                  u"ClassDebugID",
                                                  u"FTElements",
                                                  u"FareBaseLineCorporateCode",
                                                  u"NetFareCurrencyCode",
                                                  u"NetFareFareAmount",
                                                  u"FareBaseLineBase",
                                                  u"FareBaseLineCurrencyCode",
                                                  u"FareBaseLineText",
                                                  u"NetFareBaseLineText",
                                                  u"TotalCollection",
                                                  u"TotalRateExchange",
                                                  u"TotalCurrencyCode",
                                                  u"TotalLineText",
                                                  u"EquivalentLineFareBase",
                                                  u"EquivalentLineCurrencyCode",
                                                  u"PaymentRestrictionLineFreeFlowText",
                                                  u"PaymentRestrictionLineErrorText",
                                                  u"AdditionalTotalBankersText",
                                                  u"AdditionalTotalBankersCur",
                                                  u"AdditionalTotalBankersAmount",
                                                  u"Text",
                                                  u"ZapOff",
                                                  u"TotalCollectionAmount",
                                                  u"FareBaseLineBaseAmount",
                                                  u"NetFareBaseLineErrorText"};
  ASSERT_EQ(TST::kDescription.members.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(TST::kDescription.members[i].name, expected[i]);
  }
}

TEST_F(TstTest, FareLineIsFilled) {
  const auto node =
      Node(Tree{2850, u"FARE  F EUR 120.50 CORP", {{1201, u"F"}, {147, u"EUR"}, {2717, u"120.50"}, {2718, u"CORP"}}}
               .WithError(u"col 7"));
  tst_->FillFareWithData(*node);
  EXPECT_EQ(FilledTexts(*tst_), (Texts{"FareBaseLineErrorText=col 7", "FareBaseLineIssueId=F",
                                       "FareBaseLineCorporateCode=CORP", "FareBaseLineBase=120.50",
                                       "FareBaseLineCurrencyCode=EUR", "FareBaseLineText=FARE  F EUR 120.50 CORP"}));
  EXPECT_EQ(CurrencyOf(*tst_, u"FareBaseLineBaseAmount"), Currency{1'205'000});
  EXPECT_EQ(toolkit_->log, Around(u"FillFareWithData", u"TST"));
}

TEST_F(TstTest, FareBaseWithoutLeadingDigitsIsAnAmountOfZero) {
  tst_->FillFareWithData(*Node({2850, u"FARE IT", {{2717, u"IT120"}}}));
  EXPECT_EQ(TextOf(*tst_, u"FareBaseLineBase"), u"IT120");
  EXPECT_EQ(CurrencyOf(*tst_, u"FareBaseLineBaseAmount"), Currency{});
}

TEST_F(TstTest, EquivalentLineIsFilledAndItsFareStaysText) {
  tst_->FillEquivWithData(
      *Node(Tree{2852, u"EQUIV USD 00130.00", {{147, u"USD"}, {2717, u"00130.00"}}}.WithError(u"e")));
  EXPECT_EQ(FilledTexts(*tst_), (Texts{"EquivalentLineText=EQUIV USD 00130.00", "EquivalentLineErrorText=e",
                                       "EquivalentLineFareBase=00130.00", "EquivalentLineCurrencyCode=USD"}));
  EXPECT_EQ(toolkit_->log, Around(u"FillEquivWithData", u"TST"));
}

TEST_F(TstTest, TotalLineIsFilledWithItsBankersRates) {
  tst_->FillTotalWithData(*Node(Tree{
      2857,
      u"TOTAL",
      {{147, u"EUR"},
       {2725, u"160.75"},
       {2858, u"rates", {{2726, u"BSR"}, {2727, u"1.0832"}, {2859, u"more", {{2727, u"174.12"}, {2728, u"USD"}}}}}}}
                                    .WithError(u"e")));
  EXPECT_EQ(FilledTexts(*tst_),
            (Texts{"TotalBankersRateId=BSR", "TotalErrorText=e", "TotalCollection=160.75", "TotalRateExchange=1.0832",
                   "TotalCurrencyCode=EUR", "TotalLineText=TOTAL", "AdditionalTotalBankersText=more",
                   "AdditionalTotalBankersCur=USD", "AdditionalTotalBankersAmount=174.12"}));
  EXPECT_EQ(CurrencyOf(*tst_, u"TotalCollectionAmount"), Currency{1'607'500});
  EXPECT_EQ(toolkit_->log, Around(u"FillTotalWithData", u"TST"));
}

TEST_F(TstTest, BankersRateFieldsOutsideTheirGroupsAreIgnored) {
  tst_->FillTotalWithData(*Node(
      {2857, u"TOTAL", {{2726, u"BSR"}, {2727, u"1"}, {2859, u"x"}, {2858, u"", {{2728, u"USD"}, {147, u"EUR"}}}}}));
  EXPECT_EQ(FilledTexts(*tst_), Texts{"TotalLineText=TOTAL"});
}

TEST_F(TstTest, NetFareLineIsFilledWithTheAmountAsANumber) {
  tst_->FillNetFareLineWithData(
      *Node(Tree{3337, u"NET EUR 00150.00", {{147, u"EUR"}, {2717, u"00150.00"}}}.WithError(u"e")));
  EXPECT_EQ(FilledTexts(*tst_), (Texts{"NetFareCurrencyCode=EUR", "NetFareFareAmount=150",
                                       "NetFareBaseLineText=NET EUR 00150.00", "NetFareBaseLineErrorText=e"}));
  EXPECT_EQ(toolkit_->log, Around(u"FillNetFareLineWithData", u"TST"));
}

TEST_F(TstTest, NetFareAmountKeepsAllDecimals) {
  tst_->FillNetFareLineWithData(*Node({3337, u"NET", {{2717, u"123.456"}}}));
  EXPECT_EQ(TextOf(*tst_, u"NetFareFareAmount"), u"123.456");
}

TEST_F(TstTest, PaymentRestrictionIsTheNodeItselfAndItsChildrenAreNotRead) {
  tst_->FillPaymentRestrictionLine(*Node(Tree{2835, u"CASH ONLY", {{219, u"other"}}}.WithError(u"e")));
  EXPECT_EQ(FilledTexts(*tst_),
            (Texts{"PaymentRestrictionLineFreeFlowText=CASH ONLY", "PaymentRestrictionLineErrorText=e"}));
  EXPECT_EQ(toolkit_->calls, (std::vector<std::string>{"Text 2835", "ErrorText 2835"}));
  EXPECT_EQ(toolkit_->log, Around(u"FillPaymentRestrictionLine", u"TST"));
}

TEST_F(TstTest, TheLastZapOffValueWins) {
  tst_->FillZapOffValue(*Node({3336, u"ZAP", {{3330, u"10"}, {3331, u"x"}, {3330, u"25"}}}));
  EXPECT_EQ(FilledTexts(*tst_), Texts{"ZapOff=25"});
  EXPECT_EQ(toolkit_->log, Around(u"FillZapOffValue", u"TST"));
}

TEST_F(TstTest, TextToParseIsKept) {
  tst_->SetTextToParse(u"the display");
  EXPECT_EQ(FilledTexts(*tst_), Texts{"Text=the display"});
  EXPECT_EQ(toolkit_->log, Around(u"SetTextToParse", u"TST"));
}

TEST_F(TstTest, UnknownChildrenAreIgnoredInEveryLine) {
  const Tree unknown{9999, u"line", {{1, u"a"}, {12345, u"b", {{147, u"EUR"}}}, {-1, u"c"}}};
  for (auto const fill : {&TST::FillFareWithData, &TST::FillEquivWithData, &TST::FillTotalWithData,
                          &TST::FillNetFareLineWithData, &TST::FillZapOffValue}) {
    const auto tst = Make<TST>(*toolkit_);
    ((*tst).*fill)(*Node(unknown));
    for (const std::string& filled : FilledTexts(*tst)) {
      EXPECT_TRUE(filled.ends_with("=line")) << filled;
    }
  }
}

TEST_F(TstTest, AnAmountBeyondTheTypeIsOverflowAndLeavesWhatWasSetBefore) {
  try {
    tst_->FillFareWithData(*Node({2850, u"FARE", {{147, u"EUR"}, {2717, u"9999999999999999"}, {1201, u"F"}}}));
    FAIL() << "no overflow";
  } catch (const toolkit::RuntimeError& error) {
    EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x80040006U);
  }
  EXPECT_EQ(FilledTexts(*tst_),
            (Texts{"FareBaseLineBase=9999999999999999", "FareBaseLineCurrencyCode=EUR", "FareBaseLineText=FARE"}));
  EXPECT_EQ(toolkit_->log.size(), 1U) << "the begin line alone";
}

TEST_F(TstTest, AFillReadsEachNodeOnceAndNothingThatItDoesNotStore) {
  tst_->FillFareWithData(*Node({2850, u"FARE", {{147, u"EUR"}, {7777, u"x", {{1, u"y"}}}, {2717, u"1"}}}));
  EXPECT_EQ(toolkit_->calls, (std::vector<std::string>{"Text 2850", "ErrorText 2850", "Children 2850", "Next 2850",
                                                       "TypeId 147", "Text 147", "Next 2850", "TypeId 7777",
                                                       "Next 2850", "TypeId 2717", "Text 2717", "Next 2850"}));
}

}  // namespace
}  // namespace qorltst
