// Collections and their enumerators as scripts use them.
#include <gtest/gtest.h>

#include <array>

#include "automation/Module.h"
#include "frame/Collection.h"
#include "support/Client.h"
#include "support/TestRecord.h"

namespace qorltst::automation::test {
namespace {

class Collections : public testing::Test {
 protected:
  Collections() {
    for (int i = 0; i < 3; ++i) {
      items_.push_back(Make<TestRecord>());
      collection_->Add(items_.back());
    }
  }

  ComRef<IEnumVARIANT> Enumerate() {
    const Answer answer = client_.Call(DISPID_NEWENUM, {}, DISPATCH_METHOD);
    EXPECT_EQ(answer.value.Get().vt, VT_UNKNOWN);
    return Query<IEnumVARIANT>(answer.value.Get().punkVal);
  }

  /// The face of an item, not counted.
  static IDispatch* FaceOfItem(const Ref<TestRecord>& item) { return Client(*item).Get(); }

  Ref<Collection> collection_ = Make<Collection>();
  std::vector<Ref<TestRecord>> items_;
  Client client_{*collection_};
};

TEST_F(Collections, IdsAreThoseOfAutomation) {
  EXPECT_EQ(client_.IdOf(u"Count"), 1);
  EXPECT_EQ(client_.IdOf(u"Item"), DISPID_VALUE);
  EXPECT_EQ(client_.IdOf(u"_NewEnum"), DISPID_NEWENUM);
}

TEST_F(Collections, ItemIsTheDefaultMember) {
  const Answer item = client_.Call(DISPID_VALUE, {Number(2)});
  EXPECT_EQ(item.Object().Get(), FaceOfItem(items_[1]));
  EXPECT_EQ(client_.Call(u"Count").Long(), 3);
}

TEST_F(Collections, AnIndexMayBeAnyNumber) {
  EXPECT_EQ(client_.Call(u"Item", {Short(1)}).Object().Get(), FaceOfItem(items_[0]));
  EXPECT_EQ(client_.Call(u"Item", {Double(3)}).Object().Get(), FaceOfItem(items_[2]));
  EXPECT_EQ(client_.Call(u"Item", {String(u"2")}).Object().Get(), FaceOfItem(items_[1]));
}

TEST_F(Collections, AWrongIndexRaises9) {
  for (const std::int32_t index : {0, 4, -1}) {
    const Answer answer = client_.Call(u"Item", {Number(index)});
    EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.errorCode, static_cast<std::int32_t>(0x800A0009));
    EXPECT_EQ(answer.description, u"Subscript out of range");
  }
}

TEST_F(Collections, AnIndexThatIsNoNumberIsATypeMismatch) {
  EXPECT_EQ(client_.Call(u"Item", {String(u"first")}).code, DISP_E_TYPEMISMATCH);
}

TEST_F(Collections, AMissingIndexIsRefused) { EXPECT_EQ(client_.Call(u"Item").code, DISP_E_BADPARAMCOUNT); }

TEST_F(Collections, AnOwnersPropertyPassesTheIndexOn) {
  const Ref<TestRecord> owner = Make<TestRecord>();
  owner->child = collection_;
  const Client client(*owner);
  EXPECT_EQ(client.Call(u"Child", {Number(3)}).Object().Get(), FaceOfItem(items_[2]));
  EXPECT_EQ(client.Call(u"Child", {Number(9)}).errorCode, static_cast<std::int32_t>(0x800A0009));
}

TEST_F(Collections, AnEnumeratorGivesOneAfterAnother) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  for (const Ref<TestRecord>& item : items_) {
    Variant value;
    EXPECT_EQ(items->Next(1, &value.Get(), nullptr), S_OK);
    EXPECT_EQ(ObjectOf(value.Get()).object.Get(), FaceOfItem(item));
  }
  Variant none;
  EXPECT_EQ(items->Next(1, &none.Get(), nullptr), S_FALSE);
  EXPECT_EQ(none.Get().vt, VT_EMPTY);
}

TEST_F(Collections, AShortBatchIsTold) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  std::array<VARIANT, 5> raw{};
  ULONG taken = 99;
  EXPECT_EQ(items->Next(2, raw.data(), &taken), S_OK);
  EXPECT_EQ(taken, 2U);
  VariantClear(&raw[0]);
  VariantClear(&raw[1]);
  EXPECT_EQ(items->Next(5, raw.data(), &taken), S_FALSE);
  EXPECT_EQ(taken, 1U);
  EXPECT_EQ(raw[1].vt, VT_EMPTY);
  EXPECT_EQ(raw[4].vt, VT_EMPTY);
  VariantClear(&raw[0]);
}

TEST_F(Collections, AnEnumeratorWantsPlacesForWhatItGives) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  std::array<VARIANT, 2> raw{};
  ULONG taken = 7;
  EXPECT_EQ(items->Next(2, raw.data(), nullptr), E_POINTER);
  EXPECT_EQ(items->Next(1, nullptr, &taken), E_POINTER);
  EXPECT_EQ(taken, 0U);
  EXPECT_EQ(items->Clone(nullptr), E_POINTER);
  EXPECT_EQ(items->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Collections, AnEnumeratorSkipsAndStartsAgain) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  EXPECT_EQ(items->Skip(2), S_OK);
  Variant third;
  EXPECT_EQ(items->Next(1, &third.Get(), nullptr), S_OK);
  EXPECT_EQ(ObjectOf(third.Get()).object.Get(), FaceOfItem(items_[2]));
  EXPECT_EQ(items->Skip(1), S_FALSE);
  EXPECT_EQ(items->Reset(), S_OK);
  EXPECT_EQ(items->Skip(3), S_OK);
}

TEST_F(Collections, ACloneGoesOnFromTheSamePlace) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  EXPECT_EQ(items->Skip(1), S_OK);
  ComRef<IEnumVARIANT> clone;
  ASSERT_EQ(items->Clone(clone.Receive()), S_OK);
  EXPECT_EQ(items->Skip(2), S_OK);
  Variant second;
  EXPECT_EQ(clone->Next(1, &second.Get(), nullptr), S_OK);
  EXPECT_EQ(ObjectOf(second.Get()).object.Get(), FaceOfItem(items_[1]));
}

TEST_F(Collections, AnEnumeratorOutlivesItsCollection) {
  const ComRef<IEnumVARIANT> items = Enumerate();
  client_ = Client(ComRef<IDispatch>());
  collection_ = nullptr;
  EXPECT_EQ(items->Skip(3), S_OK);
}

TEST_F(Collections, AnEnumeratorKeepsTheLibrary) {
  const int before = ModuleHold::Count();
  {
    const ComRef<IEnumVARIANT> items = Enumerate();
    EXPECT_EQ(ModuleHold::Count(), before + 1);
    ComRef<IEnumVARIANT> clone;
    ASSERT_EQ(items->Clone(clone.Receive()), S_OK);
    EXPECT_EQ(ModuleHold::Count(), before + 2);
  }
  EXPECT_EQ(ModuleHold::Count(), before);
}

TEST_F(Collections, ReferencesComeBackToWhatTheyWere) {
  const std::uint32_t before = items_[0]->References();
  {
    const Answer item = client_.Call(u"Item", {Number(1)});
    EXPECT_EQ(items_[0]->References(), before + 1);
    Variant value;
    EXPECT_EQ(Enumerate()->Next(1, &value.Get(), nullptr), S_OK);
    EXPECT_EQ(items_[0]->References(), before + 2);
  }
  EXPECT_EQ(items_[0]->References(), before);
}

}  // namespace
}  // namespace qorltst::automation::test
