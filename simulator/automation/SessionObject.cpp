// The public tables of sessions and responses. See SessionObject.h.
#include "simulator/automation/SessionObject.h"

#include <array>

#include "simulator/RecordingReader.h"
#include "simulator/Utf.h"
#include "simulator/automation/Arguments.h"

namespace qorltst::simulator {
namespace {

constexpr std::int32_t kFileNotFound = 53;

RecordedSession& SessionOf(Object& object) { return static_cast<SessionObject&>(object).Session(); }

Value CallSendCommand(Object& object, Arguments arguments) {
  Ref<toolkit::HostResponse> response = SessionOf(object).SendCommand(TextIn(arguments[0]), FlagArgument(arguments[1]));
  return response ? Ref<Object>(Make<ResponseObject>(std::move(response))) : nullptr;
}

Value CallSetOption(Object& object, Arguments arguments) {
  SessionOf(object).SetOption(NumberIn(arguments[0]), FlagArgument(arguments[1]));
  return {};
}

Value CallLoad(Object& object, Arguments arguments) {
  static_cast<SessionObject&>(object).Load(TextIn(arguments[0]));
  return {};
}

Value CallAnswerNothingAt(Object& object, Arguments arguments) {
  SessionOf(object).AnswerNothingAt(CallArgument(arguments[0]));
  return {};
}

Value CallFailAt(Object& object, Arguments arguments) {
  SessionOf(object).FailAt(CallArgument(arguments[0]), NumberIn(arguments[1]));
  return {};
}

Value CallCalls(Object& object, Arguments /*none*/) { return static_cast<std::int32_t>(SessionOf(object).Calls()); }

Value CallCommand(Object& object, Arguments arguments) {
  const auto& commands = SessionOf(object).Commands();
  const std::size_t call = CallArgument(arguments[0]);
  if (call > commands.size()) {
    throw toolkit::RuntimeError(toolkit::kSubscriptOutOfRange);
  }
  return commands[call - 1].text;
}

Value CallText(Object& object, Arguments /*none*/) { return static_cast<ResponseObject&>(object).Response().Text(); }

constexpr std::array kSendParameters{Parameter{u"Command", ValueType::String}, Parameter{u"Wait", ValueType::Boolean}};
constexpr std::array kOptionParameters{Parameter{u"Option", ValueType::Long}, Parameter{u"Value", ValueType::Any}};
constexpr std::array kLoadParameters{Parameter{u"Path", ValueType::String}};
constexpr std::array kCallParameters{Parameter{u"Call", ValueType::Long}};
constexpr std::array kFailParameters{Parameter{u"Call", ValueType::Long}, Parameter{u"Number", ValueType::Long}};

}  // namespace

struct SessionObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"SendCommand",
       .access = Method{kSendParameters, ValueType::Object, &CallSendCommand},
       .help = u"Answers a command with a recorded screen."},
      {.name = u"SetOption",
       .access = Method{kOptionParameters, ValueType::Nothing, &CallSetOption},
       .help = u"Notes a session option."},
      {.name = u"Load",
       .access = Method{kLoadParameters, ValueType::Nothing, &CallLoad},
       .help = u"Takes the recording in a session file."},
      {.name = u"AnswerNothingAt",
       .access = Method{kCallParameters, ValueType::Nothing, &CallAnswerNothingAt},
       .help = u"The n-th command gets no response."},
      {.name = u"FailAt",
       .access = Method{kFailParameters, ValueType::Nothing, &CallFailAt},
       .help = u"The n-th command raises a runtime error."},
      {.name = u"Calls",
       .access = Method{{}, ValueType::Long, &CallCalls, true},
       .help = u"How many commands were sent."},
      {.name = u"Command",
       .access = Method{kCallParameters, ValueType::String, &CallCommand, true},
       .help = u"The n-th command."},
  }};
};

constinit const ClassDescription SessionObject::kDescription =
    Table::kMembers.Describe(u"RecordedSession", u"Simulated host session.", &CreateObject<SessionObject>);

struct ResponseObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Method{{}, ValueType::String, &CallText, true}, .help = u"The screen."},
  }};
};

constinit const ClassDescription ResponseObject::kDescription =
    Table::kMembers.Describe(u"HostResponse", u"Simulated host response.", nullptr);

RecordedSession& SessionObject::Session() const {
  if (!session_) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  return *session_;
}

void SessionObject::Load(std::u16string_view path) {
  try {
    session_ = RecordedSession::Load(path);
  } catch (const RecordingError& error) {
    throw toolkit::RuntimeError(kFileNotFound, u"QorlHostToolkit.RecordedSession", ToUtf16(error.what()));
  }
}

}  // namespace qorltst::simulator
