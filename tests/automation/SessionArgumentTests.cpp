// Host sessions and replaceable collections as arguments of the component's members.
#include <gtest/gtest.h>

#include "automation/ArgumentValues.h"
#include "automation/ForeignObject.h"
#include "frame/Collection.h"
#include "support/FakeObject.h"
#include "support/TestRecord.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
namespace {

class ObjectArguments : public testing::Test {
 protected:
  Ref<TestRecord> record_ = Make<TestRecord>();
  Client client_{*record_};
};

TEST_F(ObjectArguments, NothingEmptyAndNullAreNoSession) {
  EXPECT_EQ(client_.Call(u"TakeSession", {Dispatch(static_cast<IDispatch*>(nullptr))}).Long(), 0);
  EXPECT_EQ(client_.Call(u"TakeSession", {Typed(VT_EMPTY)}).Long(), 0);
  EXPECT_EQ(client_.Call(u"TakeSession", {Typed(VT_NULL)}).Long(), 0);
}

TEST_F(ObjectArguments, AnyObjectMayBeASession) {
  const ComRef<FakeObject> session = Fake();
  VARIANT inner = Dispatch(session);
  EXPECT_EQ(client_.Call(u"TakeSession", {Dispatch(session)}).Long(), 1);
  EXPECT_EQ(client_.Call(u"TakeSession", {Unknown(session.Get())}).Long(), 1);
  EXPECT_EQ(client_.Call(u"TakeSession", {Reference(inner)}).Long(), 1);
  EXPECT_TRUE(session->Calls().empty());
}

TEST_F(ObjectArguments, AValueIsNoSession) {
  EXPECT_EQ(client_.Call(u"TakeSession", {String(u"session")}).code, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(client_.Call(u"TakeSession", {Number(1)}).code, DISP_E_TYPEMISMATCH);
}

TEST_F(ObjectArguments, AForeignCollectionComesBackAsItself) {
  for (const Manner manner : {Manner::Plain, Manner::Extended}) {
    for (const WORD flags : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}}) {
      const ComRef<FakeObject> foreign = Fake(manner);
      foreign->Gives(u"Count", Number(0)).Gives(u"Item", Typed(VT_EMPTY));
      EXPECT_EQ(client_.Put(u"Holder", Dispatch(foreign), flags).code, S_OK);
      const Answer back = client_.Call(u"Holder");
      EXPECT_EQ(Query<IUnknown>(back.Object().Get()).Get(), Query<IUnknown>(foreign.Get()).Get());
    }
  }
}

TEST_F(ObjectArguments, AForeignCollectionIsReleasedWithItsOwner) {
  const int before = FakeObject::Living();
  {
    const ComRef<FakeObject> foreign = Fake();
    foreign->Gives(u"Count", Number(0)).Gives(u"Item", Typed(VT_EMPTY));
    EXPECT_EQ(client_.Put(u"Holder", Dispatch(foreign)).code, S_OK);
  }
  EXPECT_EQ(FakeObject::Living(), before + 1);
  record_ = nullptr;
  client_ = Client(ComRef<IDispatch>());
  EXPECT_EQ(FakeObject::Living(), before);
}

TEST_F(ObjectArguments, OurOwnCollectionIsTakenAsItself) {
  const Ref<Collection> own = Make<Collection>();
  const Client face(*own);
  EXPECT_EQ(client_.Put(u"Holder", Dispatch(face.Get())).code, S_OK);
  EXPECT_EQ(record_->holder.Get(), own.Get());
}

TEST_F(ObjectArguments, AForeignObjectIsNoneOfOurs) {
  const ComRef<FakeObject> foreign = Fake();
  EXPECT_EQ(client_.Call(u"EchoObject", {Dispatch(foreign)}).errorCode, static_cast<std::int32_t>(0x800A000D));
  EXPECT_FALSE(OwnObject(foreign.Get()));
  EXPECT_FALSE(OwnObject(nullptr));
}

TEST_F(ObjectArguments, AForeignCollectionIsDescribedAsForeign) {
  const ComRef<FakeObject> foreign = Fake();
  foreign->Gives(u"Count", Number(0)).Gives(u"Item", Number(0));
  EXPECT_EQ(CollectionFrom(*foreign.Get(), nullptr)->Description().name, u"ForeignObject");
}

TEST_F(ObjectArguments, AVirtualCallHasNoArgumentOfAnyType) {
  EXPECT_THROW(static_cast<void>(FromWord(0, ValueType::Any)), toolkit::RuntimeError);
}

TEST_F(ObjectArguments, NothingInPlaceOfACollectionRaises91) {
  const Answer answer = client_.Put(u"Holder", Dispatch(static_cast<IDispatch*>(nullptr)));
  EXPECT_EQ(answer.errorCode, static_cast<std::int32_t>(0x800A005B));
}

TEST_F(ObjectArguments, AnObjectThatIsNoCollectionIsATypeMismatch) {
  const ComRef<FakeObject> foreign = Fake();
  foreign->Gives(u"Count", Number(0));
  const Answer answer = client_.Put(u"Holder", Dispatch(foreign));
  EXPECT_EQ(answer.errorCode, static_cast<std::int32_t>(0x800A000D));
  EXPECT_FALSE(record_->holder);
}

TEST_F(ObjectArguments, AValueInPlaceOfACollectionIsATypeMismatch) {
  EXPECT_EQ(client_.Put(u"Holder", Number(3)).code, DISP_E_TYPEMISMATCH);
}

}  // namespace
}  // namespace qorltst::automation::test
