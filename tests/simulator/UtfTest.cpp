// Conversion between UTF-8 and UTF-16; see simulator/Utf.h.
#include <gtest/gtest.h>

#include "simulator/Utf.h"

namespace qorltst::simulator {
namespace {

using namespace std::string_literals;

TEST(Utf, KeepsCharactersOfEveryLengthBothWays) {
  const std::u16string utf16 = u"A\u00E9\u20AC\U0001F6EB\U0010FFFF";
  const std::string utf8 = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9B\xAB\xF4\x8F\xBF\xBF";
  EXPECT_EQ(ToUtf8(utf16), utf8);
  EXPECT_EQ(ToUtf16(utf8), utf16);
}

TEST(Utf, KeepsNulCharacters) {
  EXPECT_EQ(ToUtf8(u"A\0B"s), "A\0B"s);
  EXPECT_EQ(ToUtf16("A\0B"s), u"A\0B"s);
}

TEST(Utf, ReplacesALoneSurrogateWhereverItStands) {
  const std::u16string high(1, static_cast<char16_t>(0xD800));
  const std::u16string low(1, static_cast<char16_t>(0xDC00));
  EXPECT_EQ(ToUtf8(high), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(low + u"A"),
            "\xEF\xBF\xBD"
            "A");
  EXPECT_EQ(ToUtf8(low + high), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf, ReplacesEachByteThatStartsNoCharacter) {
  EXPECT_EQ(ToUtf16("\x80"
                    "A"),
            u"\uFFFDA");
  EXPECT_EQ(ToUtf16("\xE2\x82"), u"\uFFFD\uFFFD");
  EXPECT_EQ(ToUtf16("\xC3"
                    "A"),
            u"\uFFFDA");
}

TEST(Utf, TakesOverlongFormsEncodedSurrogatesAndTooLargeNumbersForDamage) {
  EXPECT_EQ(FindDamage("\xC0\x80"), 0U);
  EXPECT_EQ(FindDamage("A\xED\xA0\x80"), 1U);
  EXPECT_EQ(FindDamage("AB\xF4\x90\x80\x80"), 2U);
}

TEST(Utf, FindsNoDamageInValidText) {
  EXPECT_EQ(FindDamage("A\xC3\xA9"), std::nullopt);
  EXPECT_EQ(FindDamage(""), std::nullopt);
  EXPECT_EQ(FindLoneSurrogate(u"A\U0001F6EB"), std::nullopt);
}

TEST(Utf, FindsTheFirstLoneSurrogate) {
  const std::u16string text = u"\U0001F6EB" + std::u16string(1, static_cast<char16_t>(0xDBFF)) + u"A";
  EXPECT_EQ(FindLoneSurrogate(text), 2U);
}

TEST(Utf, ShowsControlCharactersAsEscapes) { EXPECT_EQ(EscapeControls("A\n\x7F\0"s), "A\\x0a\\x7f\\x00"); }

}  // namespace
}  // namespace qorltst::simulator
