// Faces: identity, interfaces, counting, and the entries of the virtual tables.
#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <vector>

#include "automation/BoundClass.h"
#include "automation/DualEntries.h"
#include "automation/Text.h"
#include "frame/Collection.h"
#include "support/Client.h"
#include "support/TestRecord.h"
#include "support/TestServer.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
/// The dual interfaces of the test classes as a compiled client sees them. Not in the unnamed namespace: a compiler
/// would take it that nobody implements them.
struct PlainInterface : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Amount(CY* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Text(BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE When(DATE* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Flag(VARIANT_BOOL* out) = 0;
};

struct RecordInterface : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Text(BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Unguarded(BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Flag(VARIANT_BOOL* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE When(DATE* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Amount(CY* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Number(LONG* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Child(IDispatch** out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Holder(IDispatch** out) = 0;
  virtual HRESULT STDMETHODCALLTYPE putref_Holder(IDispatch* value) = 0;
  virtual HRESULT STDMETHODCALLTYPE Name(BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Name(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE EchoLong(LONG value, LONG* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE EchoShort(SHORT value, LONG* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE EchoBoolean(VARIANT_BOOL value, VARIANT_BOOL* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE EchoObject(IDispatch* value, IDispatch** out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Join(BSTR first, BSTR second, LONG count, BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE KindOf() = 0;
  virtual HRESULT STDMETHODCALLTYPE Raise(LONG number, BSTR* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE TakeSession(IDispatch* session, LONG* out) = 0;
  virtual HRESULT STDMETHODCALLTYPE Digits(LONG a, SHORT b, LONG c, SHORT d, LONG e, LONG* out) = 0;
};

namespace {

template <class Interface>
ComRef<Interface> Early(IDispatch* object, const ClassDescription& description) {
  ComRef<Interface> found;
  EXPECT_EQ(object->QueryInterface(BindingOf(description).InterfaceId(), found.ReceiveAny()), S_OK);
  return found;
}

class Faces : public testing::Test {
 protected:
  Ref<TestRecord> record_ = Make<TestRecord>();
  Client client_{*record_};
  ComRef<RecordInterface> early_ = Early<RecordInterface>(client_.Get(), TestRecord::kDescription);
};

TEST_F(Faces, AnObjectIsAlwaysTheSameUnknown) {
  const ComRef<IUnknown> first = Query<IUnknown>(client_.Get());
  const ComRef<IUnknown> viaErrors = Query<IUnknown>(Query<ISupportErrorInfo>(client_.Get()).Get());
  const ComRef<IUnknown> viaClass = Query<IUnknown>(Query<IProvideClassInfo>(client_.Get()).Get());
  const Client again(*record_);
  EXPECT_EQ(first.Get(), viaErrors.Get());
  EXPECT_EQ(first.Get(), viaClass.Get());
  EXPECT_EQ(first.Get(), Query<IUnknown>(again.Get()).Get());
  EXPECT_EQ(first.Get(), Query<IUnknown>(early_.Get()).Get());
}

TEST_F(Faces, AnUnknownInterfaceIsRefusedWithANullPointer) {
  IUnknown* found = client_.Get();
  EXPECT_EQ(client_.Get()->QueryInterface(IID_IPersist, reinterpret_cast<void**>(&found)), E_NOINTERFACE);
  EXPECT_EQ(found, nullptr);
}

TEST_F(Faces, InterfacesAreAskedForWithAPlaceForThem) {
  EXPECT_EQ(client_.Get()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Faces, ReferencesOfCallersKeepTheObject) {
  const std::int32_t before = Object::Living();
  Client held(*Make<PlainRecord>());
  EXPECT_EQ(Object::Living(), before + 1);
  const ComRef<ISupportErrorInfo> other = Query<ISupportErrorInfo>(held.Get());
  held = Client(ComRef<IDispatch>());
  EXPECT_EQ(Object::Living(), before + 1);
  EXPECT_TRUE(Query<IDispatch>(other.Get()));
}

TEST_F(Faces, TheLastReferenceEndsTheObject) {
  const std::int32_t before = Object::Living();
  { const Client held(*Make<PlainRecord>()); }
  EXPECT_EQ(Object::Living(), before);
}

TEST_F(Faces, CountsAreTold) {
  const ULONG added = client_.Get()->AddRef();
  EXPECT_EQ(client_.Get()->Release(), added - 1);
}

TEST_F(Faces, TheSmallInterfacesCountForTheObject) {
  for (IUnknown* const face : {static_cast<IUnknown*>(Query<ISupportErrorInfo>(client_.Get()).Get()),
                               static_cast<IUnknown*>(Query<IProvideClassInfo>(client_.Get()).Get())}) {
    const std::uint32_t before = record_->References();
    EXPECT_EQ(face->AddRef(), before + 1);
    EXPECT_EQ(record_->References(), before + 1);
    EXPECT_EQ(face->Release(), before);
  }
}

/// Of a class that no library serves.
class Stranger final : public Object {
 public:
  static constexpr ClassDescription kDescription{u"Stranger", u"", {}, {}, {}, nullptr};
  [[nodiscard]] const ClassDescription& Description() const noexcept override { return kDescription; }
};

TEST_F(Faces, AnObjectOfAClassOutsideTheLibraryIsNotHandedOut) {
  EXPECT_THROW(static_cast<void>(HandOut(*Make<Stranger>())), toolkit::RuntimeError);
  EXPECT_THROW(BoundClass(Stranger::kDescription, TestLibrary()), toolkit::RuntimeError);
}

TEST_F(Faces, AnEnumeratorThatFailsOnItsWayKeepsNothingOfIt) {
  const Ref<Collection> items = Make<Collection>();
  items->Add(record_);
  items->Add(Make<Stranger>());
  const Answer answer = Client(*items).Call(DISPID_NEWENUM);
  const ComRef<IEnumVARIANT> enumerator = Query<IEnumVARIANT>(answer.value.Get().punkVal);
  EXPECT_EQ(Query<IUnknown>(enumerator.Get()).Get(), enumerator.Get());
  const std::uint32_t before = record_->References();
  std::array<VARIANT, 2> out{};
  ULONG taken = 5;
  EXPECT_TRUE(FAILED(enumerator->Next(2, out.data(), &taken)));
  EXPECT_EQ(taken, 0U);
  EXPECT_EQ(out[0].vt, VT_EMPTY);
  EXPECT_EQ(record_->References(), before);
}

TEST_F(Faces, AClassWithMoreMembersThanATableTakesIsRefused) {
  const std::vector<Member> rows(kMaximumRows + 1);
  const ClassDescription large{u"Large", u"", rows, {}, {}, nullptr};
  EXPECT_THROW(static_cast<void>(TableFor(large)), std::length_error);
}

TEST_F(Faces, ErrorInformationIsPromisedForTheDualInterfaceOnly) {
  const ComRef<ISupportErrorInfo> errors = Query<ISupportErrorInfo>(client_.Get());
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(BindingOf(TestRecord::kDescription).InterfaceId()), S_OK);
  EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IPersist), S_FALSE);
}

TEST_F(Faces, PropertiesOfEveryTypeAreReadThroughTheVirtualTable) {
  BSTR text = nullptr;
  VARIANT_BOOL flag = VARIANT_FALSE;
  DATE when = 0;
  CY amount{};
  LONG number = 0;
  EXPECT_EQ(early_->Text(&text), S_OK);
  EXPECT_EQ(early_->Flag(&flag), S_OK);
  EXPECT_EQ(early_->When(&when), S_OK);
  EXPECT_EQ(early_->Amount(&amount), S_OK);
  EXPECT_EQ(early_->Number(&number), S_OK);
  EXPECT_EQ(View(text), u"text");
  EXPECT_EQ(flag, VARIANT_TRUE);
  EXPECT_EQ(when, 36526.25);
  EXPECT_EQ(amount.int64, 1234567);
  EXPECT_EQ(number, 42);
  SysFreeString(text);
}

TEST_F(Faces, ClassesOfPlainPropertiesShareOneTable) {
  const Ref<PlainRecord> plain = Make<PlainRecord>();
  const ComRef<PlainInterface> early = Early<PlainInterface>(Client(*plain).Get(), PlainRecord::kDescription);
  CY amount{};
  DATE when = 0;
  VARIANT_BOOL flag = VARIANT_TRUE;
  EXPECT_EQ(early->Amount(&amount), S_OK);
  EXPECT_EQ(early->When(&when), S_OK);
  EXPECT_EQ(early->Flag(&flag), S_OK);
  EXPECT_EQ(amount.int64, -10000);
  EXPECT_EQ(when, 2.5);
  EXPECT_EQ(flag, VARIANT_FALSE);
  EXPECT_NE(&BindingOf(PlainRecord::kDescription).Table(), &BindingOf(TestRecord::kDescription).Table());
}

TEST_F(Faces, EmbeddedNulsOfATextSurvive) {
  record_->text = std::u16string(u"a\0b", 3);
  BSTR text = nullptr;
  ASSERT_EQ(early_->Text(&text), S_OK);
  EXPECT_EQ(View(text), std::u16string_view(u"a\0b", 3));
  SysFreeString(text);
}

TEST_F(Faces, AnAbsentObjectIsANullPointer) {
  IDispatch* child = client_.Get();
  EXPECT_EQ(early_->Child(&child), S_OK);
  EXPECT_EQ(child, nullptr);
}

TEST_F(Faces, AChildIsHandedOutCounted) {
  record_->child = Make<PlainRecord>();
  ComRef<IDispatch> child;
  ComRef<IDispatch> again;
  ASSERT_EQ(early_->Child(child.Receive()), S_OK);
  ASSERT_EQ(early_->Child(again.Receive()), S_OK);
  EXPECT_EQ(child.Get(), again.Get());
  EXPECT_EQ(record_->child->References(), 3U);
}

TEST_F(Faces, AChildOutlivesItsOwner) {
  record_->child = Make<PlainRecord>();
  ComRef<IDispatch> child;
  ASSERT_EQ(early_->Child(child.Receive()), S_OK);
  client_ = Client(ComRef<IDispatch>());
  early_ = nullptr;
  record_ = nullptr;
  EXPECT_EQ(Client(child).Call(u"Text").Text(), u"plain");
}

TEST_F(Faces, EveryOutPointerIsChecked) {
  EXPECT_EQ(early_->Text(nullptr), E_POINTER);
  EXPECT_EQ(early_->Flag(nullptr), E_POINTER);
  EXPECT_EQ(early_->When(nullptr), E_POINTER);
  EXPECT_EQ(early_->Amount(nullptr), E_POINTER);
  EXPECT_EQ(early_->Number(nullptr), E_POINTER);
  EXPECT_EQ(early_->Child(nullptr), E_POINTER);
  EXPECT_EQ(early_->Name(nullptr), E_POINTER);
  EXPECT_EQ(early_->EchoLong(1, nullptr), E_POINTER);
  EXPECT_EQ(early_->TakeSession(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(early_->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(early_->GetTypeInfo(0, 0, nullptr), E_POINTER);
  EXPECT_EQ(Query<IProvideClassInfo>(client_.Get())->GetClassInfo(nullptr), E_POINTER);
}

TEST_F(Faces, ArgumentsNarrowerThanAWordArriveWhole) {
  LONG number = 0;
  VARIANT_BOOL flag = VARIANT_FALSE;
  EXPECT_EQ(early_->EchoLong(-5, &number), S_OK);
  EXPECT_EQ(number, -5);
  EXPECT_EQ(early_->EchoShort(-32768, &number), S_OK);
  EXPECT_EQ(number, -32768);
  EXPECT_EQ(early_->EchoBoolean(VARIANT_TRUE, &flag), S_OK);
  EXPECT_EQ(flag, VARIANT_TRUE);
}

TEST_F(Faces, BitsAboveANarrowArgumentAreNotRead) {
  constexpr std::size_t kEchoShort = 10;
  LONG number = 0;
  const std::array<Word, 2> words{Word{0x7FFF0005}, reinterpret_cast<Word>(&number)};
  EXPECT_EQ(CallMethod(*reinterpret_cast<Dual*>(client_.Get()), kEchoShort, words), S_OK);
  EXPECT_EQ(number, 5);
}

TEST_F(Faces, SixWordsKeepTheirOrder) {
  LONG number = 0;
  EXPECT_EQ(early_->Digits(1, 2, 3, 4, 5, &number), S_OK);
  EXPECT_EQ(number, 12345);
}

TEST_F(Faces, ANullStringArgumentIsTheEmptyText) {
  const ScopedBstr second(u"x");
  BSTR joined = nullptr;
  ASSERT_EQ(early_->Join(nullptr, second.Get(), 2, &joined), S_OK);
  EXPECT_EQ(View(joined), u",x,##");
  SysFreeString(joined);
}

TEST_F(Faces, ASetterChangesItsProperty) {
  const ScopedBstr name(u"new name");
  EXPECT_EQ(early_->put_Name(name.Get()), S_OK);
  EXPECT_EQ(record_->text, u"new name");
}

TEST_F(Faces, OurOwnObjectComesBackAsItself) {
  ComRef<IDispatch> back;
  ASSERT_EQ(early_->EchoObject(client_.Get(), back.Receive()), S_OK);
  EXPECT_EQ(back.Get(), client_.Get());
}

}  // namespace
}  // namespace qorltst::automation::test
