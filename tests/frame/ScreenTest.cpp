#include <gtest/gtest.h>

#include <functional>

#include "frame/Screen.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::screen {
namespace {

void ExpectInvalidCall(const std::function<void()>& step) {
  try {
    step();
    ADD_FAILURE() << "nothing was raised";
  } catch (const toolkit::RuntimeError& error) {
    EXPECT_EQ(error.Number(), toolkit::kInvalidCall);
    EXPECT_EQ(error.Description(), u"Invalid procedure call or argument");
  }
}

TEST(Screen, LeftTakesWhatThereIs) {
  EXPECT_EQ(Left(u"abc", 2), u"ab");
  EXPECT_EQ(Left(u"abc", 5), u"abc");
  EXPECT_EQ(Left(u"abc", 0), u"");
}

TEST(Screen, ANegativeLengthIsAnInvalidCall) {
  ExpectInvalidCall([] { (void)Left(u"abc", -1); });
}

TEST(Screen, MiddleCountsFromOne) {
  EXPECT_EQ(Middle(u"abcdef", 2, 3), u"bcd");
  EXPECT_EQ(Middle(u"abcdef", 5, 10), u"ef");
  EXPECT_EQ(Middle(u"abcdef", 7, 1), u"");
  EXPECT_EQ(Middle(u"abcdef", 100, 1), u"");
}

TEST(Screen, AStartBeforeOneIsAnInvalidCall) {
  ExpectInvalidCall([] { (void)Middle(u"abc", 0, 1); });
  ExpectInvalidCall([] { (void)From(u"abc", -79); });
}

TEST(Screen, FindCountsFromOneAndGivesZeroForNothing) {
  EXPECT_EQ(Find(u"abcabc", u"ca"), 3);
  EXPECT_EQ(Find(u"abc", u"C"), 0);
  EXPECT_EQ(Find(u"", u"a"), 0);
  EXPECT_EQ(Find(u"", u""), 0);
  EXPECT_EQ(Find(u"abc", u""), 1);
}

TEST(Screen, OnlySpacesAreBlank) {
  EXPECT_TRUE(IsBlank(u""));
  EXPECT_TRUE(IsBlank(u"   "));
  EXPECT_FALSE(IsBlank(u" \t "));
  EXPECT_FALSE(IsBlank(std::u16string_view(u"\0", 1)));
  EXPECT_EQ(WithoutTrailingSpaces(u"  a  "), u"  a");
}

}  // namespace
}  // namespace qorltst::screen
