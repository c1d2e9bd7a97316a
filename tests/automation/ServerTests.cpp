// The component's library as a host sees it: class factories, and when it may be unloaded.
#include <gtest/gtest.h>

#include "automation/Identities.h"
#include "support/Client.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"

namespace qorltst::automation::test {
namespace {

GUID ClassIdOf(std::u16string_view name) { return SystemGuid(ComponentLibrary().IdentityOf(name)->classId); }

class Servers : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(server_.IsLoaded());
    ASSERT_EQ(server_.CanUnloadNow(), S_OK);
  }

  void TearDown() override { EXPECT_EQ(server_.CanUnloadNow(), S_OK) << "references are left over"; }

  ServerFile server_{BesideProgram(u"QorlTST.dll")};
};

TEST_F(Servers, EveryCreatableClassIsCreated) {
  for (const ClassDescription* const description : ComponentLibrary().classes()) {
    const bool made = static_cast<bool>(server_.Create(ClassIdOf(description->name)));
    EXPECT_EQ(made, description->create != nullptr) << std::string(description->name.begin(), description->name.end());
  }
}

TEST_F(Servers, ANewObjectHasItsEmptyParts) {
  const Client tst(server_.Create(ClassIdOf(u"TST")));
  EXPECT_EQ(Client(tst.Call(u"AirSegments").Object()).Call(u"Count").Long(), 0);
  EXPECT_EQ(Client(tst.Call(u"TSTHeader").Object()).Call(u"Text").Text(), u"");
}

TEST_F(Servers, DebugIdsCountUp) {
  const Client first(server_.Create(ClassIdOf(u"FEElement")));
  const Client second(server_.Create(ClassIdOf(u"FEElement")));
  EXPECT_EQ(second.Call(u"ClassDebugID").Long(), first.Call(u"ClassDebugID").Long() + 1);
}

TEST_F(Servers, AnUnknownClassIsNotAvailable) {
  void* out = &server_;
  EXPECT_EQ(server_.GetClassObject(IID_IPersist, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(out, nullptr);
}

TEST_F(Servers, AFactoryAnswersItsOwnInterfacesOnly) {
  void* out = &server_;
  EXPECT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(Servers, ObjectsAreNotAggregated) {
  const Client outer(server_.Create(ClassIdOf(u"EtLog")));
  ComRef<IClassFactory> factory;
  ASSERT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IClassFactory, factory.ReceiveAny()), S_OK);
  void* out = &factory;
  EXPECT_EQ(factory->CreateInstance(outer.Get(), IID_IUnknown, &out), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(out, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(factory->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(Query<IUnknown>(factory.Get()).Get(), factory.Get());
}

TEST_F(Servers, AnObjectWithoutTheWantedInterfaceIsNotLeftBehind) {
  ComRef<IClassFactory> factory;
  ASSERT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IClassFactory, factory.ReceiveAny()), S_OK);
  void* out = &factory;
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IPersist, &out), E_NOINTERFACE);
  EXPECT_EQ(out, nullptr);
}

TEST_F(Servers, ALivingObjectKeepsTheLibrary) {
  const ComRef<IDispatch> object = server_.Create(ClassIdOf(u"EtLog"));
  EXPECT_EQ(server_.CanUnloadNow(), S_FALSE);
}

TEST_F(Servers, AHeldPartKeepsTheLibraryWithoutItsOwner) {
  const ComRef<IDispatch> part = Client(server_.Create(ClassIdOf(u"TST"))).Call(u"TSTHeader").Object();
  EXPECT_EQ(server_.CanUnloadNow(), S_FALSE);
  EXPECT_EQ(Client(part).Call(u"Text").Text(), u"");
}

TEST_F(Servers, AnEnumeratorKeepsTheLibrary) {
  const Answer items =
      Client(Client(server_.Create(ClassIdOf(u"TST"))).Call(u"AirSegments").Object()).Call(DISPID_NEWENUM);
  ASSERT_EQ(items.value.Get().vt, VT_UNKNOWN);
  EXPECT_EQ(server_.CanUnloadNow(), S_FALSE);
}

TEST_F(Servers, AFactoryAndALockKeepTheLibrary) {
  ComRef<IClassFactory> factory;
  ASSERT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IClassFactory, factory.ReceiveAny()), S_OK);
  EXPECT_EQ(server_.CanUnloadNow(), S_FALSE);
  factory->LockServer(TRUE);
  factory = nullptr;
  EXPECT_EQ(server_.CanUnloadNow(), S_FALSE);
  ASSERT_EQ(server_.GetClassObject(ClassIdOf(u"TST"), IID_IClassFactory, factory.ReceiveAny()), S_OK);
  factory->LockServer(FALSE);
}

TEST_F(Servers, ACollectionMayBeReplacedButNotByNothing) {
  const Client tst(server_.Create(ClassIdOf(u"TST")));
  const ComRef<IDispatch> other = tst.Call(u"TaxElements").Object();
  EXPECT_EQ(tst.Put(u"PublishedAndNetFares", Dispatch(other.Get()), DISPATCH_PROPERTYPUTREF).code, S_OK);
  EXPECT_EQ(tst.Call(u"PublishedAndNetFares").Object().Get(), other.Get());
  EXPECT_EQ(tst.Put(u"PublishedAndNetFares", Dispatch(static_cast<IDispatch*>(nullptr))).errorCode,
            static_cast<std::int32_t>(0x800A005B));
  EXPECT_EQ(tst.Put(u"PublishedAndNetFares", Dispatch(tst.Get())).errorCode, static_cast<std::int32_t>(0x800A000D));
  EXPECT_EQ(tst.Call(u"PublishedAndNetFares").Object().Get(), other.Get());
}

TEST_F(Servers, ARetrievalWithoutASessionAnswers3004) {
  const Client tst(server_.Create(ClassIdOf(u"TST")));
  EXPECT_EQ(tst.Call(u"RetrieveCurrentTst", {Dispatch(static_cast<IDispatch*>(nullptr))}).Long(), 3004);
  EXPECT_EQ(tst.Call(u"RetrieveSpecificTst", {Typed(VT_EMPTY), String(u"TQT/T2")}).Long(), 3004);
}

TEST(ServerCycles, TenThousandLoadsAndUnloadsHoldInOneHost) {
  const GUID classId = ClassIdOf(u"EtLog");
  for (int i = 0; i < 10000; ++i) {
    const ServerFile server(BesideProgram(u"QorlTST.dll"));
    ASSERT_TRUE(server.IsLoaded()) << i;
    const Client log(server.Create(classId));
    // Also an exception in each cycle.
    ASSERT_EQ(log.Call(u"LogHostError", {String(u"abc")}).code, DISP_E_TYPEMISMATCH) << i;
  }
}

}  // namespace
}  // namespace qorltst::automation::test
