// Retrieval and stitching. Positions are 1-based and every cut is kept to the letter. See TstCommunication.h.
#include "frame/TstCommunication.h"

#include <algorithm>
#include <set>

#include "frame/Screen.h"
#include "frame/TST.h"
#include "frame/TstParser.h"
#include "toolkit/HostNumbers.h"

namespace qorltst {
namespace {

using toolkit::NodeTypeId;

constexpr auto kLine = static_cast<screen::Position>(toolkit::kLineLength);

constexpr std::u16string_view kDisplayCommand = u"TQT";
constexpr std::u16string_view kMoreCommand = u"MD";

// The letter case of these sources and the three n's of "Beginnning" are meant: logs are read by these texts.
constexpr TraceTexts kDisplayTexts{
    {u"Beginning of TSTDisplay (in TstCommunication)", u"TstCommunication.TSTDisplay"},
    {u"End TSTDisplay(in TstCommunication) Function", u"TstCommunication.TSTDisplay"},
    {u"End TSTDisplay(in TstCommunication) Function with Error", u"TstCommunication.TSTDisplay"}};
constexpr TraceTexts kEntireTexts{
    {u"Beginnning of GetEntireTstToParse(in TstCommunication) Function", u"TstCommunication.GetEntireTstToParse"},
    {u"End GetEntireTstToParse(in TstCommunication) Function", u"TstCommunication.GetEntireTstToParse"},
    {u"End GetEntireTstToParse(in TstCommunication) Function with Error", u"TstCommunication.GetEntireTstToParse"}};
constexpr TraceTexts kCleanTexts{
    {u"Beginning CleanEntireResponse(in TstCommunication) Function", u"TstCommunication.CleanEntireResponse"},
    {u"End CleanEntireResponse(in TstCommunication) Function", u"TstCommunication.CleanEntireResponse"},
    {u"End CleanEntireResponse(in TstCommunication) Function with Error", u"TstCommunication.CleanEntireResponse"}};

/// Spaces up to a whole number of lines, then everything from the first NUL off, unless the text starts with it.
void PadAndCut(std::u16string& text) {
  if (const std::size_t beyond = text.size() % toolkit::kLineLength; beyond != 0) {
    text.append(toolkit::kLineLength - beyond, u' ');
  }
  // Hardly any screen has one, and counting is several times as fast as searching.
  if (std::ranges::count(text, u'\0') != 0 && text.front() != u'\0') {
    text.resize(text.find(u'\0'));
  }
}

/// The last line of a screen that holds more than spaces, stepping back line by line from the one before the last.
std::u16string_view LastLineOf(std::u16string_view page) {
  screen::Position start = screen::Length(page) - kLine - kLine;
  std::u16string_view line = screen::Middle(page, start, kLine);
  while (screen::IsBlank(line)) {
    start -= kLine;
    line = screen::Middle(page, start, kLine);
  }
  return line;
}

/// What follows the last occurrence of the line that the search comes to. Each find is reckoned in the text that is
/// left but cut from the page; this is meant. A search that comes back to a text that it had before would go on
/// for ever and ends with that text.
std::u16string_view AfterOverlap(std::u16string_view page, std::u16string_view lastLine) {
  std::u16string_view search = page;
  std::u16string_view cleaned;
  std::set<std::size_t> seen;
  while (const screen::Position found = screen::Find(search, lastLine)) {
    cleaned = screen::From(page, found + kLine);
    search = cleaned;
    if (!seen.insert(search.size()).second) {
      break;
    }
  }
  return cleaned;
}

}  // namespace

/// What the two retrieval operations do not share.
struct TstCommunication::Retrieval {
  TraceLine begin;
  bool setsOption;
  std::u16string_view noSessionSource;
  std::u16string_view hostErrorSource;
  TraceLine sessionError;
  TraceLine notATst;
};

std::int32_t TstCommunication::RetrieveCurrentTst(toolkit::HostSession* session, TST& tst) noexcept {
  static constexpr Retrieval kCurrent{
      .begin = {u"Beginning RetrieveCurrentTst(in TstCommunication) Function", u"Communication.RetrieveCurrentTST"},
      .setsOption = true,
      .noSessionSource = u"TstCommunication.RetrieveCurrentTst",
      .hostErrorSource = u"TstCommunication.RetrieveCurrentTst",
      .sessionError = {u"Session Error. End RetrieveCurrentTst(in TstCommunication) Function",
                       u"TstCommunication.RetrieveCurrentTST"},
      .notATst = {u"Not a TST. End RetrieveCurrentTst(in TstCommunication) Function",
                  u"TstCommunication.RetrieveCurrentTST"}};
  return Retrieve(kCurrent, session, kDisplayCommand, tst);
}

std::int32_t TstCommunication::RetrieveSpecificTst(toolkit::HostSession* session, std::u16string_view command,
                                                   TST& tst) noexcept {
  static constexpr Retrieval kSpecific{
      .begin = {u"Beginning RetrieveSpecificTst(in TstCommunication) Function",
                u"TstCommunication.RetrieveSpecificTST"},
      .setsOption = false,
      .noSessionSource = u"TstCommunication.RetrieveSpecificTST",
      .hostErrorSource = u"TstCommunication.RetrieveSpecificTst",
      .sessionError = {u"Session Error. End RetrieveSpecificTst(in TstCommunication) Function",
                       u"TstCommunication.RetrieveSpecificTST"},
      .notATst = {u"Not a TST. End RetrieveSpecificTst(in TstCommunication) Function",
                  u"TstCommunication.RetrieveSpecificTST"}};
  return Retrieve(kSpecific, session, command, tst);
}

std::int32_t TstCommunication::Retrieve(const Retrieval& retrieval, toolkit::HostSession* session,
                                        std::u16string_view command, TST& tst) noexcept {
  std::int32_t result = toolkit::kNoError;
  try {
    Trace(retrieval.begin);
    RetrieveUnder(result, retrieval, session, command, tst);
  } catch (...) {  // NOLINT(bugprone-empty-catch): the caller gets the code held when the failure came
  }
  return result;
}

void TstCommunication::RetrieveUnder(std::int32_t& result, const Retrieval& retrieval, toolkit::HostSession* session,
                                     std::u16string_view command, TST& tst) {
  if (session == nullptr) {
    result = SessionError(retrieval, retrieval.noSessionSource);
    return;
  }
  if (retrieval.setsOption) {
    session->SetOption(toolkit::kSessionOption, false);
  }
  const Ref<toolkit::HostResponse> response = session->SendCommand(command, true);
  if (!response) {
    result = SessionError(retrieval, retrieval.hostErrorSource);
    return;
  }
  std::u16string text = response->Text();
  PadAndCut(text);
  if (!TSTDisplay(text)) {
    result = toolkit::kUnintendedResponse;
    Log().LogHostError(result, retrieval.hostErrorSource);
    Trace(retrieval.notATst);
    return;
  }
  std::u16string entire = GetEntireTstToParse(text, *session);
  TstParser parser(Toolkit());
  result = parser.ParseTst(std::move(entire), tst);
}

std::int32_t TstCommunication::SessionError(const Retrieval& retrieval, std::u16string_view hostErrorSource) {
  Log().LogHostError(toolkit::kSessionProblem, hostErrorSource);
  Trace(retrieval.sessionError);
  return toolkit::kSessionProblem;
}

bool TstCommunication::Contains(std::u16string_view text, NodeTypeId type) const {
  const Ref<toolkit::ParseNode> parser = Toolkit().CreateParser();
  return parser->Parse(text, toolkit::kParseMode) == toolkit::kParseSuccess && parser->FindNode(type);
}

bool TstCommunication::TSTDisplay(std::u16string_view text) {
  return Traced(kDisplayTexts, [&] { return Contains(text, NodeTypeId::TstRoot); });
}

std::u16string TstCommunication::GetEntireTstToParse(std::u16string& page, toolkit::HostSession& session) {
  return Traced(kEntireTexts, [&] {
    std::u16string whole = page;
    while (Contains(page, NodeTypeId::MoreScreens)) {
      whole = screen::Left(whole, screen::Length(page) - kLine - 1);
      const std::u16string lastLine(LastLineOf(page));
      const Ref<toolkit::HostResponse> response = session.SendCommand(kMoreCommand, true);
      if (!response) {
        throw RuntimeError(toolkit::kObjectNotSet);
      }
      page = response->Text();
      whole += CleanEntireResponse(page, lastLine);
    }
    whole.resize(screen::WithoutTrailingSpaces(whole).size());
    if (whole.size() % toolkit::kLineLength == 1) {
      whole.pop_back();
    }
    return whole;
  });
}

std::u16string TstCommunication::CleanEntireResponse(std::u16string_view page, std::u16string_view lastLine) {
  return Traced(kCleanTexts, [&] {
    return std::u16string(Contains(page, NodeTypeId::MoreScreens) ? page : AfterOverlap(page, lastLine));
  });
}

}  // namespace qorltst
