// The public table of the log sink. See LoggerObject.h.
#include "simulator/automation/LoggerObject.h"

#include <array>

#include "simulator/automation/Arguments.h"

namespace qorltst::simulator {
namespace {

toolkit::HostLogger& LoggerOf(Object& object) { return static_cast<LoggerObject&>(object).Logger(); }

Value CallSetApplication(Object& object, Arguments arguments) {
  LoggerOf(object).SetApplication(TextIn(arguments[0]));
  return {};
}

Value CallWrite(Object& object, Arguments arguments) {
  LoggerOf(object).Write(NumberIn(arguments[0]), TextIn(arguments[1]), NumberIn(arguments[2]), TextIn(arguments[3]));
  return {};
}

constexpr std::array kApplicationParameters{Parameter{u"Name", ValueType::String}};
constexpr std::array kWriteParameters{Parameter{u"Kind", ValueType::Long}, Parameter{u"Source", ValueType::String},
                                      Parameter{u"Number", ValueType::Long}, Parameter{u"Message", ValueType::String}};

}  // namespace

struct LoggerObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"SetApplication",
       .access = Method{kApplicationParameters, ValueType::Nothing, &CallSetApplication},
       .help = u"Names the application in whose name entries are written."},
      {.name = u"Write",
       .access = Method{kWriteParameters, ValueType::Nothing, &CallWrite},
       .help = u"Writes one entry."},
  }};
};

constinit const ClassDescription LoggerObject::kDescription =
    Table::kMembers.Describe(u"HostLogger", u"Simulated log sink.", &CreateObject<LoggerObject>);

LoggerObject::LoggerObject(toolkit::Toolkit& toolkit) : logger_(toolkit.CreateLogger()) {}

}  // namespace qorltst::simulator
