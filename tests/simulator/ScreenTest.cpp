// Padding and paging of displays; see simulator/Screen.h.
#include <gtest/gtest.h>

#include "DisplaySupport.h"
#include "simulator/Screen.h"

namespace qorltst::simulator {
namespace {

using Lines = std::vector<std::u16string>;

/// "LINE 1 ..." to "LINE n ...", each a full 80 characters, so that a cut anywhere shows.
Lines Numbered(int count) {
  Lines lines;
  for (int i = 1; i <= count; ++i) {
    std::u16string line = u"LINE ";
    for (const char digit : std::to_string(i)) {
      line += static_cast<char16_t>(digit);
    }
    line.resize(80, static_cast<char16_t>(u'A' + i % 26));
    lines.push_back(line);
  }
  return lines;
}

TEST(Screen, PadsItsLinesToEightyCharacters) {
  EXPECT_EQ(JoinLines(Lines{u"A", u""}), u"A" + std::u16string(159, u' '));
}

TEST(Screen, RefusesLongerLines) {
  EXPECT_THROW(static_cast<void>(JoinLines(Lines{std::u16string(81, u'A')})), std::invalid_argument);
}

TEST(Paginate, LeavesADisplayThatFitsAsOneScreen) {
  EXPECT_EQ(Paginate(Numbered(24)), std::vector<Lines>{Numbered(24)});
  EXPECT_EQ(Paginate(Lines{}), std::vector<Lines>{Lines{}});
}

TEST(Paginate, EndsAScreenWithTheMarkAndShowsItsLastTwoLinesAgain) {
  const Lines lines = Numbered(6);
  const auto screens = Paginate(lines, 5);
  ASSERT_EQ(screens.size(), 2U);
  EXPECT_EQ(screens[0], (Lines{lines[0], lines[1], lines[2], lines[3], u"-MORE-"}));
  EXPECT_EQ(screens[1], (Lines{lines[2], lines[3], lines[4], lines[5]}));
}

TEST(Paginate, ShowsNothingTwiceBeforeTheLastScreen) {
  const Lines lines = Numbered(10);
  const auto screens = Paginate(lines, 5);
  ASSERT_EQ(screens.size(), 3U);
  EXPECT_EQ(screens[1], (Lines{lines[4], lines[5], lines[6], lines[7], u"-MORE-"}));
  EXPECT_EQ(screens[2], (Lines{lines[6], lines[7], lines[8], lines[9]}));
}

TEST(Paginate, NeverMakesAScreenTooLong) {
  for (int count = 1; count <= 60; ++count) {
    for (const std::size_t height : {3U, 4U, 7U, 24U}) {
      for (const Lines& screen : Paginate(Numbered(count), height)) {
        EXPECT_LE(screen.size(), height) << count;
      }
    }
  }
}

TEST(Paginate, RefusesScreensWithoutRoomForAnythingNew) {
  EXPECT_THROW(static_cast<void>(Paginate(Numbered(3), 2)), std::invalid_argument);
}

TEST(Paginate, LosesAndRepeatsNothingWhenTwoScreensAreStitched) {
  for (int count = 25; count <= 45; ++count) {
    const Lines lines = Numbered(count);
    const auto screens = Paginate(lines);
    ASSERT_EQ(screens.size(), 2U) << count;
    EXPECT_EQ(JoinLines(screens[0]).size(), 1920U);
    EXPECT_EQ(Stitch(JoinLines(screens[0]), JoinLines(screens[1])), JoinLines(lines)) << count;
  }
}

TEST(Paginate, LosesNothingAtASeamOfShortLines) {
  Lines lines = Numbered(26);
  for (std::u16string& line : lines) {
    line.resize(7);
  }
  const auto screens = Paginate(lines);
  EXPECT_EQ(Stitch(JoinLines(screens[0]), JoinLines(screens[1])), JoinLines(lines));
}

TEST(Paginate, ReachesFurtherBackWhereAScreenEndsBlank) {
  Lines lines = Numbered(6);
  lines[3] = u"  ";
  const auto screens = Paginate(lines, 5);
  ASSERT_EQ(screens.size(), 2U);
  EXPECT_EQ(screens[1], (Lines{lines[1], lines[2], lines[3], lines[4], lines[5]}));
}

TEST(Paginate, LetsAReaderGoOnAfterAScreenThatEndsBlank) {
  const Lines lines{u"TST 00001", u"EQUIV EUR 1.00", u"PAYMENT CASH", u"", u"", u" ONLY", u"ZAPOFF 1P"};
  const auto screens = Paginate(lines, 6);
  ASSERT_EQ(screens.size(), 2U);
  EXPECT_EQ(Parsed::FromText(Stitch(JoinLines(screens[0]), JoinLines(screens[1]))).Dump(), Parsed(lines).Dump());
}

}  // namespace
}  // namespace qorltst::simulator
