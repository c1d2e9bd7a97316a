// Entries, their texts and the public table of the log front. See EtLog.h.
#include "frame/EtLog.h"

#include <algorithm>
#include <array>
#include <memory>

#include "frame/modErrorHandling.h"

namespace qorltst {
namespace {

constexpr std::u16string_view kApplication = u"QorlTST";

constexpr std::u16string_view kUsualPrefix = u"QorlTST.";

struct HostErrorRow {
  std::int32_t number;
  std::u16string_view text;
};

constexpr std::array kHostErrorTexts{
    HostErrorRow{toolkit::kUnintendedResponse, u"Can not retrieve the intended response"},
    HostErrorRow{toolkit::kNotSignedIn, u"User not sign in"},
    HostErrorRow{toolkit::kParsingWarning, u"Parsing Warning"},
    HostErrorRow{toolkit::kParsingError, u"Parsing Error"},
    HostErrorRow{toolkit::kTimeOut, u"Time out."},
    HostErrorRow{toolkit::kUnknownHost, u"Unknown host."},
    HostErrorRow{toolkit::kHostDisconnected, u"The host is disconnected."},
    HostErrorRow{toolkit::kNoMoreSessions, u"There is no more session available."},
    HostErrorRow{toolkit::kSessionProblem, u"There is a problem with the connected session."},
};

/// Two texts as one. Most are as short as a source, and take no memory.
class Joined {
 public:
  Joined(std::u16string_view first, std::u16string_view second) {
    const std::size_t size = first.size() + second.size();
    char16_t* place = short_.data();
    if (size > short_.size()) {
      long_ = std::make_unique<char16_t[]>(size);
      place = long_.get();
    }
    first.copy(place, first.size());
    second.copy(place + first.size(), second.size());
    view_ = {place, size};
  }
  Joined(const Joined&) = delete;
  Joined& operator=(const Joined&) = delete;

  [[nodiscard]] std::u16string_view View() const noexcept { return view_; }

 private:
  std::array<char16_t, 96> short_;
  std::unique_ptr<char16_t[]> long_;
  std::u16string_view view_;
};

/// Every operation resumes after an error, as if nothing had happened.
template <class Step>
void Ignoring(Step&& step) noexcept {
  try {
    step();
  } catch (...) {  // NOLINT(bugprone-empty-catch): a log never disturbs its caller
  }
}

EtLog& LogOf(Object& object) { return static_cast<EtLog&>(object); }

constexpr std::array kLogParameters{Parameter{u"strSource", ValueType::String, true},
                                    Parameter{u"strMessage", ValueType::String, true}};
constexpr std::array kHostErrorParameters{Parameter{u"errNumber", ValueType::Long},
                                          Parameter{u"strSource", ValueType::String, true}};
constexpr std::array kRuntimeErrorParameters{
    Parameter{u"errNumber", ValueType::Short}, Parameter{u"errDesc", ValueType::String},
    Parameter{u"strSource", ValueType::String, true}, Parameter{u"strMsg", ValueType::String, true},
    Parameter{u"lHostError", ValueType::Long, true}};
constexpr std::array kTraceParameters{Parameter{u"strMsg", ValueType::String},
                                      Parameter{u"strSource", ValueType::String, true}};

using Arguments = std::span<const Value>;

/// The two operations for runtime errors differ in the kind of their entry only.
template <void (EtLog::*Operation)(std::int16_t, std::u16string_view, std::u16string_view, std::u16string_view,
                                   std::int32_t) noexcept>
Value CallRuntimeError(Object& object, Arguments arguments) {
  (LogOf(object).*Operation)(static_cast<std::int16_t>(NumberIn(arguments[0])), TextIn(arguments[1]),
                             TextIn(arguments[2]), TextIn(arguments[3]), NumberIn(arguments[4]));
  return {};
}

template <void (EtLog::*Operation)(std::int32_t, std::u16string_view) noexcept>
Value CallHostError(Object& object, Arguments arguments) {
  (LogOf(object).*Operation)(NumberIn(arguments[0]), TextIn(arguments[1]));
  return {};
}

template <void (EtLog::*Operation)(std::u16string_view, std::u16string_view) noexcept>
Value CallTexts(Object& object, Arguments arguments) {
  (LogOf(object).*Operation)(TextIn(arguments[0]), TextIn(arguments[1]));
  return {};
}

Value ReadSource(Object& object, Arguments /*none*/) { return std::u16string(LogOf(object).Source()); }

void PutSource(Object& object, const Value& value) { LogOf(object).SetSource(TextIn(value)); }

}  // namespace

struct EtLog::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Log",
       .access = Method{kLogParameters, ValueType::Nothing, &CallTexts<&EtLog::Log>},
       .help = u"Writes the pending runtime error, or the message as an error entry where none is pending."},
      {.name = u"LogHostError",
       .access = Method{kHostErrorParameters, ValueType::Nothing, &CallHostError<&EtLog::LogHostError>},
       .help = u"Writes a host error number with its text as an error entry."},
      {.name = u"LogVbError",
       .access = Method{kRuntimeErrorParameters, ValueType::Nothing, &CallRuntimeError<&EtLog::LogVbError>},
       .help = u"Writes a runtime error as an error entry, then a host error unless it is 0."},
      {.name = u"Source",
       .access = Method{{}, ValueType::String, &ReadSource, true},
       .put = {ValueType::String, false, &PutSource},
       .help = u"The prefix of the source of every entry."},
      {.name = u"LogParseWarning",
       .access = Method{kHostErrorParameters, ValueType::Nothing, &CallHostError<&EtLog::LogParseWarning>},
       .help = u"Writes a host error number with its text as a warning entry."},
      {.name = u"LogVbWarning",
       .access = Method{kRuntimeErrorParameters, ValueType::Nothing, &CallRuntimeError<&EtLog::LogVbWarning>},
       .help = u"Writes a runtime error as a warning entry, then a host error unless it is 0."},
      {.name = u"LogTrace",
       .access = Method{kTraceParameters, ValueType::Nothing, &CallTexts<&EtLog::LogTrace>},
       .help = u"Writes a trace entry."},
  }};
};

constinit const ClassDescription EtLog::kDescription =
    Table::kMembers.Describe(u"EtLog", u"Writes entries to the host toolkit's logger.", &CreateObject<EtLog>);

std::u16string_view HostErrorText(std::int32_t number) noexcept {
  const auto* const found = std::ranges::find(kHostErrorTexts, number, &HostErrorRow::number);
  return found != kHostErrorTexts.end() ? found->text : std::u16string_view();
}

EtLog::EtLog(toolkit::Toolkit& toolkit) noexcept : toolkit_(&toolkit) {}

EtLog::~EtLog() = default;

std::u16string_view EtLog::Source() const noexcept { return prefix_ ? std::u16string_view(*prefix_) : kUsualPrefix; }

void EtLog::SetSource(std::u16string_view prefix) { prefix_ = std::make_unique<std::u16string>(prefix); }

void EtLog::Log(std::u16string_view source, std::u16string_view message) noexcept {
  if (const RuntimeError* const pending = PendingError::Current()) {
    WriteRuntimeError(toolkit::kLogError, pending->Description(), source, message, toolkit::kSessionProblem);
  } else {
    Write(toolkit::kLogError, source, 0, message);
  }
}

void EtLog::LogHostError(std::int32_t number, std::u16string_view source) noexcept {
  Write(toolkit::kLogError, source, number, HostErrorText(number));
}

void EtLog::LogVbError(std::int16_t /*number*/, std::u16string_view description, std::u16string_view source,
                       std::u16string_view message, std::int32_t hostError) noexcept {
  WriteRuntimeError(toolkit::kLogError, description, source, message, hostError);
}

void EtLog::LogParseWarning(std::int32_t number, std::u16string_view source) noexcept {
  Write(toolkit::kLogWarning, source, number, HostErrorText(number));
}

void EtLog::LogVbWarning(std::int16_t /*number*/, std::u16string_view description, std::u16string_view source,
                         std::u16string_view message, std::int32_t hostError) noexcept {
  WriteRuntimeError(toolkit::kLogWarning, description, source, message, hostError);
}

void EtLog::LogTrace(std::u16string_view message, std::u16string_view source) noexcept {
  Write(toolkit::kLogTrace, source, 1, message);
}

void EtLog::WriteRuntimeError(toolkit::LogKind kind, std::u16string_view description, std::u16string_view source,
                              std::u16string_view message, std::int32_t hostError) noexcept {
  const RuntimeError* const pending = PendingError::Current();
  Ignoring([&] {
    const std::u16string text = std::u16string(description).append(u" - ").append(message);
    Write(kind, source, pending != nullptr ? pending->Number() : 0, text);
  });
  if (hostError != 0) {
    LogHostError(hostError, source);
  }
}

void EtLog::Write(toolkit::LogKind kind, std::u16string_view source, std::int32_t number,
                  std::u16string_view message) noexcept {
  // The trap of `Ignoring`, written out: every line of every log passes here.
  try {
    if (!logger_) {
      MakeLogger();
    }
    logger_->Write(kind, Joined(Source(), source).View(), number, message);
  } catch (...) {  // NOLINT(bugprone-empty-catch): as there
  }
}

void EtLog::MakeLogger() {
  logger_ = toolkit_->CreateLogger();
  Ignoring([this] { logger_->SetApplication(kApplication); });
}

}  // namespace qorltst
