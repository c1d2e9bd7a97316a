// The public table of the log reader. See LogReaderObject.h.
#include "simulator/automation/LogReaderObject.h"

#include <array>

#include "simulator/LogEntry.h"
#include "simulator/Utf.h"
#include "simulator/automation/Arguments.h"
#include "simulator/automation/ProcessToolkit.h"

namespace qorltst::simulator {
namespace {

constexpr std::int32_t kDefaultMember = 0;

std::u16string LineOf(const LogEntry& entry) { return ToUtf16(FormatLogEntry(entry)); }

Value CallCount(Object& /*object*/, Arguments /*none*/) { return static_cast<std::int32_t>(ProcessLog().Count()); }

Value CallItem(Object& /*object*/, Arguments arguments) {
  const auto entries = ProcessLog().Entries();
  const std::int32_t index = NumberIn(arguments[0]);
  if (index < 1 || static_cast<std::size_t>(index) > entries.size()) {
    throw toolkit::RuntimeError(toolkit::kSubscriptOutOfRange);
  }
  return LineOf(entries[static_cast<std::size_t>(index) - 1]);
}

Value CallText(Object& /*object*/, Arguments /*none*/) {
  std::u16string text;
  for (const LogEntry& entry : ProcessLog().Entries()) {
    text.append(LineOf(entry)).append(u"\r\n");
  }
  return text;
}

Value CallClear(Object& /*object*/, Arguments /*none*/) {
  ProcessLog().Clear();
  return {};
}

constexpr std::array kItemParameters{Parameter{u"Index", ValueType::Long}};

}  // namespace

struct LogReaderObject::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Count",
       .access = Method{{}, ValueType::Long, &CallCount, true},
       .help = u"How many entries were written."},
      {.name = u"Item",
       .access = Method{kItemParameters, ValueType::String, &CallItem},
       .dispatchId = kDefaultMember,
       .help = u"The entry at this position, counted from 1, as a line."},
      {.name = u"Text",
       .access = Method{{}, ValueType::String, &CallText, true},
       .help = u"All entries, one line each."},
      {.name = u"Clear", .access = Method{{}, ValueType::Nothing, &CallClear}, .help = u"Forgets all entries."},
  }};
};

constinit const ClassDescription LogReaderObject::kDescription = Table::kMembers.Describe(
    u"LogReader", u"Reads what the loggers of this process wrote.", &CreateObject<LogReaderObject>);

}  // namespace qorltst::simulator
