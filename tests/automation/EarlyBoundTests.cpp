// A compiled client: the header made from the type library, against the component's library as it is delivered.
#include <gtest/gtest.h>

#include "automation/Com.h"
#include "automation/Identities.h"
#include "automation/Text.h"
#include "support/FakeObject.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"

// The system's interface compiler writes this one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wredundant-decls"
#pragma GCC diagnostic ignored "-Wwrite-strings"
#pragma GCC diagnostic ignored "-Wextra-semi"
#pragma GCC diagnostic ignored "-Wmissing-declarations"
#include "client/QorlTST.h"
#pragma GCC diagnostic pop

namespace qorltst::automation::test {
namespace {

class EarlyBound : public testing::Test {
 protected:
  template <class Interface>
  ComRef<Interface> Create(std::u16string_view name) {
    return Query<Interface>(server_.Create(SystemGuid(ComponentLibrary().IdentityOf(name)->classId)).Get());
  }

  static std::u16string Taken(BSTR text) {
    std::u16string taken(View(text));
    SysFreeString(text);
    return taken;
  }

  void TearDown() override {
    tst_ = nullptr;
    EXPECT_EQ(server_.CanUnloadNow(), S_OK) << "references are left over";
  }

  ServerFile server_{BesideProgram(u"QorlTST.dll")};
  ComRef<_TST> tst_ = Create<_TST>(u"TST");
};

TEST_F(EarlyBound, IdentifiersAreThoseOfTheLibrary) {
  EXPECT_TRUE(IsEqualGUID(__uuidof(_TST), SystemGuid(ComponentLibrary().IdentityOf(u"TST")->interfaceId)));
  EXPECT_TRUE(IsEqualGUID(__uuidof(TST), SystemGuid(ComponentLibrary().IdentityOf(u"TST")->classId)));
}

TEST_F(EarlyBound, ANewTicketIsEmpty) {
  BSTR text = nullptr;
  CY amount{};
  amount.int64 = 1;
  ASSERT_EQ(tst_->get_FareBaseLineText(&text), S_OK);
  EXPECT_EQ(Taken(text), u"");
  ASSERT_EQ(tst_->get_FareBaseLineBaseAmount(&amount), S_OK);
  EXPECT_EQ(amount.int64, 0);
}

TEST_F(EarlyBound, TheLastMemberIsInItsPlace) {
  BSTR text = nullptr;
  ASSERT_EQ(tst_->get_NetFareBaseLineErrorText(&text), S_OK);
  EXPECT_EQ(Taken(text), u"");
}

TEST_F(EarlyBound, PartsHaveTheirOwnInterfaces) {
  ComRef<_TSTHeader> header;
  ComRef<_FareCalculation> fareCalculation;
  ComRef<_Collection> segments;
  LONG count = -1;
  ASSERT_EQ(tst_->get_TSTHeader(header.Receive()), S_OK);
  ASSERT_EQ(tst_->get_FareCalculation(fareCalculation.Receive()), S_OK);
  ASSERT_EQ(tst_->get_AirSegments(segments.Receive()), S_OK);
  ASSERT_EQ(segments->get_Count(&count), S_OK);
  EXPECT_EQ(count, 0);
  BSTR text = nullptr;
  ASSERT_EQ(header->get_Text(&text), S_OK);
  EXPECT_EQ(Taken(text), u"");
}

TEST_F(EarlyBound, AWrongIndexLeavesErrorInformation) {
  ComRef<_Collection> segments;
  ASSERT_EQ(tst_->get_AirSegments(segments.Receive()), S_OK);
  IDispatch* item = segments.Get();
  EXPECT_EQ(segments->Item(1, &item), static_cast<HRESULT>(0x800A0009));
  EXPECT_EQ(item, nullptr);
  ComRef<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  BSTR source = nullptr;
  info->GetSource(&source);
  EXPECT_EQ(Taken(source), u"QorlTST");
}

TEST_F(EarlyBound, ARetrievalWithoutASessionAnswers3004) {
  LONG code = 0;
  EXPECT_EQ(tst_->RetrieveCurrentTst(nullptr, &code), S_OK);
  EXPECT_EQ(code, 3004);
}

TEST_F(EarlyBound, ASessionThatFailsGivesAResultCodeAndNoError) {
  const ComRef<FakeObject> session = Fake();
  LONG code = -1;
  EXPECT_EQ(tst_->RetrieveCurrentTst(session.Get(), &code), S_OK);
  EXPECT_EQ(code, 0);
  EXPECT_GT(session->CountOf("names"), 0U);
}

TEST_F(EarlyBound, ACollectionOfTheCallersIsKeptAndGivenBack) {
  const ComRef<FakeObject> own = Fake();
  own->Gives(u"Count", Number(0)).Gives(u"Item", Typed(VT_EMPTY));
  ASSERT_EQ(tst_->putref_PublishedAndNetFares(own.Get()), S_OK);
  ComRef<IDispatch> back;
  ASSERT_EQ(tst_->get_PublishedAndNetFares(back.Receive()), S_OK);
  EXPECT_EQ(back.Get(), static_cast<IDispatch*>(own.Get()));
  EXPECT_EQ(tst_->putref_PublishedAndNetFares(nullptr), static_cast<HRESULT>(0x800A005B));
}

TEST_F(EarlyBound, TheLogTakesEveryKindOfArgument) {
  const ComRef<_EtLog> log = Create<_EtLog>(u"EtLog");
  const ScopedBstr text(u"text");
  EXPECT_EQ(log->LogVbError(-7, text.Get(), nullptr, text.Get(), 3004), S_OK);
  EXPECT_EQ(log->LogTrace(text.Get(), nullptr), S_OK);
  EXPECT_EQ(log->put_Source(text.Get()), S_OK);
  BSTR source = nullptr;
  ASSERT_EQ(log->get_Source(&source), S_OK);
  EXPECT_EQ(Taken(source), u"text");
}

}  // namespace
}  // namespace qorltst::automation::test
