#include <gtest/gtest.h>

#include "frame/TST.h"
#include "frame/TstCommunication.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using testing::Concat;
using testing::Entry;
using testing::HostErrorEntry;
using testing::Line;
using testing::Parsed;
using testing::Screen;
using testing::TestSession;
using testing::TestToolkit;
using testing::TraceEntry;
using Calls = std::vector<std::string>;
using Commands = std::vector<std::u16string>;
using Texts = std::vector<std::u16string>;

constexpr std::u16string_view kSessionProblemText = u"There is a problem with the connected session.";
constexpr std::u16string_view kUnintendedText = u"Can not retrieve the intended response";

/// "TST" somewhere is a header, "MORE" the mark that screens follow, "DAMAGED" cannot be parsed.
Parsed ParseByMarks(std::u16string_view text) {
  if (text.find(u"DAMAGED") != std::u16string_view::npos) {
    return {1, {}};
  }
  Parsed parsed;
  if (text.find(u"TST") != std::u16string_view::npos) {
    parsed.nodes.push_back({602, u"TST"});
  }
  if (text.find(u"MORE") != std::u16string_view::npos) {
    parsed.nodes.push_back({561, u"MORE"});
  }
  return parsed;
}

std::vector<Entry> TSTDisplayLog() {
  return {TraceEntry(u"Beginning of TSTDisplay (in TstCommunication)", u"TstCommunication.TSTDisplay"),
          TraceEntry(u"End TSTDisplay(in TstCommunication) Function", u"TstCommunication.TSTDisplay")};
}

std::vector<Entry> CleanLog() {
  return {
      TraceEntry(u"Beginning CleanEntireResponse(in TstCommunication) Function",
                 u"TstCommunication.CleanEntireResponse"),
      TraceEntry(u"End CleanEntireResponse(in TstCommunication) Function", u"TstCommunication.CleanEntireResponse")};
}

std::vector<Entry> EntireLog(const std::vector<Entry>& between = {}) {
  return Concat({{TraceEntry(u"Beginnning of GetEntireTstToParse(in TstCommunication) Function",
                             u"TstCommunication.GetEntireTstToParse")},
                 between,
                 {TraceEntry(u"End GetEntireTstToParse(in TstCommunication) Function",
                             u"TstCommunication.GetEntireTstToParse")}});
}

std::vector<Entry> ParseLog() {
  return Concat({{TraceEntry(u"Beginning of ParseTst(in TstParser) Function", u"TstParser.ParseTst")},
                 testing::Around(u"SetTextToParse", u"TST"),
                 testing::EmptyHeaderLog(),
                 {TraceEntry(u"End of ParseTst(in TstParser) Function", u"TstParser.ParseTst")}});
}

class TstCommunicationTest : public ::testing::Test {
 protected:
  using Screens = std::deque<std::optional<std::u16string>>;

  /// A session on the screens; it lives as long as the test.
  TestSession& Session(Screens screens) {
    sessions_.push_back(Make<TestSession>(*toolkit_, std::move(screens)));
    return *sessions_.back();
  }

  std::int32_t RetrieveCurrent(Screens screens) {
    return communication_.RetrieveCurrentTst(&Session(std::move(screens)), *tst_);
  }

  std::u16string Text() { return testing::TextOf(*tst_, u"Text"); }

  /// The whole display as the component stitches it from these screens.
  std::u16string Entire(std::u16string first, Screens following) {
    return communication_.GetEntireTstToParse(first, Session(std::move(following)));
  }

  Ref<TestToolkit> toolkit_ = Make<TestToolkit>(ParseByMarks);
  Ref<TST> tst_ = Make<TST>(*toolkit_);
  TstCommunication communication_{*toolkit_};
  std::vector<Ref<TestSession>> sessions_;
};

TEST_F(TstCommunicationTest, OneScreenIsRetrievedAndTheWholeLogIsThis) {
  EXPECT_EQ(RetrieveCurrent({Screen({u"TST 1", u"END"})}), 0);
  EXPECT_EQ(Text(), Line(u"TST 1") + u"END");
  EXPECT_EQ(sessions_[0]->commands, (Commands{u"SetOption", u"TQT"}));
  EXPECT_EQ(toolkit_->log, Concat({{TraceEntry(u"Beginning RetrieveCurrentTst(in TstCommunication) Function",
                                               u"Communication.RetrieveCurrentTST")},
                                   TSTDisplayLog(),
                                   EntireLog(),
                                   ParseLog()}));
}

TEST_F(TstCommunicationTest, ASpecificDisplayIsRetrievedWithItsOwnCommandAndWithoutAnOption) {
  TestSession& session = Session({Screen({u"TST 2", u"END"})});
  EXPECT_EQ(communication_.RetrieveSpecificTst(&session, u"TQT/T2", *tst_), 0);
  EXPECT_EQ(session.commands, Commands{u"TQT/T2"});
  EXPECT_EQ(toolkit_->log, Concat({{TraceEntry(u"Beginning RetrieveSpecificTst(in TstCommunication) Function",
                                               u"TstCommunication.RetrieveSpecificTST")},
                                   TSTDisplayLog(),
                                   EntireLog(),
                                   ParseLog()}));
}

TEST_F(TstCommunicationTest, AnAbsentSessionIsASessionProblem) {
  EXPECT_EQ(communication_.RetrieveCurrentTst(nullptr, *tst_), 3004);
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{TraceEntry(u"Beginning RetrieveCurrentTst(in TstCommunication) Function",
                                           u"Communication.RetrieveCurrentTST"),
                                HostErrorEntry(3004, u"TstCommunication.RetrieveCurrentTst", kSessionProblemText),
                                TraceEntry(u"Session Error. End RetrieveCurrentTst(in TstCommunication) Function",
                                           u"TstCommunication.RetrieveCurrentTST")}));
  EXPECT_EQ(toolkit_->calls, Calls());
}

TEST_F(TstCommunicationTest, AnAbsentSessionOfASpecificDisplayHasAnotherSource) {
  EXPECT_EQ(communication_.RetrieveSpecificTst(nullptr, u"TQT/T2", *tst_), 3004);
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{TraceEntry(u"Beginning RetrieveSpecificTst(in TstCommunication) Function",
                                           u"TstCommunication.RetrieveSpecificTST"),
                                HostErrorEntry(3004, u"TstCommunication.RetrieveSpecificTST", kSessionProblemText),
                                TraceEntry(u"Session Error. End RetrieveSpecificTst(in TstCommunication) Function",
                                           u"TstCommunication.RetrieveSpecificTST")}));
}

TEST_F(TstCommunicationTest, AnAbsentResponseIsASessionProblem) {
  EXPECT_EQ(RetrieveCurrent({std::nullopt}), 3004);
  EXPECT_EQ(toolkit_->calls, (Calls{"SetOption 322 False", "SendCommand"}));
  ASSERT_EQ(toolkit_->log.size(), 3U);
  EXPECT_EQ(toolkit_->log[1], HostErrorEntry(3004, u"TstCommunication.RetrieveCurrentTst", kSessionProblemText));
}

TEST_F(TstCommunicationTest, AnAbsentResponseToASpecificDisplayHasTheOtherSource) {
  EXPECT_EQ(communication_.RetrieveSpecificTst(&Session({}), u"TQT/T2", *tst_), 3004);
  ASSERT_EQ(toolkit_->log.size(), 3U);
  EXPECT_EQ(toolkit_->log[1], HostErrorEntry(3004, u"TstCommunication.RetrieveSpecificTst", kSessionProblemText));
}

TEST_F(TstCommunicationTest, ADisplayThatIsNoTstIsAnUnintendedResponse) {
  EXPECT_EQ(RetrieveCurrent({Screen({u"NO TICKET RECORD"})}), 1000);
  EXPECT_EQ(toolkit_->log, Concat({{TraceEntry(u"Beginning RetrieveCurrentTst(in TstCommunication) Function",
                                               u"Communication.RetrieveCurrentTST")},
                                   TSTDisplayLog(),
                                   {HostErrorEntry(1000, u"TstCommunication.RetrieveCurrentTst", kUnintendedText),
                                    TraceEntry(u"Not a TST. End RetrieveCurrentTst(in TstCommunication) Function",
                                               u"TstCommunication.RetrieveCurrentTST")}}));
  EXPECT_EQ(Text(), u"");
}

TEST_F(TstCommunicationTest, ASpecificDisplayThatIsNoTstIsAnUnintendedResponse) {
  EXPECT_EQ(communication_.RetrieveSpecificTst(&Session({Screen({u"NOTHING"})}), u"TQT/T2", *tst_), 1000);
  EXPECT_EQ(toolkit_->log, Concat({{TraceEntry(u"Beginning RetrieveSpecificTst(in TstCommunication) Function",
                                               u"TstCommunication.RetrieveSpecificTST")},
                                   TSTDisplayLog(),
                                   {HostErrorEntry(1000, u"TstCommunication.RetrieveSpecificTst", kUnintendedText),
                                    TraceEntry(u"Not a TST. End RetrieveSpecificTst(in TstCommunication) Function",
                                               u"TstCommunication.RetrieveSpecificTST")}}));
}

TEST_F(TstCommunicationTest, AFirstScreenThatCannotBeParsedIsNoTst) {
  EXPECT_EQ(RetrieveCurrent({Screen({u"TST DAMAGED"})}), 1000);
  EXPECT_EQ(toolkit_->calls, (Calls{"SetOption 322 False", "SendCommand", "ResponseText", "CreateParser", "Parse 6"}));
}

TEST_F(TstCommunicationTest, AnEmptyScreenIsNoTst) { EXPECT_EQ(RetrieveCurrent({u""}), 1000); }

TEST_F(TstCommunicationTest, TSTDisplayWantsBothTheParseAndTheRoot) {
  EXPECT_TRUE(communication_.TSTDisplay(u"TST 1"));
  EXPECT_FALSE(communication_.TSTDisplay(u"OTHER"));
  EXPECT_FALSE(communication_.TSTDisplay(u"TST DAMAGED"));
  EXPECT_EQ(toolkit_->log, Concat({TSTDisplayLog(), TSTDisplayLog(), TSTDisplayLog()}));
}

TEST_F(TstCommunicationTest, AScreenIsPaddedToWholeLinesBeforeTheNulSearch) {
  std::size_t seen = 0;
  toolkit_ = Make<TestToolkit>([&seen](std::u16string_view text) {
    seen = seen == 0 ? text.size() : seen;
    return ParseByMarks(text);
  });
  TstCommunication communication(*toolkit_);
  const auto Seen = [&](std::u16string screen) {
    seen = 0;
    communication.RetrieveCurrentTst(&Session({std::move(screen)}), *tst_);
    return seen;
  };
  const auto OfLength = [](std::size_t length) { return u"TST" + std::u16string(length - 3, u'x'); };
  EXPECT_EQ(Seen(OfLength(1919)), 1920U);
  EXPECT_EQ(Seen(OfLength(1920)), 1920U);
  EXPECT_EQ(Seen(OfLength(1921)), 2000U);
  std::u16string withNul = OfLength(1919);
  withNul[1000] = u'\0';
  EXPECT_EQ(Seen(withNul), 1000U) << "the padding stands behind the NUL and goes with the rest";
  std::u16string nulFirst = OfLength(1919);
  nulFirst[0] = u'\0';
  EXPECT_EQ(Seen(nulFirst), 1920U) << "a NUL in the first place cuts nothing";
}

TEST_F(TstCommunicationTest, AOneScreenDisplayLosesItsTrailingSpaces) {
  EXPECT_EQ(Entire(Screen({u"TST 1", u"LAST"}), {}), Line(u"TST 1") + u"LAST");
  EXPECT_EQ(Entire(std::u16string(400, u' '), {}), u"");
}

TEST_F(TstCommunicationTest, ASingleCharacterBeyondWholeLinesIsDropped) {
  const std::u16string full(160, u'x');
  EXPECT_EQ(Entire(full, {}), full);
  EXPECT_EQ(Entire(full + u">", {}), full);
  EXPECT_EQ(Entire(full + u">    ", {}), full);
  EXPECT_EQ(Entire(full + u">>", {}), full + u">>");
  EXPECT_EQ(Entire(u">", {}), u"");
  EXPECT_EQ(Entire(full.substr(0, 80) + u"  >", {}), full.substr(0, 80) + u"  >");
}

TEST_F(TstCommunicationTest, TwoScreensAreStitchedWhereTheyOverlap) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  const std::u16string last = Screen({u"LINE A", u"LINE B", u"LINE C", u"LINE D"});
  EXPECT_EQ(Entire(first, {last}), Screen({u"TST 1", u"LINE A", u"LINE B", u"LINE C"}) + u"LINE D");
  EXPECT_EQ(sessions_[0]->commands, Commands{u"MD"});
  EXPECT_EQ(toolkit_->log, EntireLog(CleanLog()));
}

TEST_F(TstCommunicationTest, TheLastLineIsSearchedBackOverBlankLines) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"", u"", u"MORE"});
  const std::u16string last = Screen({u"LINE A", u"LINE B", u"", u"LINE C"});
  // The first screen keeps its two blank lines, and what follows the line in the last one starts with a third.
  EXPECT_EQ(Entire(first, {last}), Screen({u"TST 1", u"LINE A", u"LINE B", u"", u"", u""}) + u"LINE C");
}

TEST_F(TstCommunicationTest, ALastScreenWithoutThePreviousLastLineContributesNothing) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  EXPECT_EQ(Entire(first, {Screen({u"LINE X", u"LINE Y"})}), Screen({u"TST 1", u"LINE A"}) + u"LINE B");
}

TEST_F(TstCommunicationTest, OverlapIsFoundInItsExactCase) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  EXPECT_EQ(Entire(first, {Screen({u"LINE A", u"Line B", u"LINE C"})}), Screen({u"TST 1", u"LINE A"}) + u"LINE B");
}

TEST_F(TstCommunicationTest, ThreeScreensLoseTheTextOfTheMiddleOne) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  const std::u16string middle = Screen({u"LINE C", u"LINE D", u"LINE E", u"MORE"});
  const std::u16string last = Screen({u"LINE D", u"LINE E", u"LINE F", u"LINE G"});
  EXPECT_EQ(Entire(first, {middle, last}), Screen({u"TST 1", u"LINE A", u"LINE B", u"LINE F"}) + u"LINE G");
  EXPECT_EQ(sessions_[0]->commands, (Commands{u"MD", u"MD"}));
}

TEST_F(TstCommunicationTest, ALongerMiddleScreenKeepsMoreOfWhatWasGathered) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"MORE"});
  const std::u16string middle = Screen({u"LINE B", u"LINE C", u"LINE D", u"LINE E", u"MORE"});
  const std::u16string last = Screen({u"LINE D", u"LINE E", u"LINE F"});
  // 319 characters stay: the first screen's 159 and of the middle one what lies within.
  const std::u16string gathered = (first.substr(0, 159) + middle).substr(0, 319);
  EXPECT_EQ(Entire(first, {middle, last}), gathered + (u" " + Line(u"LINE F")).substr(0, 7));
}

TEST_F(TstCommunicationTest, AShortScreenThatOthersFollowIsAnInvalidCall) {
  for (const std::size_t length : {4U, 79U, 80U}) {
    SCOPED_TRACE(length);
    std::u16string page = u"MORE" + std::u16string(length - 4, u'x');
    try {
      (void)communication_.GetEntireTstToParse(page, Session({}));
      FAIL() << "a cut of negative length";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x80040005U);
      EXPECT_EQ(error.Source(), u"QorlTST");
    }
  }
}

TEST_F(TstCommunicationTest, AScreenWithNothingBeforeTheLastLineIsAnInvalidCall) {
  for (const std::size_t length : {81U, 160U}) {
    SCOPED_TRACE(length);
    std::u16string page = u"MORE" + std::u16string(length - 4, u'x');
    EXPECT_THROW((void)communication_.GetEntireTstToParse(page, Session({u""})), RuntimeError);
  }
  std::u16string shortest = u"MORE" + std::u16string(157, u'x');
  EXPECT_NO_THROW((void)communication_.GetEntireTstToParse(shortest, Session({u""})));
}

TEST_F(TstCommunicationTest, AScreenOfBlankLinesIsAnInvalidCallAndTheRetrievalReturnsTheCodeHeld) {
  EXPECT_EQ(RetrieveCurrent({Screen({u"", u"", u"", u"TST MORE"})}), 0);
  EXPECT_EQ(toolkit_->log.back(), TraceEntry(u"Beginnning of GetEntireTstToParse(in TstCommunication) Function",
                                             u"TstCommunication.GetEntireTstToParse"));
}

TEST_F(TstCommunicationTest, AnAbsentResponseWhilePagingIsAnAbsentObject) {
  std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  try {
    (void)communication_.GetEntireTstToParse(first, Session({std::nullopt}));
    FAIL() << "a text of nothing";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x8004005BU);
  }
}

TEST_F(TstCommunicationTest, PagingEndsWhereAScreenCannotBeParsed) {
  const std::u16string first = Screen({u"TST 1", u"LINE A", u"LINE B", u"MORE"});
  const std::u16string damaged = Screen({u"LINE A", u"LINE B", u"DAMAGED", u"MORE"});
  EXPECT_EQ(Entire(first, {damaged}), Screen({u"TST 1", u"LINE A", u"LINE B", u"DAMAGED"}) + u"MORE");
}

TEST_F(TstCommunicationTest, AScreenThatOthersFollowIsNotCleaned) {
  EXPECT_EQ(communication_.CleanEntireResponse(u"a page with MORE", u"page"), u"a page with MORE");
}

TEST_F(TstCommunicationTest, CleaningCutsFromThePageAtThePlaceInWhatIsLeft) {
  // The line stands twice. The second find is reckoned in the text behind the first, but cut from the page, so the
  // text behind the first comes back a second time; this is where a search without an end would begin.
  const std::u16string line = Line(u"SAME");
  const std::u16string page = line + line + Line(u"A") + Line(u"B");
  EXPECT_EQ(communication_.CleanEntireResponse(page, line), page.substr(80));
}

TEST_F(TstCommunicationTest, CleaningGoesOnWhereTheSecondFindLeadsFurther) {
  const std::u16string line = Line(u"SAME");
  const std::u16string page = line + Line(u"A") + line + Line(u"B") + Line(u"C");
  // First find at 1: what is left starts at A. Second find at 81 of it: cut at 161 of the page, which starts with the
  // line. Third find at 1: back to the text that starts at A.
  EXPECT_EQ(communication_.CleanEntireResponse(page, line), page.substr(80));
}

TEST_F(TstCommunicationTest, CleaningEndsWhereNothingIsLeft) {
  const std::u16string line = Line(u"SAME");
  EXPECT_EQ(communication_.CleanEntireResponse(line, line), u"");
  EXPECT_EQ(communication_.CleanEntireResponse(u"", line), u"");
  EXPECT_EQ(communication_.CleanEntireResponse(u"no such line", line), u"");
}

TEST_F(TstCommunicationTest, NoScreenHangsTheCaller) {
  const std::u16string line = Line(u"SAME");
  std::u16string page;
  for (int i = 0; i < 1000; ++i) {
    page += line;
  }
  EXPECT_EQ(communication_.CleanEntireResponse(page, line), page.substr(80));
}

TEST_F(TstCommunicationTest, OneScreenCostsExactlyTheseToolkitCalls) {
  RetrieveCurrent({Screen({u"TST 1", u"END"})});
  EXPECT_EQ(toolkit_->calls,
            (Calls{"SetOption 322 False", "SendCommand", "ResponseText",
                   // is it a TST
                   "CreateParser", "Parse 6", "FindNode 602",
                   // do more screens follow
                   "CreateParser", "Parse 6", "FindNode 561",
                   // the whole
                   "CreateParser", "Parse 6", "FindNode 602", "Children 0", "Next 0", "HasWarning 602", "TypeId 602",
                   // the header
                   "Text 602", "ErrorText 602", "Children 602", "Next 602", "Next 0"}));
}

TEST_F(TstCommunicationTest, EachFurtherScreenCostsExactlyEightToolkitCallsMore) {
  RetrieveCurrent({Screen({u"TST 1", u"A", u"B", u"END"})});
  const std::size_t one = toolkit_->calls.size();
  toolkit_->calls.clear();
  RetrieveCurrent({Screen({u"TST 1", u"A", u"B", u"MORE"}), Screen({u"A", u"B", u"END"})});
  EXPECT_EQ(toolkit_->calls.size(), one + 8);
}

TEST_F(TstCommunicationTest, AFailureAtAnyToolkitCallNeverEscapesAndTheNextRetrievalIsRight) {
  const Screens screens{Screen({u"TST 1", u"A", u"B", u"MORE"}), Screen({u"A", u"B", u"END"})};
  ASSERT_EQ(RetrieveCurrent(screens), 0);
  const std::vector<Entry> cleanLog = toolkit_->log;
  const std::size_t calls = toolkit_->calls.size();
  for (std::size_t n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    toolkit_->log.clear();
    toolkit_->FailAt(n, RuntimeError(-2147467259, u"Toolkit", u"It broke"));
    EXPECT_EQ(RetrieveCurrent(screens), 0) << "nothing but 0 was held until the parser answered";
    ASSERT_LE(toolkit_->log.size(), cleanLog.size());
    EXPECT_TRUE(std::equal(toolkit_->log.begin(), toolkit_->log.end(), cleanLog.begin()))
        << "a prefix of the clean log";
    toolkit_->log.clear();
    EXPECT_EQ(RetrieveCurrent(screens), 0);
    EXPECT_EQ(toolkit_->log, cleanLog);
  }
}

}  // namespace
}  // namespace qorltst
