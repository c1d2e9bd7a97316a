// The playing session; see simulator/RecordedSession.h.
#include <gtest/gtest.h>

#include "DisplaySupport.h"
#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

const std::u16string kNoSuchCommand = Screen({u"CHECK ENTRY - COMMAND NOT KNOWN"});
const std::u16string kNoFurtherScreens = Screen({u"CHECK ENTRY - NO FURTHER SCREENS"});

Ref<RecordedSession> Session() {
  return Make<RecordedSession>(Recording{{u"TQT", {u"first", u"second", u"third"}}, {u"RT", {u"other"}}, {u"NIL", {}}});
}

/// The text of the answer.
std::u16string Ask(const Ref<RecordedSession>& session, std::u16string_view command) {
  const auto response = session->SendCommand(command, true);
  return response ? response->Text() : u"<nothing>";
}

std::int32_t ErrorOf(const Ref<RecordedSession>& session, std::u16string_view command) {
  try {
    session->SendCommand(command, true);
  } catch (const toolkit::RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(RecordedSession, AnswersACommandWithItsFirstScreenAndMovesDown) {
  const auto session = Session();
  EXPECT_EQ(Ask(session, u"TQT"), u"first");
  EXPECT_EQ(Ask(session, u"MD"), u"second");
  EXPECT_EQ(Ask(session, u"MD"), u"third");
}

TEST(RecordedSession, SaysThatNothingFollowsTheLastScreen) {
  const auto session = Session();
  Ask(session, u"RT");
  EXPECT_EQ(Ask(session, u"MD"), kNoFurtherScreens);
  EXPECT_EQ(Ask(session, u"MD"), kNoFurtherScreens);
}

TEST(RecordedSession, HasNothingToMoveDownToBeforeADisplay) { EXPECT_EQ(Ask(Session(), u"MD"), kNoFurtherScreens); }

TEST(RecordedSession, StartsADisplayAgainWhenItIsAskedForAgain) {
  const auto session = Session();
  Ask(session, u"TQT");
  Ask(session, u"MD");
  EXPECT_EQ(Ask(session, u"TQT"), u"first");
  EXPECT_EQ(Ask(session, u"MD"), u"second");
}

TEST(RecordedSession, DoesNotKnowOtherCommands) {
  EXPECT_EQ(Ask(Session(), u"XX"), kNoSuchCommand);
  EXPECT_EQ(Ask(Session(), u"tqt"), kNoSuchCommand);
}

TEST(RecordedSession, KeepsItsPlaceAfterAnUnknownCommand) {
  const auto session = Session();
  Ask(session, u"TQT");
  Ask(session, u"XX");
  EXPECT_EQ(Ask(session, u"MD"), u"second");
}

TEST(RecordedSession, AnswersWithScreensThatAreNoTstWhenItRefuses) {
  for (const std::u16string& text : {kNoSuchCommand, kNoFurtherScreens}) {
    const Parsed parsed = Parsed::FromText(text);
    EXPECT_EQ(parsed.result, toolkit::kParseSuccess);
    EXPECT_FALSE(parsed.parser->HasChildren());
  }
}

TEST(RecordedSession, GivesNoAnswerWhereNoneIsRecorded) { EXPECT_FALSE(Session()->SendCommand(u"NIL", true)); }

TEST(RecordedSession, GivesNoAnswerAtTheCallThatItIsTold) {
  const auto session = Session();
  session->AnswerNothingAt(2);
  EXPECT_EQ(Ask(session, u"TQT"), u"first");
  EXPECT_EQ(Ask(session, u"MD"), u"<nothing>");
  EXPECT_EQ(Ask(session, u"MD"), u"second");
}

TEST(RecordedSession, FailsAtTheCallThatItIsTold) {
  const auto session = Session();
  session->FailAt(2, 3002);
  EXPECT_EQ(ErrorOf(session, u"TQT"), 0);
  EXPECT_EQ(ErrorOf(session, u"MD"), 3002);
  EXPECT_EQ(Ask(session, u"MD"), u"second");
}

TEST(RecordedSession, RemembersCommandsAndOptions) {
  const auto session = Session();
  session->FailAt(1, 5);
  EXPECT_EQ(ErrorOf(session, u"TQT"), 5);
  session->SendCommand(u"MD", false);
  session->SetOption(322, false);
  EXPECT_EQ(session->Calls(), 2U);
  EXPECT_EQ(session->Commands(), (std::vector<RecordedSession::Command>{{u"TQT", true}, {u"MD", false}}));
  EXPECT_EQ(session->Options(), (std::vector<RecordedSession::Option>{{322, false}}));
}

TEST(RecordedSession, PlaysASessionFile) {
  const auto session = RecordedSession::Load(SourceFolder() / "examples/displays/not-a-tst.txt");
  EXPECT_EQ(Ask(session, u"TQT"), Screen({u"NO STORED TICKET IN THIS RESERVATION", u">"}));
}

TEST(RecordedSession, DoesNotPlayAFileThatIsMissing) {
  EXPECT_THROW(static_cast<void>(RecordedSession::Load("no-such-file.txt")), RecordingError);
}

}  // namespace
}  // namespace qorltst::simulator
