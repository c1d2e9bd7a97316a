// The interface description as text. See IdlWriter.h.
#include "automation/IdlWriter.h"

#include <array>
#include <stdexcept>
#include <string>
#include <variant>

namespace qorltst::automation {
namespace {

/// Names and help strings are ASCII.
std::string Narrow(std::u16string_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (const char16_t c : text) {
    if (c >= 0x7F) {
      throw std::invalid_argument("names and help strings are written in ASCII");
    }
    if (c == u'"' || c == u'\\') {
      narrow += '\\';
    }
    narrow += static_cast<char>(c);
  }
  return narrow;
}

struct TypeName {
  ValueType type;
  const char* name;
};

constexpr std::array kTypeNames{
    TypeName{ValueType::Long, "long"},
    TypeName{ValueType::Short, "short"},
    TypeName{ValueType::Boolean, "VARIANT_BOOL"},
    TypeName{ValueType::Date, "DATE"},
    TypeName{ValueType::Currency, "CURRENCY"},
    TypeName{ValueType::String, "BSTR"},
    TypeName{ValueType::Object, "IDispatch*"},
    TypeName{ValueType::Automation, "IDispatch*"},
    TypeName{ValueType::HostSession, "IDispatch*"},
    TypeName{ValueType::Enumerator, "IUnknown*"},
};

std::string NameOf(ValueType type) {
  for (const TypeName& row : kTypeNames) {
    if (row.type == type) {
      return row.name;
    }
  }
  throw std::invalid_argument("a dual interface cannot pass this type");
}

/// Virtual tables pass every argument in one machine word.
std::string ArgumentTypeOf(ValueType type) {
  if (type == ValueType::Date || type == ValueType::Currency) {
    throw std::invalid_argument("dates and amounts are results only");
  }
  return NameOf(type);
}

std::string InterfaceOf(const ClassDescription& description) { return "_" + Narrow(description.name); }

struct ResultType {
  std::string operator()(const StringField& /*field*/) const { return "BSTR"; }
  std::string operator()(const LongField& /*field*/) const { return "long"; }
  std::string operator()(const BooleanField& /*field*/) const { return "VARIANT_BOOL"; }
  std::string operator()(const DateField& /*field*/) const { return "DATE"; }
  std::string operator()(const CurrencyField& /*field*/) const { return "CURRENCY"; }
  std::string operator()(const ObjectField& field) const {
    const ClassDescription* const type = field.type();
    // A property that may be replaced may hold any automation object.
    return type != nullptr && !replaceable ? InterfaceOf(*type) + "*" : "IDispatch*";
  }
  std::string operator()(const Method& method) const {
    return method.result == ValueType::Nothing ? std::string() : NameOf(method.result);
  }
  bool replaceable = false;
};

/// What an optional argument is for a caller of the virtual table that leaves it out.
std::string DefaultOf(ValueType type) {
  switch (type) {
    case ValueType::String:
      return "\"\"";
    case ValueType::Long:
    case ValueType::Short:
    case ValueType::Boolean:
      return "0";
    default:
      throw std::invalid_argument("this type cannot be optional");
  }
}

std::string ParametersOf(const Member& member) {
  std::string text;
  if (const auto* const method = std::get_if<Method>(&member.access)) {
    for (const Parameter& parameter : method->parameters) {
      text += parameter.optional ? "[in, optional, defaultvalue(" + DefaultOf(parameter.type) + ")] " : "[in] ";
      text += ArgumentTypeOf(parameter.type) + " " + Narrow(parameter.name) + ", ";
    }
  }
  const std::string result = std::visit(ResultType{member.put.type == ValueType::Automation}, member.access);
  if (!result.empty()) {
    return text + "[out, retval] " + result + "* result";
  }
  return text.substr(0, text.empty() ? 0 : text.size() - 2);
}

bool IsProperty(const Member& member) {
  const auto* const method = std::get_if<Method>(&member.access);
  return method == nullptr || method->property;
}

void WriteMember(std::ostream& out, const ClassDescription& description, const Member& member) {
  const std::string name = Narrow(member.name);
  const std::string attributes = "    [id(" + std::to_string(description.DispatchIdOf(member)) + "), helpstring(\"" +
                                 Narrow(member.help) + "\")" + (name.starts_with('_') ? ", restricted" : "");
  out << attributes << (IsProperty(member) ? ", propget" : "") << "]\n"
      << "    HRESULT " << name << "(" << ParametersOf(member) << ");\n";
  if (member.put.call != nullptr) {
    out << attributes << (member.put.byReference ? ", propputref" : ", propput") << "]\n"
        << "    HRESULT " << name << "([in] " << ArgumentTypeOf(member.put.type) << " value);\n";
  }
}

void WriteInterface(std::ostream& out, const Library& library, const ClassDescription& description) {
  out << "  [odl, uuid(" << ToString(library.IdentityOf(description.name)->interfaceId) << "), helpstring(\""
      << Narrow(description.help) << "\"), dual, oleautomation, nonextensible]\n"
      << "  interface " << InterfaceOf(description) << " : IDispatch {\n";
  for (const Member& member : description.members) {
    WriteMember(out, description, member);
  }
  out << "  };\n\n";
}

void WriteClass(std::ostream& out, const Library& library, const ClassDescription& description) {
  out << "  [uuid(" << ToString(library.IdentityOf(description.name)->classId) << "), helpstring(\""
      << Narrow(description.help) << "\")" << (description.create == nullptr ? ", noncreatable" : "") << "]\n"
      << "  coclass " << Narrow(description.name) << " {\n"
      << "    [default] interface " << InterfaceOf(description) << ";\n  };\n\n";
}

}  // namespace

void WriteIdl(std::ostream& out, const Library& library) {
  out << "// Made from the class tables; do not edit.\n"
      << "import \"oaidl.idl\";\n\n"
      << "[uuid(" << ToString(library.id) << "), version(" << library.majorVersion << "." << library.minorVersion
      << "), helpstring(\"" << Narrow(library.help) << "\")]\n"
      << "library " << Narrow(library.name) << " {\n  importlib(\"stdole2.tlb\");\n\n";
  const auto classes = library.classes();
  for (const ClassDescription* const description : classes) {
    if (library.IdentityOf(description->name) == nullptr) {
      throw std::invalid_argument("no identifiers for the class " + Narrow(description->name));
    }
    out << "  interface " << InterfaceOf(*description) << ";\n";
  }
  out << "\n";
  for (const ClassDescription* const description : classes) {
    WriteInterface(out, library, *description);
  }
  for (const ClassDescription* const description : classes) {
    WriteClass(out, library, *description);
  }
  out << "};\n";
}

}  // namespace qorltst::automation
