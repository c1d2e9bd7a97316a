#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "frame/Amount.h"
#include "tests/support/Printers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

std::int64_t Amount(std::u16string_view text) { return AmountOf(text).tenThousandths; }

std::int32_t NumberRaisedBy(const std::function<void()>& step) {
  try {
    step();
  } catch (const toolkit::RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Amount, IsTheNumberThatTheTextStartsWith) {
  EXPECT_EQ(Amount(u"120.50"), 1'205'000);
  EXPECT_EQ(Amount(u"120"), 1'200'000);
  EXPECT_EQ(Amount(u"00150.00"), 1'500'000);
  EXPECT_EQ(Amount(u"99.5EUR"), 995'000);
  EXPECT_EQ(Amount(u"1.2.3"), 12'000);
  EXPECT_EQ(Amount(u".5"), 5'000);
  EXPECT_EQ(Amount(u"5."), 50'000);
}

TEST(Amount, OfATextWithoutALeadingNumberIsZero) {
  EXPECT_EQ(Amount(u""), 0);
  EXPECT_EQ(Amount(u"IT"), 0);
  EXPECT_EQ(Amount(u" 12"), 0);
  EXPECT_EQ(Amount(u"-12"), 0);
  EXPECT_EQ(Amount(u"."), 0);
  EXPECT_EQ(Amount(u"\uFF11\uFF12"), 0) << "digits of other scripts are no digits here";
}

TEST(Amount, IsRoundedHalfToEven) {
  EXPECT_EQ(Amount(u"0.00005"), 0);
  EXPECT_EQ(Amount(u"0.00015"), 2);
  EXPECT_EQ(Amount(u"0.00025"), 2);
  EXPECT_EQ(Amount(u"0.000250"), 2);
  EXPECT_EQ(Amount(u"0.0002500001"), 3);
  EXPECT_EQ(Amount(u"0.00024999"), 2);
  EXPECT_EQ(Amount(u"1.23456"), 12'346);
  EXPECT_EQ(Amount(u"9.99995"), 100'000);
}

TEST(Amount, BeyondTheCurrencyTypeIsAnOverflow) {
  EXPECT_EQ(Amount(u"922337203685477.5807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Amount(u"922337203685477.58074999"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(NumberRaisedBy([] { (void)AmountOf(u"922337203685477.5808"); }), toolkit::kOverflow);
  EXPECT_EQ(NumberRaisedBy([] { (void)AmountOf(u"922337203685477.58075"); }), toolkit::kOverflow);
  EXPECT_EQ(NumberRaisedBy([] { (void)AmountOf(u"1000000000000000"); }), toolkit::kOverflow);
  EXPECT_EQ(NumberRaisedBy([] { (void)AmountOf(std::u16string(500, u'9')); }), toolkit::kOverflow);
}

TEST(NumberText, LosesLeadingZerosAndATrailingZeroFraction) {
  EXPECT_EQ(NumberTextOf(u"00150.00"), u"150");
  EXPECT_EQ(NumberTextOf(u"150.50"), u"150.5");
  EXPECT_EQ(NumberTextOf(u"0.5"), u"0.5");
  EXPECT_EQ(NumberTextOf(u".05"), u"0.05");
  EXPECT_EQ(NumberTextOf(u"100"), u"100");
}

TEST(NumberText, KeepsAllDecimals) { EXPECT_EQ(NumberTextOf(u"123.456"), u"123.456"); }

TEST(NumberText, OfATextWithoutALeadingNumberIsZero) {
  EXPECT_EQ(NumberTextOf(u""), u"0");
  EXPECT_EQ(NumberTextOf(u"IT"), u"0");
  EXPECT_EQ(NumberTextOf(u"000"), u"0");
}

TEST(NumberText, HasUpToFifteenSignificantDigits) {
  EXPECT_EQ(NumberTextOf(u"123456789012345"), u"123456789012345");
  EXPECT_EQ(NumberTextOf(u"1234567890123456"), u"1.23456789012346E+15");
  EXPECT_EQ(NumberTextOf(u"1000000000000000"), u"1E+15");
  EXPECT_EQ(NumberTextOf(u"0.1234567890123456"), u"0.123456789012346");
  EXPECT_EQ(NumberTextOf(u"0.01234567890123456"), u"1.23456789012346E-02");
  EXPECT_EQ(NumberTextOf(u"12345.678901234567"), u"12345.6789012346");
  EXPECT_EQ(NumberTextOf(u"0." + std::u16string(120, u'0') + u"1"), u"1E-121");
}

TEST(NumberText, OfANumberBeyondTheTypeIsAnOverflow) {
  EXPECT_EQ(NumberRaisedBy([] { (void)NumberTextOf(std::u16string(400, u'9')); }), toolkit::kOverflow);
}

TEST(NumberText, OfTheLargestNumberOfTheTypeIsRoundedUpBeyondIt) {
  EXPECT_EQ(NumberTextOf(u"17976931348623157" + std::u16string(292, u'0')), u"1.79769313486232E+308");
}

TEST(NumberText, OfANumberTooSmallForTheTypeIsZero) {
  EXPECT_EQ(NumberTextOf(u"0." + std::u16string(400, u'0') + u"1"), u"0");
}

TEST(NumberText, HasTheDecimalSeparatorOfTheSystem) {
  SetDecimalSeparatorSource([]() -> std::u16string { return u","; });
  EXPECT_EQ(NumberTextOf(u"1234.5"), u"1234,5");
  EXPECT_EQ(NumberTextOf(u"0.5"), u"0,5");
  EXPECT_EQ(NumberTextOf(u"1500000000000000"), u"1,5E+15");
  SetDecimalSeparatorSource(nullptr);
  EXPECT_EQ(NumberTextOf(u"1234.5"), u"1234.5");
}

}  // namespace
}  // namespace qorltst
