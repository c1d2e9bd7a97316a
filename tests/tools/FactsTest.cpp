// What pages ask of objects; see tools/report/Facts.h and Html.h.
#include <gtest/gtest.h>

#include "tests/tools/support/Samples.h"
#include "tools/report/Facts.h"
#include "tools/report/Html.h"

namespace qorltst::report {
namespace {

using namespace std::string_literals;

TEST(Facts, WritesNamesInWords) {
  EXPECT_EQ(InWords(u"NotValidBefore"), "Not valid before");
  EXPECT_EQ(InWords(u"TSTHeader"), "TST header");
  EXPECT_EQ(InWords(u"OldFOP"), "Old FOP");
  EXPECT_EQ(InWords(u"ISOType"), "ISO type");
  EXPECT_EQ(InWords(u"ZapOff"), "Zap off");
  EXPECT_EQ(InWords(u""), "");
}

TEST(Facts, CutsErrorsApart) {
  EXPECT_EQ(ErrorsOf(u"a; b; c"), (std::vector{u"a"s, u"b"s, u"c"s}));
  EXPECT_TRUE(ErrorsOf(u"").empty());
}

TEST(Facts, ReadsEveryKindOfProperty) {
  const Ref<TST> ticket = testing::SampleTicket("rich.txt");
  EXPECT_EQ(Fact(*ticket, u"TotalCollection"), u"1070.55");
  EXPECT_EQ(Fact(*ticket, u"TotalCollectionAmount"), u"1070.5500");
  EXPECT_EQ(Fact(*ChildOf(*ticket, u"TSTHeader"), u"LastDateFromTst"), u"2026-12-20");
  EXPECT_EQ(Fact(*ChildOf(*ChildOf(*ticket, u"FareCalculation"), u"EndLine"), u"EndId"), u"yes");
  EXPECT_EQ(ItemsOf(*ticket, u"NameElements").size(), 4U);
}

TEST(Facts, RefusesAPropertyThatThereIsNot) {
  EXPECT_THROW(static_cast<void>(Fact(*testing::SampleTicket("minimal.txt"), u"Nonsense")), std::logic_error);
}

TEST(Html, EscapesWhatMarkupIsMadeOf) {
  EXPECT_EQ(Escaped(u"<b a=\"x\" b='y'>&amp;</b>"), "&lt;b a=&quot;x&quot; b=&#39;y&#39;&gt;&amp;amp;&lt;/b&gt;");
  EXPECT_EQ(Escaped(u"\0\xD800\u202e"s), "\\u0000\\ud800\\u202e");
  EXPECT_EQ(Escaped("\xff<"s), "\\xff&lt;");
}

TEST(Html, ClosesElementsInTheirOrder) {
  Html html;
  {
    const auto outer = html.In("div", {{"id", "a\"b"}, {"hidden", ""}});
    html.Add("p", std::string_view("x<y"));
  }
  EXPECT_EQ(html.Written(), "<div id=\"a&quot;b\" hidden><p>x&lt;y</p></div>");
}

}  // namespace
}  // namespace qorltst::report
