// Tables of the test classes. See TestRecord.h.
#include "support/TestRecord.h"

#include <array>
#include <new>
#include <stdexcept>

#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
namespace {

using Arguments = std::span<const Value>;

TestRecord& RecordOf(Object& object) { return static_cast<TestRecord&>(object); }

Value CallEcho(Object& /*object*/, Arguments arguments) { return arguments[0]; }

std::u16string TextOr(const Value& value, std::u16string_view otherwise) {
  const auto* const text = std::get_if<std::u16string>(&value);
  return text != nullptr ? *text : std::u16string(otherwise);
}

/// Shows which arguments arrived: those left out as "-".
Value CallJoin(Object& /*object*/, Arguments arguments) {
  const auto* const number = std::get_if<std::int32_t>(&arguments[2]);
  return TextOr(arguments[0], u"-") + u"," + TextOr(arguments[1], u"-") + u"," +
         (number != nullptr ? std::u16string(static_cast<std::size_t>(*number), u'#') : u"-");
}

/// Tells the kind of an argument of any type: 0 nothing, 1 number, 2 truth value, 3 string.
Value CallKindOf(Object& /*object*/, Arguments arguments) {
  const Value& value = arguments[0];
  return std::int32_t{std::holds_alternative<std::int32_t>(value)     ? 1
                      : std::holds_alternative<bool>(value)           ? 2
                      : std::holds_alternative<std::u16string>(value) ? 3
                                                                      : 0};
}

Value CallRaise(Object& /*object*/, Arguments arguments) {
  switch (std::get<std::int32_t>(arguments[0])) {
    case -1:
      throw std::bad_alloc();
    case -2:
      throw std::logic_error("unexpected");
    case -3:
      throw 3;
    default:
      throw toolkit::RuntimeError(std::get<std::int32_t>(arguments[0]), u"Test.Source", u"Test description");
  }
}

Value CallTakeSession(Object& object, Arguments arguments) {
  RecordOf(object).session = std::get<Ref<toolkit::HostSession>>(arguments[0]);
  return std::int32_t{RecordOf(object).session ? 1 : 0};
}

Value CallSix(Object& /*object*/, Arguments arguments) {
  std::int32_t sum = 0;
  for (const Value& argument : arguments) {
    sum = sum * 10 + std::get<std::int32_t>(argument);
  }
  return sum;
}

void PutHolder(Object& object, const Value& value) {
  const auto& given = std::get<Ref<Object>>(value);
  if (!given) {
    throw toolkit::RuntimeError(toolkit::kObjectNotSet);
  }
  RecordOf(object).holder = given;
}

void PutName(Object& object, const Value& value) { RecordOf(object).text = std::get<std::u16string>(value); }

Value CallName(Object& object, Arguments /*none*/) { return RecordOf(object).text; }

constexpr std::array kLong{Parameter{u"Value", ValueType::Long}};
constexpr std::array kShort{Parameter{u"Value", ValueType::Short}};
constexpr std::array kBoolean{Parameter{u"Value", ValueType::Boolean}};
constexpr std::array kObject{Parameter{u"Value", ValueType::Object}};
constexpr std::array kSession{Parameter{u"objSession", ValueType::HostSession}};
constexpr std::array kAny{Parameter{u"Value", ValueType::Any}};
constexpr std::array kTexts{Parameter{u"First", ValueType::String}, Parameter{u"Second", ValueType::String, true},
                            Parameter{u"Count", ValueType::Long, true}};
constexpr std::array kFive{Parameter{u"A", ValueType::Long}, Parameter{u"B", ValueType::Short},
                           Parameter{u"C", ValueType::Long}, Parameter{u"D", ValueType::Short},
                           Parameter{u"E", ValueType::Long}};

const ClassDescription* AnyType() { return nullptr; }

}  // namespace

struct TestRecord::Table {
  static Object* Child(Object& object) { return RecordOf(object).child.Get(); }
  static Object* Holder(Object& object) { return RecordOf(object).holder.Get(); }

  static constexpr MemberTable kMembers{{
      {.name = u"Text",
       .access = Field<&TestRecord::text>(),
       .getGuard = u"TestRecord:Text Property Get",
       .help = u"Guarded."},
      {.name = u"Unguarded", .access = Field<&TestRecord::text>(), .help = u"Not guarded."},
      {.name = u"Flag", .access = Field<&TestRecord::flag>(), .help = u"A flag."},
      {.name = u"When", .access = Field<&TestRecord::when>(), .help = u"A date."},
      {.name = u"Amount", .access = Field<&TestRecord::amount>(), .help = u"An amount."},
      {.name = u"Number",
       .access = LongField{[](const Object& object) { return static_cast<const TestRecord&>(object).number; }},
       .help = u"A number."},
      {.name = u"Child", .access = ObjectField{&Child, &AnyType}, .help = u"An object."},
      {.name = u"Holder",
       .access = ObjectField{&Holder, &AnyType},
       .put = {ValueType::Automation, true, &PutHolder},
       .help = u"A replaceable object."},
      {.name = u"Name",
       .access = Method{{}, ValueType::String, &CallName, true},
       .put = {ValueType::String, false, &PutName},
       .help = u"A property with a setter."},
      {.name = u"EchoLong", .access = Method{kLong, ValueType::Long, &CallEcho}, .help = u"Gives its argument."},
      {.name = u"EchoShort", .access = Method{kShort, ValueType::Long, &CallEcho}, .help = u"Gives its argument."},
      {.name = u"EchoBoolean",
       .access = Method{kBoolean, ValueType::Boolean, &CallEcho},
       .help = u"Gives its argument."},
      {.name = u"EchoObject", .access = Method{kObject, ValueType::Object, &CallEcho}, .help = u"Gives its argument."},
      {.name = u"Join", .access = Method{kTexts, ValueType::String, &CallJoin}, .help = u"Shows its arguments."},
      {.name = u"KindOf", .access = Method{kAny, ValueType::Long, &CallKindOf}, .help = u"Tells its argument's kind."},
      {.name = u"Raise", .access = Method{kLong, ValueType::String, &CallRaise}, .help = u"Fails."},
      {.name = u"TakeSession",
       .access = Method{kSession, ValueType::Long, &CallTakeSession},
       .help = u"Keeps a session."},
      {.name = u"Digits", .access = Method{kFive, ValueType::Long, &CallSix}, .help = u"Joins five digits."},
  }};
};

constinit const ClassDescription TestRecord::kDescription =
    Table::kMembers.Describe(u"TestRecord", u"A class for tests.", &CreateObject<TestRecord>);

struct PlainRecord::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Amount", .access = Field<&PlainRecord::amount>(), .help = u"An amount."},
      {.name = u"Text", .access = Field<&PlainRecord::text>(), .help = u"A text."},
      {.name = u"When", .access = Field<&PlainRecord::when>(), .help = u"A date."},
      {.name = u"Flag", .access = Field<&PlainRecord::flag>(), .help = u"A flag."},
  }};
};

constinit const ClassDescription PlainRecord::kDescription =
    Table::kMembers.Describe(u"PlainRecord", u"A class of plain properties for tests.", nullptr);

}  // namespace qorltst::automation::test
