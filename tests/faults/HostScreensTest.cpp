// Whatever a host sends: screens of any length and any characters, answers that fail to come, a thousand screens.
// What the component makes of several screens is compared with a second reckoning, written down here by 1-based
// positions alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

#include "frame/TST.h"
#include "tests/support/Printers.h"
#include "tests/support/Samples.h"

namespace qorltst {
namespace {

using testing::Line;
using testing::Parsed;
using testing::TestSession;
using testing::TestToolkit;
using Screens = std::deque<std::optional<std::u16string>>;

constexpr std::size_t kLine = 80;

/// "<" somewhere is a header, ">" the mark that screens follow.
Parsed ParseByMarks(std::u16string_view text) {
  Parsed parsed;
  if (text.find(u'<') != std::u16string_view::npos) {
    parsed.nodes.push_back({602, u"<"});
  }
  if (text.find(u'>') != std::u16string_view::npos) {
    parsed.nodes.push_back({561, u">"});
  }
  return parsed;
}

/// What a retrieval came to.
struct Outcome {
  std::int32_t code = 0;
  std::u16string text;
  std::size_t commands = 0;
};

class HostScreens : public ::testing::Test {
 protected:
  Outcome Retrieve(const Screens& screens) {
    const auto tst = Make<TST>(*toolkit_);
    const auto session = Make<TestSession>(*toolkit_, screens);
    Outcome outcome;
    outcome.code = tst->RetrieveSpecificTst(session.Get(), u"TQT/T1");
    outcome.text = testing::TextOf(*tst, u"Text");
    outcome.commands = session->commands.size();
    toolkit_->calls.clear();
    toolkit_->log.clear();
    return outcome;
  }

  Ref<TestToolkit> toolkit_ = Make<TestToolkit>(&ParseByMarks);
  const std::int32_t living_ = Object::Living();

  void TearDown() override { EXPECT_EQ(Object::Living(), living_); }
};

// --- The second reckoning -----------------------------------------------------------------------------------------

/// The runtime's error for a position before the first character or a length below zero.
struct InvalidCall {};

std::u16string Mid(const std::u16string& text, std::int64_t start, std::int64_t length) {
  if (start < 1 || length < 0) {
    throw InvalidCall();
  }
  std::u16string part;
  for (std::int64_t at = start; at < start + length && at <= static_cast<std::int64_t>(text.size()); ++at) {
    part += text[static_cast<std::size_t>(at - 1)];
  }
  return part;
}

std::int64_t InStr(const std::u16string& text, const std::u16string& part) {
  for (std::size_t at = 0; at + part.size() <= text.size() && !text.empty(); ++at) {
    if (text.compare(at, part.size(), part) == 0) {
      return static_cast<std::int64_t>(at) + 1;
    }
  }
  return 0;
}

bool Blank(const std::u16string& text) { return text.find_first_not_of(u' ') == std::u16string::npos; }

bool Follows(const std::u16string& page) { return page.find(u'>') != std::u16string::npos; }

std::u16string Cleaned(const std::u16string& page, const std::u16string& lastLine) {
  if (Follows(page)) {
    return page;
  }
  std::u16string search = page;
  std::u16string cleaned;
  std::vector<std::u16string> had;
  while (const std::int64_t p = InStr(search, lastLine)) {
    cleaned = Mid(page, p + 80, static_cast<std::int64_t>(page.size()));
    // A search that comes back to a text would go on for ever; it ends with that text.
    if (std::find(had.begin(), had.end(), cleaned) != had.end()) {
      break;
    }
    had.push_back(cleaned);
    search = cleaned;
  }
  return cleaned;
}

Outcome Reckon(const Screens& screens) {
  Outcome outcome{.code = 0, .text = {}, .commands = 1};
  if (screens.empty() || !screens[0]) {
    outcome.code = 3004;
    return outcome;
  }
  std::u16string page = *screens[0];
  while (page.size() % kLine != 0) {
    page += u' ';
  }
  if (const std::size_t nul = page.find(u'\0'); nul != std::u16string::npos && nul > 0) {
    page = page.substr(0, nul);
  }
  if (page.find(u'<') == std::u16string::npos) {
    outcome.code = 1000;
    return outcome;
  }
  std::u16string whole = page;
  try {
    while (Follows(page)) {
      const std::int64_t n = static_cast<std::int64_t>(page.size()) - 80;
      whole = Mid(whole, 1, n - 1);
      std::int64_t start = n - 80;
      std::u16string lastLine = Mid(page, start, 80);
      while (Blank(lastLine)) {
        start -= 80;
        lastLine = Mid(page, start, 80);
      }
      ++outcome.commands;
      const std::size_t next = outcome.commands - 1;
      if (next >= screens.size() || !screens[next]) {
        return outcome;
      }
      page = *screens[next];
      whole += Cleaned(page, lastLine);
    }
  } catch (const InvalidCall&) {
    return outcome;
  }
  while (!whole.empty() && whole.back() == u' ') {
    whole.pop_back();
  }
  if (whole.size() % kLine == 1) {
    whole.pop_back();
  }
  if (whole.find(u'<') == std::u16string::npos) {
    outcome.code = 1000;
    return outcome;
  }
  outcome.text = whole;
  return outcome;
}

void ExpectAsReckoned(const Outcome& got, const Screens& screens) {
  const Outcome wanted = Reckon(screens);
  ASSERT_EQ(got.code, wanted.code);
  ASSERT_EQ(got.commands, wanted.commands);
  ASSERT_TRUE(got.text == wanted.text) << "got " << testing::Readable(got.text) << "\nnot "
                                       << testing::Readable(wanted.text);
}

TEST_F(HostScreens, OfEveryLengthFromNothingToTwoLinesAndOneCharacter) {
  for (std::size_t length = 0; length <= 161; ++length) {
    for (const char16_t mark : {u'<', u'>', u'x'}) {
      std::u16string screen(length, u'a');
      if (length > 0) {
        screen[length / 2] = mark;
        screen[0] = u'<';
      }
      for (const Screens& screens : {Screens{screen}, Screens{screen, screen}, Screens{std::nullopt, screen},
                                     Screens{screen + std::u16string(kLine, u'b'), screen}}) {
        SCOPED_TRACE(length);
        ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(Retrieve(screens), screens));
      }
    }
  }
}

TEST_F(HostScreens, OfAHundredThousandCharacters) {
  std::u16string first(100'000, u'a');
  first[0] = u'<';
  first[50'000] = u'>';
  const std::u16string last = std::u16string(50'000, u'c') + std::u16string(kLine, u'a') + std::u16string(49'920, u'd');
  const Screens screens{first, last};
  ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(Retrieve(screens), screens));
  EXPECT_EQ(Retrieve(screens).text.size(), 99'919U + 49'920U);
}

TEST_F(HostScreens, WithANulAtEveryPlace) {
  for (std::size_t place = 0; place < 2 * kLine; ++place) {
    std::u16string screen(2 * kLine, u'a');
    screen[1] = u'<';
    screen[place] = u'\0';
    const Screens screens{screen};
    SCOPED_TRACE(place);
    ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(Retrieve(screens), screens));
  }
}

TEST_F(HostScreens, OfEveryCodeUnitLoneSurrogatesIncluded) {
  for (char32_t unit = 0; unit < 0x10000; unit += 61) {
    std::u16string screen(kLine, static_cast<char16_t>(unit));
    screen[3] = u'<';
    const Screens screens{screen};
    SCOPED_TRACE(static_cast<std::uint32_t>(unit));
    ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(Retrieve(screens), screens));
  }
}

TEST_F(HostScreens, ThatDoNotComeAtAnyPage) {
  const std::u16string more = Line(u"<") + Line(u"one") + Line(u">");
  for (std::size_t missing = 0; missing < 6; ++missing) {
    Screens screens(6, more);
    screens[missing] = std::nullopt;
    SCOPED_TRACE(missing);
    ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(Retrieve(screens), screens));
    EXPECT_EQ(Retrieve(screens).code, missing == 0 ? 3004 : 0);
  }
}

TEST_F(HostScreens, AThousandOfThem) {
  Screens screens;
  for (int i = 0; i < 999; ++i) {
    std::u16string number;
    for (const char digit : std::to_string(i)) {
      number += static_cast<char16_t>(digit);
    }
    screens.emplace_back(Line(u"< " + number) + Line(u"body " + number) + Line(u">"));
  }
  screens.emplace_back(Line(u"body 998") + Line(u"the end"));
  const Outcome outcome = Retrieve(screens);
  ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(outcome, screens));
  EXPECT_EQ(outcome.commands, 1000U);
}

/// Lines from so few that screens overlap, repeat and end anywhere.
class RandomScreens {
 public:
  explicit RandomScreens(std::uint32_t seed) : random_(seed) {}

  Screens Next() {
    Screens screens;
    const std::size_t pages = 1 + Below(4);
    for (std::size_t i = 0; i < pages; ++i) {
      std::u16string page = Page();
      if (i + 1 < pages) {
        page[Below(page.size())] = u'>';
      }
      screens.push_back(Below(40) == 0 ? std::nullopt : std::optional(page));
    }
    return screens;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::u16string Page() {
    static const std::vector<std::u16string> kLines{Line(u"<"), Line(u"aa"),  Line(u"aa"),
                                                    Line(u""),  Line(u"  b"), std::u16string(kLine, u'a')};
    std::u16string page;
    for (std::size_t i = 0, lines = 1 + Below(6); i < lines; ++i) {
      page += kLines[Below(kLines.size())];
    }
    if (Below(3) == 0) {
      page.erase(Below(page.size()), Below(90));
    }
    if (Below(12) == 0) {
      page.insert(Below(page.size() + 1), 1, u'\0');
    }
    return page.empty() ? u"<" : page;
  }

  std::mt19937 random_;
};

TEST_F(HostScreens, AreStitchedByPositionsWhateverTheyHold) {
  const int rounds = testing::LongForm() ? 300'000 : 3'000;
  RandomScreens random(20261121);
  int parsed = 0;
  for (int round = 0; round < rounds; ++round) {
    const Screens screens = random.Next();
    SCOPED_TRACE(round);
    const Outcome outcome = Retrieve(screens);
    ASSERT_NO_FATAL_FAILURE(ExpectAsReckoned(outcome, screens));
    parsed += outcome.text.empty() ? 0 : 1;
  }
  EXPECT_GT(parsed, rounds / 10) << "too few displays that could be read to say anything";
}

}  // namespace
}  // namespace qorltst
