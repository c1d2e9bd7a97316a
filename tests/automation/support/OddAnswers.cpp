// See OddAnswers.h.
#include "support/OddAnswers.h"

#include <array>
#include <limits>

#include "automation/Text.h"
#include "support/Client.h"
#include "support/FakeObject.h"

namespace qorltst::automation::test {
namespace {

HRESULT WINAPI FillIn(EXCEPINFO* info) {
  info->bstrSource = SysAllocString(L"late");
  info->bstrDescription = SysAllocString(L"filled in afterwards");
  info->scode = E_ACCESSDENIED;
  return S_OK;
}

HRESULT WINAPI RefuseToFillIn(EXCEPINFO* /*info*/) { return E_FAIL; }

void Describe(EXCEPINFO* info, SCODE code) {
  if (info != nullptr) {
    info->scode = code;
    info->bstrSource = SysAllocString(L"Toolkit");
    info->bstrDescription = SysAllocString(L"it does not work");
    info->bstrHelpFile = SysAllocString(L"toolkit.hlp");
  }
}

std::string Hex(std::uint32_t number) {
  constexpr const char* kDigits = "0123456789abcdef";
  std::string text = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) {
    text += kDigits[(number >> static_cast<unsigned>(shift)) & 0xFU];
  }
  return text;
}

void AddPlainFailures(std::vector<OddAnswer>& answers) {
  for (const HRESULT code : {E_FAIL, E_OUTOFMEMORY, E_NOTIMPL, E_UNEXPECTED, E_INVALIDARG, DISP_E_UNKNOWNNAME,
                             DISP_E_MEMBERNOTFOUND, DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, DISP_E_BADPARAMCOUNT,
                             DISP_E_EXCEPTION, RPC_E_DISCONNECTED, RPC_E_SERVERFAULT, static_cast<HRESULT>(0x800A005B),
                             static_cast<HRESULT>(0x8004270F), std::numeric_limits<HRESULT>::min(), HRESULT{-1}}) {
    answers.push_back(
        {"fails with " + Hex(static_cast<std::uint32_t>(code)), [code](VARIANT&, EXCEPINFO*) { return code; }});
    answers.push_back(
        {"fails and describes " + Hex(static_cast<std::uint32_t>(code)), [code](VARIANT&, EXCEPINFO* info) {
           Describe(info, code);
           return code;
         }});
  }
}

void AddReportedFailures(std::vector<OddAnswer>& answers) {
  for (const SCODE code : {SCODE{0}, SCODE{1}, E_FAIL, std::numeric_limits<SCODE>::min()}) {
    answers.push_back({"raises " + Hex(static_cast<std::uint32_t>(code)), [code](VARIANT&, EXCEPINFO* info) {
                         Describe(info, code);
                         return DISP_E_EXCEPTION;
                       }});
  }
  answers.push_back({"raises an old number", [](VARIANT&, EXCEPINFO* info) {
                       if (info != nullptr) {
                         info->wCode = 0xFFFF;
                       }
                       return DISP_E_EXCEPTION;
                     }});
  for (const auto fill : {&FillIn, &RefuseToFillIn}) {
    answers.push_back({"raises and describes afterwards", [fill](VARIANT&, EXCEPINFO* info) {
                         if (info != nullptr) {
                           info->pfnDeferredFillIn = fill;
                         }
                         return DISP_E_EXCEPTION;
                       }});
  }
  answers.push_back({"fails and leaves a result", [](VARIANT& result, EXCEPINFO*) {
                       result.vt = VT_BSTR;
                       result.bstrVal = SysAllocString(L"left");
                       return E_FAIL;
                     }});
  answers.push_back({"raises a long text", [](VARIANT&, EXCEPINFO* info) {
                       if (info != nullptr) {
                         info->bstrDescription = SysAllocStringLen(nullptr, 100000);
                       }
                       return DISP_E_EXCEPTION;
                     }});
}

/// Where references point; wide enough for every type, and its bytes make a small number.
struct Storage {
  alignas(16) std::array<std::int64_t, 4> bytes{1, 0, 0, 0};
};

VARIANT Text(const wchar_t* text, UINT length) {
  VARIANT made = Typed(VT_BSTR);
  made.bstrVal = SysAllocStringLen(text, length);
  return made;
}

VARIANT Wide(VARTYPE type, std::int64_t bits) {
  VARIANT made = Typed(type);
  made.llVal = bits;
  return made;
}

bool IsPointerType(VARTYPE type) {
  return type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN || type == VT_VARIANT || type == VT_RECORD;
}

/// Every type by its number: with no bits set, with a one where that is no pointer, by reference to nothing and to
/// something, as an array that is none.
void AddEveryType(std::vector<VARIANT>& values) {
  static Storage nothing{{0, 0, 0, 0}};
  static Storage one;
  for (VARTYPE type = 0; type <= VT_CLSID; ++type) {
    values.push_back(Typed(type));
    values.push_back(Typed(static_cast<VARTYPE>(type | VT_BYREF)));
    values.push_back(Typed(static_cast<VARTYPE>(type | VT_ARRAY)));
    values.push_back(Typed(static_cast<VARTYPE>(type | VT_ARRAY | VT_BYREF)));
    values.push_back(Typed(static_cast<VARTYPE>(type | VT_VECTOR)));
    VARIANT reference = Typed(static_cast<VARTYPE>(type | VT_BYREF));
    reference.byref = &nothing;
    values.push_back(reference);
    if (type <= VT_UINT && !IsPointerType(type)) {
      values.push_back(Wide(type, 1));
      values.push_back(Wide(type, -1));
      values.push_back(Wide(type, std::numeric_limits<std::int64_t>::max()));
      reference.byref = &one;
      values.push_back(reference);
    }
  }
  values.push_back(Typed(VT_RESERVED));
  values.push_back(Typed(VT_ILLEGAL));
}

void AddTexts(std::vector<VARIANT>& values) {
  values.push_back(Text(L"", 0));
  values.push_back(Text(L"42", 2));
  values.push_back(Text(L"A\0B", 3));
  values.push_back(Text(L"\xD800", 1));
  values.push_back(Text(L"\xDC00\xD800", 2));
  values.push_back(Text(L"1e999", 5));
  values.push_back(Text(L"12DEC26", 7));
}

void AddNumbers(std::vector<VARIANT>& values) {
  for (const double number : {0.5, -1e300, 1e19, 2147483648.0, std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()}) {
    values.push_back(Double(number));
    values.push_back(Double(number));
    values.back().vt = VT_DATE;
  }
  values.push_back(Wide(VT_BOOL, 7));
  values.push_back(LeftOut());
}

const std::vector<VARIANT>& Values() {
  static const std::vector<VARIANT> values = [] {
    std::vector<VARIANT> made;
    AddEveryType(made);
    AddTexts(made);
    AddNumbers(made);
    return made;
  }();
  return values;
}

std::string NameOf(const VARIANT& value) {
  return "type " + Hex(value.vt) + " with " + Hex(static_cast<std::uint32_t>(value.llVal));
}

/// Gives a copy; what cannot be copied holds nothing that could be freed.
HRESULT GiveCopy(VARIANT& result, const VARIANT& value) {
  if (value.vt == VT_BSTR) {
    result.vt = VT_BSTR;
    result.bstrVal = value.bstrVal != nullptr ? SysAllocStringLen(value.bstrVal, SysStringLen(value.bstrVal)) : nullptr;
  } else {
    result = value;
  }
  return S_OK;
}

void GiveObject(std::vector<OddAnswer>& answers, std::string name, VARTYPE type, ComRef<IUnknown> (*make)()) {
  answers.push_back({std::move(name), [type, make](VARIANT& result, EXCEPINFO*) {
                       result.vt = type;
                       result.punkVal = make().Detach();
                       return S_OK;
                     }});
}

ComRef<IUnknown> Memberless() { return Query<IUnknown>(Fake().Get()); }

ComRef<IUnknown> WithValue() {
  const ComRef<FakeObject> object = Fake();
  object->Gives(u"Value", Number(77), DISPID_VALUE);
  return Query<IUnknown>(object.Get());
}

ComRef<IUnknown> EmptyEnumerator() { return Query<IUnknown>(FakeEnumerator({}).Get()); }

HRESULT GiveArray(VARIANT& result, VARTYPE type) {
  SAFEARRAYBOUND bound{3, 1};
  result.parray = SafeArrayCreate(type, 1, &bound);
  result.vt = static_cast<VARTYPE>(VT_ARRAY | type);
  return S_OK;
}

}  // namespace

const std::vector<OddAnswer>& Failures() {
  static const std::vector<OddAnswer> answers = [] {
    std::vector<OddAnswer> made;
    AddPlainFailures(made);
    AddReportedFailures(made);
    return made;
  }();
  return answers;
}

const std::vector<OddAnswer>& AbsentAnswers() {
  static const std::vector<OddAnswer> answers = [] {
    std::vector<OddAnswer> made;
    for (const VARTYPE type : {VT_EMPTY, VT_NULL, VT_DISPATCH, VT_UNKNOWN}) {
      made.push_back({"nothing of type " + Hex(type), [type](VARIANT& result, EXCEPINFO*) {
                        result = Typed(type);
                        return S_OK;
                      }});
    }
    made.push_back({"an early end", [](VARIANT&, EXCEPINFO*) { return S_FALSE; }});
    return made;
  }();
  return answers;
}

const std::vector<OddAnswer>& OddValues() {
  static const std::vector<OddAnswer> answers = [] {
    std::vector<OddAnswer> made;
    for (const VARIANT& value : Values()) {
      made.push_back({NameOf(value), [&value](VARIANT& result, EXCEPINFO*) { return GiveCopy(result, value); }});
    }
    for (const VARTYPE type : {VT_VARIANT, VT_BSTR, VT_I4, VT_DISPATCH, VT_UI1}) {
      made.push_back({"an array of " + Hex(type),
                      [type](VARIANT& result, EXCEPINFO*) { return GiveArray(result, static_cast<VARTYPE>(type)); }});
    }
    GiveObject(made, "an object without members", VT_DISPATCH, &Memberless);
    GiveObject(made, "an object with a value", VT_DISPATCH, &WithValue);
    GiveObject(made, "an object as unknown", VT_UNKNOWN, &Memberless);
    GiveObject(made, "an enumerator", VT_UNKNOWN, &EmptyEnumerator);
    made.push_back({"an end with an object left", [](VARIANT& result, EXCEPINFO*) {
                      result.vt = VT_DISPATCH;
                      result.pdispVal = ComRef<IDispatch>(Fake().Get()).Detach();
                      return S_FALSE;
                    }});
    return made;
  }();
  return answers;
}

const std::vector<OddAnswer>& OddAnswers() {
  static const std::vector<OddAnswer> answers = [] {
    std::vector<OddAnswer> made = Failures();
    made.insert(made.end(), AbsentAnswers().begin(), AbsentAnswers().end());
    made.insert(made.end(), OddValues().begin(), OddValues().end());
    return made;
  }();
  return answers;
}

std::span<const VARIANT> OddArguments() { return Values(); }

}  // namespace qorltst::automation::test
