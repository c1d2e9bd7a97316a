// Dispatch: names and ids, arguments as scripts send them, refused calls.
#include <gtest/gtest.h>

#include <array>

#include "automation/Text.h"
#include "support/Client.h"
#include "support/TestRecord.h"

namespace qorltst::automation::test {
namespace {

class Dispatching : public testing::Test {
 protected:
  /// Calls with named arguments in front, as automation has them.
  HRESULT Named(DISPID id, std::span<VARIANT> arguments, std::span<DISPID> names, VARIANT* result) {
    DISPPARAMS parameters{arguments.data(), names.data(), static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(names.size())};
    return client_.Get()->Invoke(id, GUID_NULL, 0, kRead, &parameters, result, nullptr, nullptr);
  }

  Ref<TestRecord> record_ = Make<TestRecord>();
  Client client_{*record_};
};

TEST_F(Dispatching, NamesAreFoundWithoutRegardToCase) {
  EXPECT_EQ(client_.IdOf(u"TEXT"), 1);
  EXPECT_EQ(client_.IdOf(u"text"), 1);
  EXPECT_EQ(client_.IdOf(u"digits"), 18);
}

TEST_F(Dispatching, AnUnknownNameIsUnknown) {
  const ScopedBstr name(u"Tex");
  LPOLESTR wanted = name.Get();
  DISPID id = 5;
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, &wanted, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(Dispatching, ParametersHaveIdsInTheirOrder) {
  const ScopedBstr join(u"Join");
  const ScopedBstr count(u"count");
  const ScopedBstr first(u"First");
  const ScopedBstr wrong(u"Third");
  std::array<LPOLESTR, 4> names{join.Get(), count.Get(), first.Get(), wrong.Get()};
  std::array<DISPID, 4> ids{};
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, names.data(), 3, 0, ids.data()), S_OK);
  EXPECT_EQ(ids[1], 2);
  EXPECT_EQ(ids[2], 0);
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, names.data(), 4, 0, ids.data()), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[2], 0);
  EXPECT_EQ(ids[3], DISPID_UNKNOWN);
}

TEST_F(Dispatching, OnlyTheNullInterfaceIsServed) {
  const ScopedBstr text(u"Text");
  LPOLESTR wanted = text.Get();
  DISPID id = 0;
  DISPPARAMS none{};
  EXPECT_EQ(client_.Get()->GetIDsOfNames(IID_IDispatch, &wanted, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(client_.Get()->Invoke(1, IID_IDispatch, 0, kRead, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
}

TEST_F(Dispatching, MissingPointersAreRefused) {
  DISPID id = 0;
  LPOLESTR null = nullptr;
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, nullptr, 1, 0, &id), E_POINTER);
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, &null, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, &null, 0, 0, &id), E_INVALIDARG);
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, &null, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(client_.Get()->Invoke(1, GUID_NULL, 0, kRead, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  DISPPARAMS noArray{nullptr, nullptr, 1, 0};
  EXPECT_EQ(client_.Get()->Invoke(10, GUID_NULL, 0, kRead, &noArray, nullptr, nullptr, nullptr), E_POINTER);
}

TEST_F(Dispatching, ANameThatIsMissingIsUnknown) {
  const ScopedBstr join(u"Join");
  std::array<LPOLESTR, 2> names{join.Get(), nullptr};
  std::array<DISPID, 2> ids{};
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, names.data(), 2, 0, ids.data()), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
}

TEST_F(Dispatching, MoreNamesThanArgumentsAreRefused) {
  std::array<VARIANT, 1> arguments{String(u"a")};
  std::array<DISPID, 2> names{0, 1};
  VARIANT result = Number(5);
  EXPECT_EQ(Named(client_.IdOf(u"Join"), arguments, names, &result), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(result.vt, VT_EMPTY);
}

TEST_F(Dispatching, ASetterTakesOneName) {
  std::array<VARIANT, 1> arguments{String(u"a")};
  std::array<DISPID, 2> names{DISPID_PROPERTYPUT, DISPID_PROPERTYPUT};
  DISPPARAMS parameters{arguments.data(), names.data(), 1, 2};
  EXPECT_EQ(client_.Get()->Invoke(client_.IdOf(u"Name"), GUID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr,
                                  nullptr, nullptr),
            DISP_E_BADPARAMCOUNT);
}

TEST_F(Dispatching, OnlyMethodsHaveParameters) {
  const ScopedBstr text(u"Text");
  const ScopedBstr value(u"Value");
  std::array<LPOLESTR, 2> names{text.Get(), value.Get()};
  std::array<DISPID, 2> ids{};
  EXPECT_EQ(client_.Get()->GetIDsOfNames(GUID_NULL, names.data(), 2, 0, ids.data()), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[0], 1);
}

TEST_F(Dispatching, PropertiesOfEveryTypeArriveAsTheirVariantType) {
  EXPECT_EQ(client_.Call(u"Text").value.Get().vt, VT_BSTR);
  EXPECT_EQ(client_.Call(u"Flag").value.Get().vt, VT_BOOL);
  EXPECT_EQ(client_.Call(u"Number").value.Get().vt, VT_I4);
  EXPECT_EQ(client_.Call(u"Child").value.Get().vt, VT_DISPATCH);
  const Answer when = client_.Call(u"When");
  EXPECT_EQ(when.value.Get().vt, VT_DATE);
  EXPECT_EQ(when.value.Get().date, 36526.25);
  const Answer amount = client_.Call(u"Amount");
  EXPECT_EQ(amount.value.Get().vt, VT_CY);
  EXPECT_EQ(amount.value.Get().cyVal.int64, 1234567);
}

TEST_F(Dispatching, AnAbsentObjectArrivesAsNothing) {
  const Answer child = client_.Call(u"Child");
  EXPECT_EQ(child.value.Get().vt, VT_DISPATCH);
  EXPECT_EQ(child.value.Get().pdispVal, nullptr);
}

TEST_F(Dispatching, ReadingIsReadingWhateverTheClientCallsIt) {
  for (const WORD flags : {WORD{DISPATCH_METHOD}, WORD{DISPATCH_PROPERTYGET}, kRead}) {
    EXPECT_EQ(client_.Call(u"Number", {}, flags).Long(), 42);
    EXPECT_EQ(client_.Call(u"EchoLong", {Number(7)}, flags).Long(), 7);
  }
  EXPECT_EQ(client_.Call(u"Number", {}, WORD{0}).code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatching, ResultsMayBeUnwanted) {
  DISPPARAMS none{};
  EXPECT_EQ(client_.Get()->Invoke(1, GUID_NULL, 0, kRead, &none, nullptr, nullptr, nullptr), S_OK);
}

TEST_F(Dispatching, UnknownIdsAreRefused) {
  EXPECT_EQ(client_.Call(DISPID{19}).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(client_.Call(DISPID{0}).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(client_.Call(DISPID{-1}).code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatching, NumbersOfOtherTypesAreConverted) {
  EXPECT_EQ(client_.Call(u"EchoLong", {Short(-3)}).Long(), -3);
  EXPECT_EQ(client_.Call(u"EchoLong", {Double(41.6)}).Long(), 42);
  EXPECT_EQ(client_.Call(u"EchoLong", {String(u"17")}).Long(), 17);
  EXPECT_EQ(client_.Call(u"EchoLong", {Truth(true)}).Long(), -1);
  EXPECT_EQ(client_.Call(u"EchoLong", {Typed(VT_EMPTY)}).Long(), 0);
  EXPECT_EQ(client_.Call(u"EchoShort", {Number(1003)}).Long(), 1003);
}

TEST_F(Dispatching, ReferencesAreFollowed) {
  VARIANT number = Number(5);
  VARIANT text = String(u"8");
  LONG plain = 9;
  VARIANT reference = Typed(VT_I4 | VT_BYREF);
  reference.plVal = &plain;
  EXPECT_EQ(client_.Call(u"EchoLong", {Reference(number)}).Long(), 5);
  EXPECT_EQ(client_.Call(u"EchoLong", {Reference(text)}).Long(), 8);
  EXPECT_EQ(client_.Call(u"EchoLong", {reference}).Long(), 9);
}

TEST_F(Dispatching, AWrongTypeIsToldWithItsPlace) {
  const Answer number = client_.Call(u"EchoLong", {String(u"abc")});
  EXPECT_EQ(number.code, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(number.argument, 0U);
  const Answer second = client_.Call(u"Join", {String(u"a"), String(u"b"), String(u"many")});
  EXPECT_EQ(second.code, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(second.argument, 0U);
  EXPECT_EQ(client_.Call(u"EchoObject", {Number(1)}).code, DISP_E_TYPEMISMATCH);
}

TEST_F(Dispatching, ANumberTooLargeOverflows) {
  EXPECT_EQ(client_.Call(u"EchoShort", {Number(40000)}).code, DISP_E_OVERFLOW);
  EXPECT_EQ(client_.Call(u"EchoLong", {Double(4e9)}).code, DISP_E_OVERFLOW);
}

TEST_F(Dispatching, OptionalArgumentsMayBeLeftOut) {
  EXPECT_EQ(client_.Call(u"Join", {String(u"a")}).Text(), u"a,-,-");
  EXPECT_EQ(client_.Call(u"Join", {String(u"a"), LeftOut(), Number(2)}).Text(), u"a,-,##");
  EXPECT_EQ(client_.Call(u"Join", {String(u"a"), String(u"b"), LeftOut()}).Text(), u"a,b,-");
}

TEST_F(Dispatching, RequiredArgumentsMayNot) {
  EXPECT_EQ(client_.Call(u"Join").code, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client_.Call(u"Join", {LeftOut()}).code, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(Dispatching, TooManyArgumentsAreRefused) {
  EXPECT_EQ(client_.Call(u"EchoLong", {Number(1), Number(2)}).code, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client_.Call(u"Text", {Number(1)}).code, DISP_E_BADPARAMCOUNT);
}

TEST_F(Dispatching, ArgumentsMayBeNamed) {
  // Join(Count:=2, First:="a")
  std::array<VARIANT, 2> arguments{Number(2), String(u"a")};
  std::array<DISPID, 2> names{2, 0};
  Variant result;
  ASSERT_EQ(Named(client_.IdOf(u"Join"), arguments, names, &result.Get()), S_OK);
  EXPECT_EQ(View(result.Get().bstrVal), u"a,-,##");
}

TEST_F(Dispatching, NamedAndPositionalArgumentsMix) {
  // Join("a", Count:=1)
  std::array<VARIANT, 2> arguments{Number(1), String(u"a")};
  std::array<DISPID, 1> names{2};
  Variant result;
  ASSERT_EQ(Named(client_.IdOf(u"Join"), arguments, names, &result.Get()), S_OK);
  EXPECT_EQ(View(result.Get().bstrVal), u"a,-,#");
}

TEST_F(Dispatching, NamesThatAreNoParametersAreRefused) {
  std::array<VARIANT, 2> arguments{Number(1), String(u"a")};
  std::array<DISPID, 1> unknown{3};
  std::array<DISPID, 1> setter{DISPID_PROPERTYPUT};
  std::array<DISPID, 1> twice{0};
  EXPECT_EQ(Named(client_.IdOf(u"Join"), arguments, unknown, nullptr), DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(Named(client_.IdOf(u"Join"), arguments, setter, nullptr), DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(Named(client_.IdOf(u"Join"), arguments, twice, nullptr), DISP_E_BADPARAMCOUNT);
}

TEST_F(Dispatching, APropertyWithASetterIsSet) {
  EXPECT_EQ(client_.Put(u"Name", String(u"new")).code, S_OK);
  EXPECT_EQ(record_->text, u"new");
  EXPECT_EQ(client_.Put(u"Name", Number(12)).code, S_OK);
  EXPECT_EQ(record_->text, u"12");
}

TEST_F(Dispatching, ReadOnlyPropertiesRefuseToBeSet) {
  EXPECT_EQ(client_.Put(u"Text", String(u"new")).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(client_.Put(u"Number", Number(1)).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(client_.Put(u"Child", Dispatch(client_.Get()), DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(client_.Put(u"EchoLong", Number(1)).code, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(record_->text, u"text");
  EXPECT_EQ(record_->number, 42);
  EXPECT_FALSE(record_->child);
}

TEST_F(Dispatching, ASetterTakesOneArgument) {
  EXPECT_EQ(client_.Call(u"Name", {}, DISPATCH_PROPERTYPUT).code, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client_.Call(u"Name", {String(u"a"), String(u"b")}, DISPATCH_PROPERTYPUT).code, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(client_.Put(u"Name", LeftOut()).code, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(record_->text, u"text");
}

TEST_F(Dispatching, AnyValueKeepsItsKind) {
  EXPECT_EQ(client_.Call(u"KindOf", {Typed(VT_EMPTY)}).Long(), 0);
  EXPECT_EQ(client_.Call(u"KindOf", {Typed(VT_NULL)}).Long(), 0);
  EXPECT_EQ(client_.Call(u"KindOf", {Dispatch(client_.Get())}).Long(), 0);
  EXPECT_EQ(client_.Call(u"KindOf", {Short(3)}).Long(), 1);
  EXPECT_EQ(client_.Call(u"KindOf", {Double(3.5)}).Long(), 1);
  EXPECT_EQ(client_.Call(u"KindOf", {Truth(false)}).Long(), 2);
  EXPECT_EQ(client_.Call(u"KindOf", {String(u"3")}).Long(), 3);
}

TEST_F(Dispatching, OurOwnObjectIsKnownAsAnArgument) {
  const Answer back = client_.Call(u"EchoObject", {Dispatch(client_.Get())});
  EXPECT_EQ(back.Object().Get(), client_.Get());
  EXPECT_EQ(client_.Call(u"EchoObject", {Dispatch(nullptr)}).value.Get().pdispVal, nullptr);
}

TEST_F(Dispatching, ArgumentsAreNotKept) {
  const std::uint32_t before = record_->References();
  static_cast<void>(client_.Call(u"EchoObject", {Dispatch(client_.Get())}));
  EXPECT_EQ(record_->References(), before);
}

TEST_F(Dispatching, ArgumentsOfAPlainPropertyAreForItsObjectsDefaultMember) {
  // The child has no default member.
  record_->child = Make<PlainRecord>();
  EXPECT_EQ(client_.Call(u"Child", {Number(1)}).code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(Dispatching, ArgumentsForTheDefaultMemberOfNothingRaise91) {
  const Answer answer = client_.Call(u"Child", {Number(1)});
  EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.errorCode, static_cast<std::int32_t>(0x800A005B));
}

}  // namespace
}  // namespace qorltst::automation::test
