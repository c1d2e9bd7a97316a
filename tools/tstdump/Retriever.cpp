// See Retriever.h.
#include "tools/tstdump/Retriever.h"

#include <algorithm>
#include <array>

#include "simulator/RecordedSession.h"
#include "toolkit/HostNumbers.h"

namespace qorltst::tstdump {
namespace {

/// What the component writes when it has read a ticket to its end.
constexpr std::u16string_view kEndSource = u"QorlTST.TstParser.ParseTst";
constexpr std::u16string_view kEndMessage = u"End of ParseTst(in TstParser) Function";

struct Meaning {
  std::int32_t result;
  std::string_view text;
};

constexpr std::array kMeanings{
    Meaning{toolkit::kNoError, "parsed"},
    Meaning{toolkit::kParsingWarning, "parsed with warnings"},
    Meaning{toolkit::kUnintendedResponse, "not a stored ticket"},
    Meaning{toolkit::kParsingError, "cannot be parsed"},
    Meaning{toolkit::kSessionProblem, "no answer"},
};

bool IsParsed(std::int32_t result) { return result == toolkit::kNoError || result == toolkit::kParsingWarning; }

}  // namespace

/// Keeps the entries of one retrieval: errors or all, and what the last one said.
class Retriever::Logger final : public toolkit::HostLogger {
 public:
  explicit Logger(bool keepsAll) : keepsAll_(keepsAll) {}

  void SetApplication(std::u16string_view name) override { application_ = name; }

  void Write(std::int32_t kind, std::u16string_view source, std::int32_t number, std::u16string_view message) override {
    lastSource_ = source;
    lastMessage_ = message;
    if (keepsAll_ || kind == toolkit::kLogError) {
      entries_.push_back({application_, kind, std::u16string(source), number, std::u16string(message)});
    }
  }

  std::vector<simulator::LogEntry> Take() { return std::exchange(entries_, {}); }

  /// The procedure that wrote last, unless it was the end of a parse.
  [[nodiscard]] std::u16string BrokenOffIn() const {
    return lastSource_ == kEndSource && lastMessage_ == kEndMessage ? std::u16string() : lastSource_;
  }

 private:
  bool keepsAll_;
  std::u16string application_;
  std::u16string lastSource_;
  std::u16string lastMessage_;
  std::vector<simulator::LogEntry> entries_;
};

bool Retrieved::IsGood() const {
  return IsParsed(result) && brokenOffIn.empty() &&
         std::ranges::count(log, toolkit::kLogError, &simulator::LogEntry::kind) == 0;
}

bool Retrieved::HasWarnings() const { return result == toolkit::kParsingWarning; }

std::string_view MeaningOf(std::int32_t result) {
  const auto* const found = std::ranges::find(kMeanings, result, &Meaning::result);
  return found != kMeanings.end() ? found->text : "failed";
}

Retriever::Retriever(bool keepsAll) : toolkit_(Make<simulator::SimulatedToolkit>()), logger_(Make<Logger>(keepsAll)) {
  // One for all: each of the component's objects asks for a logger of its own.
  toolkit_->SetLoggerSource([logger = logger_] { return logger; });
}

Retriever::~Retriever() = default;

Retrieved Retriever::Retrieve(Display display) {
  const auto session = Make<simulator::RecordedSession>(std::move(display.recording));
  Retrieved retrieved{std::move(display), 0, Make<TST>(*toolkit_), {}, {}};
  const std::u16string& command = retrieved.display.command;
  retrieved.result = command == kCurrentCommand ? retrieved.ticket->RetrieveCurrentTst(session.Get())
                                                : retrieved.ticket->RetrieveSpecificTst(session.Get(), command);
  if (IsParsed(retrieved.result)) {
    retrieved.brokenOffIn = logger_->BrokenOffIn();
  } else {
    retrieved.ticket = nullptr;
  }
  retrieved.log = logger_->Take();
  return retrieved;
}

}  // namespace qorltst::tstdump
