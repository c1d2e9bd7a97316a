// Whether fare and taxes make the total; see tools/report/FareCheck.h.
#include <gtest/gtest.h>

#include <sstream>

#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "simulator/SimulatedToolkit.h"
#include "tools/report/FareCheck.h"

namespace qorltst::report {
namespace {

FareCheck Check(const std::string& lines) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  std::istringstream file("> TQT\nTST 1\n" + lines);
  const auto session = Make<simulator::RecordedSession>(simulator::ReadRecording(file, "test"));
  const auto ticket = Make<TST>(*toolkit);
  ticket->RetrieveCurrentTst(session.Get());
  return CheckFare(*ticket);
}

constexpr std::string_view kNoFare = "The fare is no amount in the currency of the total.";
constexpr std::string_view kNoTax = "A tax is no amount in the currency of the total.";
constexpr std::string_view kNoTotal = "There is no total to compare with.";

TEST(FareCheck, AddsTheTaxesToTheBaseFare) {
  const FareCheck check = Check("FARE F EUR 100.10\nTAX X/EUR/20.20/GB X/EUR/0.0001/FR\nTOTAL EUR 120.3001\n");
  EXPECT_TRUE(check.AddsUp());
  EXPECT_EQ(check.sum, Currency{1203001});
}

TEST(FareCheck, TakesTheEquivalentFareWhereTheTotalIsInItsCurrency) {
  EXPECT_TRUE(Check("FARE F GBP 80.00\nEQUIV EUR 100.00\nTAX X/EUR/1.00/GB\nTOTAL EUR 101.00\n").AddsUp());
  EXPECT_TRUE(Check("FARE F GBP 80.00\nEQUIV EUR 100.00\nTOTAL GBP 80.00\n").AddsUp());
}

TEST(FareCheck, FindsATotalThatDiffers) {
  const FareCheck check = Check("FARE F EUR 100.00\nTOTAL EUR 100.01\n");
  EXPECT_FALSE(check.AddsUp());
  EXPECT_EQ(check.reason, "");
  EXPECT_EQ(check.total, Currency{1000100});
}

TEST(FareCheck, DoesNotAddWhatIsNoAmount) {
  EXPECT_EQ(Check("FARE F EUR IT\nTOTAL EUR 100.00\n").reason, kNoFare);
  EXPECT_EQ(Check("FARE F EUR 1O.00\nTOTAL EUR 100.00\n").reason, kNoFare);
  EXPECT_EQ(Check("FARE F EUR 9.00\nTAX X/EUR/1,00/GB\nTOTAL EUR 100.00\n").reason, kNoTax);
}

TEST(FareCheck, DoesNotAddCurrencies) {
  EXPECT_EQ(Check("FARE F GBP 9.00\nTOTAL EUR 100.00\n").reason, kNoFare);
  EXPECT_EQ(Check("FARE F EUR 9.00\nTAX X/GBP/1.00/GB\nTOTAL EUR 10.00\n").reason, kNoTax);
}

TEST(FareCheck, NeedsATotal) {
  EXPECT_EQ(Check("FARE F EUR 9.00\n").reason, kNoTotal);
  EXPECT_EQ(Check("DEST LON\n").reason, kNoTotal);
}

TEST(FareCheck, StopsWhereAmountsAreTooLarge) {
  EXPECT_EQ(Check("FARE F EUR 922337203685477.5807\nTAX X/EUR/0.0001/GB\nTOTAL EUR 1.00\n").reason,
            "The amounts are too large to be added up.");
  EXPECT_EQ(WholeAmount(u"922337203685477.5808"), std::nullopt);
}

}  // namespace
}  // namespace qorltst::report
