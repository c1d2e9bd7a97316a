// Values as text; see tools/model/ValueText.h.
#include <gtest/gtest.h>

#include <limits>

#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

using namespace std::string_literals;

TEST(ValueText, WritesAmountsExactly) {
  EXPECT_EQ(AmountText({}), "0.0000");
  EXPECT_EQ(AmountText({8450000}), "845.0000");
  EXPECT_EQ(AmountText({1}), "0.0001");
  EXPECT_EQ(AmountText({-5001}), "-0.5001");
  EXPECT_EQ(AmountText({std::numeric_limits<std::int64_t>::max()}), "922337203685477.5807");
  EXPECT_EQ(AmountText({std::numeric_limits<std::int64_t>::min()}), "-922337203685477.5808");
}

TEST(ValueText, WritesDaysAsIsoDates) {
  EXPECT_EQ(IsoDate({46376}), "2026-12-20");
  EXPECT_EQ(IsoDate({1}), "1899-12-31");
  EXPECT_EQ(IsoDate({-1}), "1899-12-29");
  EXPECT_EQ(IsoDate({36585}), "2000-02-29");
}

TEST(ValueText, WritesTheTimeOfADayThatHasOne) {
  EXPECT_EQ(IsoDate({46376.25}), "2026-12-20T06:00:00.000");
  EXPECT_EQ(IsoDate({46376.5 + 1.0 / 86400}), "2026-12-20T12:00:01.000");
  EXPECT_EQ(IsoDate({-1.25}), "1899-12-29T06:00:00.000");
}

TEST(ValueText, TakesTheLastInstantOfADayForTheNextDay) { EXPECT_EQ(IsoDate({46376.9999999999}), "2026-12-21"); }

TEST(ValueText, HasNoIsoDateBeyondTheCalendar) {
  EXPECT_EQ(IsoDate({-693593}), "0001-01-01");
  EXPECT_EQ(IsoDate({2958465}), "9999-12-31");
  EXPECT_EQ(IsoDate({-693594}), std::nullopt);
  EXPECT_EQ(IsoDate({2958466}), std::nullopt);
  EXPECT_EQ(IsoDate({1e300}), std::nullopt);
  EXPECT_EQ(IsoDate({std::numeric_limits<double>::quiet_NaN()}), std::nullopt);
}

TEST(ValueText, LeavesPrintableTextAsItIs) {
  EXPECT_EQ(PrintableText(u"ORRIN/HALE \u00E9 \u20AC \U0001F6EB"), "ORRIN/HALE \u00E9 \u20AC \U0001F6EB");
}

TEST(ValueText, EscapesWhatWouldChangeATerminal) {
  EXPECT_EQ(PrintableText(u"A\0B\n\u001b[2J\u007f\u009b\u202e\u2066"s),
            "A\\u0000B\\u000a\\u001b[2J\\u007f\\u009b\\u202e\\u2066");
}

TEST(ValueText, EscapesHalfASurrogatePair) {
  EXPECT_EQ(PrintableText(u"A\xD800"s), "A\\ud800");
  EXPECT_EQ(PrintableText(u"\xDC00\xD800\xDC00"s), "\\udc00\U00010000");
}

TEST(ValueText, EscapesBytesThatAreNotUtf8) {
  EXPECT_EQ(PrintableText("a\xff\xC3\xA9\xC3"s), "a\\xff\u00E9\\xc3");
  EXPECT_EQ(PrintableText("a\nb"s), "a\\u000ab");
}

}  // namespace
}  // namespace qorltst::model
