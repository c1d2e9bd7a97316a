// Reads type libraries through the system. See TypeLibraryDump.h.
#include "support/TypeLibraryDump.h"

#include <array>
#include <vector>

#include "automation/Text.h"

namespace qorltst::automation::test {
namespace {

std::string Narrow(BSTR text) {
  std::string narrow;
  for (const char16_t c : View(text)) {
    narrow += static_cast<char>(c);
  }
  return narrow;
}

template <class Described>
std::string NameOf(Described& described, MEMBERID member) {
  BSTR name = nullptr;
  BSTR help = nullptr;
  described.GetDocumentation(member, &name, &help, nullptr, nullptr);
  std::string text = Narrow(name) + " \"" + Narrow(help) + "\"";
  SysFreeString(name);
  SysFreeString(help);
  return text;
}

std::string ShortNameOf(ITypeInfo& info) {
  BSTR name = nullptr;
  info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  std::string text = Narrow(name);
  SysFreeString(name);
  return text;
}

std::string TypeOf(ITypeInfo& info, const TYPEDESC& type) {
  if (type.vt == VT_PTR) {
    return TypeOf(info, *type.lptdesc) + "*";
  }
  if (type.vt == VT_USERDEFINED) {
    ComRef<ITypeInfo> other;
    info.GetRefTypeInfo(type.hreftype, other.Receive());
    return other ? ShortNameOf(*other.Get()) : "?";
  }
  struct TypeName {
    VARTYPE type;
    const char* name;
  };
  static constexpr std::array kNames{
      TypeName{VT_I2, "short"},        TypeName{VT_I4, "long"},         TypeName{VT_BOOL, "boolean"},
      TypeName{VT_BSTR, "string"},     TypeName{VT_DATE, "date"},       TypeName{VT_CY, "currency"},
      TypeName{VT_DISPATCH, "object"}, TypeName{VT_UNKNOWN, "unknown"}, TypeName{VT_VARIANT, "variant"},
      TypeName{VT_HRESULT, "HRESULT"}, TypeName{VT_VOID, "void"}};
  for (const TypeName& row : kNames) {
    if (row.type == type.vt) {
      return row.name;
    }
  }
  return "type " + std::to_string(type.vt);
}

std::string GuidText(const GUID& guid) { return ToString(PortableGuid(guid)); }

std::string KindOf(INVOKEKIND kind) {
  return kind == INVOKE_PROPERTYGET   ? "get"
         : kind == INVOKE_PROPERTYPUT ? "put"
         : kind == INVOKE_FUNC        ? "call"
                                      : "putref";
}

std::string DefaultOf(const PARAMDESC& parameter) {
  if ((parameter.wParamFlags & PARAMFLAG_FHASDEFAULT) == 0) {
    return "";
  }
  const VARIANT& value = parameter.pparamdescex->varDefaultValue;
  return value.vt == VT_BSTR ? " = \"" + Narrow(value.bstrVal) + "\"" : " = " + std::to_string(value.lVal);
}

std::string FunctionLine(ITypeInfo& info, const FUNCDESC& function) {
  std::vector<BSTR> names(static_cast<std::size_t>(function.cParams) + 1);
  UINT known = 0;
  info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &known);
  const std::size_t slot = static_cast<std::size_t>(function.oVft) / sizeof(void*);
  std::string line = "  slot " + std::to_string(slot) + " id " + std::to_string(function.memid) + " " +
                     KindOf(function.invkind) + " flags " + std::to_string(function.wFuncFlags) + " " +
                     NameOf(info, function.memid) + " (";
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& parameter = function.lprgelemdescParam[i];
    const std::size_t place = static_cast<std::size_t>(i) + 1;
    line += (i > 0 ? ", " : "") + TypeOf(info, parameter.tdesc) + " " + (place < known ? Narrow(names[place]) : "") +
            " [" + std::to_string(parameter.paramdesc.wParamFlags & ~PARAMFLAG_FHASDEFAULT) + "]" +
            DefaultOf(parameter.paramdesc);
  }
  for (const BSTR name : names) {
    SysFreeString(name);
  }
  return line + ") " + TypeOf(info, function.elemdescFunc.tdesc) + "\n";
}

std::string Functions(ITypeInfo& info, const TYPEATTR& attributes) {
  std::string text;
  for (UINT i = 0; i < attributes.cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    if (SUCCEEDED(info.GetFuncDesc(i, &function))) {
      text += FunctionLine(info, *function);
      info.ReleaseFuncDesc(function);
    }
  }
  return text;
}

std::string Implemented(ITypeInfo& info, const TYPEATTR& attributes) {
  std::string text;
  for (UINT i = 0; i < attributes.cImplTypes; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ComRef<ITypeInfo> implemented;
    info.GetRefTypeOfImplType(i, &reference);
    info.GetImplTypeFlags(i, &flags);
    info.GetRefTypeInfo(reference, implemented.Receive());
    text += "  implements " + (implemented ? ShortNameOf(*implemented.Get()) : std::string("?")) + " flags " +
            std::to_string(flags) + "\n";
  }
  return text;
}

/// A dual interface shows as its dispatch half first; what compiled clients see is the other one.
ComRef<ITypeInfo> VirtualHalf(ITypeInfo& info) {
  HREFTYPE reference = 0;
  ComRef<ITypeInfo> half;
  if (FAILED(info.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) ||
      FAILED(info.GetRefTypeInfo(reference, half.Receive()))) {
    return ComRef<ITypeInfo>(&info);
  }
  return half;
}

std::string DumpType(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetTypeAttr(&attributes))) {
    return "unreadable\n";
  }
  const bool isClass = attributes->typekind == TKIND_COCLASS;
  std::string text = std::string(isClass ? "class " : "interface ") + NameOf(info, MEMBERID_NIL) + " " +
                     GuidText(attributes->guid) + " flags " + std::to_string(attributes->wTypeFlags) + "\n";
  text += isClass ? Implemented(info, *attributes) : Functions(info, *attributes);
  info.ReleaseTypeAttr(attributes);
  return text + "\n";
}

}  // namespace

std::string DumpTypeLibrary(ITypeLib& library) {
  TLIBATTR* attributes = nullptr;
  if (FAILED(library.GetLibAttr(&attributes))) {
    return "unreadable\n";
  }
  std::string text = "library " + NameOf(library, MEMBERID_NIL) + " " + GuidText(attributes->guid) + " version " +
                     std::to_string(attributes->wMajorVerNum) + "." + std::to_string(attributes->wMinorVerNum) + "\n\n";
  library.ReleaseTLibAttr(attributes);
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    ComRef<ITypeInfo> info;
    if (SUCCEEDED(library.GetTypeInfo(i, info.Receive()))) {
      text += DumpType(*VirtualHalf(*info.Get()).Get());
    }
  }
  return text;
}

}  // namespace qorltst::automation::test
