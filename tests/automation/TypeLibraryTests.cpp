// The type library that the component's library carries: compared with an approved dump, and used for dispatch.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "automation/Identities.h"
#include "automation/Text.h"
#include "support/Client.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"
#include "support/TypeLibraryDump.h"

namespace qorltst::automation::test {
namespace {

ComRef<ITypeLib> BuiltLibrary() {
  ComRef<ITypeLib> library;
  EXPECT_EQ(LoadTypeLibEx(SystemText(BesideProgram(u"QorlTST.dll")), REGKIND_NONE, library.Receive()), S_OK);
  return library;
}

TEST(TypeLibrary, ThePublicFaceIsAsApproved) {
  const std::string dump = DumpTypeLibrary(*BuiltLibrary().Get());
  const std::string path = SourcePath("tests/automation/approved/QorlTST.tlb.txt");
  std::ifstream file(path, std::ios::binary);
  std::ostringstream approved;
  approved << file.rdbuf();
  if (approved.str() != dump) {
    // What was received stands beside the program, ready to be compared and approved.
    const std::u16string received = BesideProgram(u"QorlTST.tlb.received.txt");
    std::ofstream(std::string(received.begin(), received.end()), std::ios::binary) << dump;
  }
  EXPECT_TRUE(approved.str() == dump) << "compare QorlTST.tlb.received.txt in the build folder with " << path;
}

class TypeInformation : public testing::Test {
 protected:
  TypeInformation() { log_->GetTypeInfo(0, LOCALE_USER_DEFAULT, info_.Receive()); }

  /// A call through the type information, as clients without an `Invoke` of their own make it.
  HRESULT Invoke(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, Variant& result) {
    std::vector<VARIANT> reversed(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    DISPID named = DISPID_PROPERTYPUT;
    if (flags == DISPATCH_PROPERTYPUT) {
      parameters.rgdispidNamedArgs = &named;
      parameters.cNamedArgs = 1;
    }
    EXCEPINFO info{};
    UINT argument = 0;
    return info_->Invoke(object, id, flags, &parameters, &result.Get(), &info, &argument);
  }

  ServerFile server_{BesideProgram(u"QorlTST.dll")};
  ComRef<IDispatch> log_ = server_.Create(SystemGuid(ComponentLibrary().IdentityOf(u"EtLog")->classId));
  ComRef<ITypeInfo> info_;
};

TEST_F(TypeInformation, IsThereWithoutRegistration) {
  UINT count = 0;
  EXPECT_EQ(log_->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1U);
  ASSERT_TRUE(info_);
}

TEST_F(TypeInformation, IsOneForAllObjectsOfAClass) {
  const ComRef<IDispatch> other = server_.Create(SystemGuid(ComponentLibrary().IdentityOf(u"EtLog")->classId));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(other->GetTypeInfo(0, 0, info.Receive()), S_OK);
  EXPECT_EQ(info.Get(), info_.Get());
}

TEST_F(TypeInformation, HasOneInterfaceOnly) {
  ITypeInfo* info = info_.Get();
  EXPECT_EQ(log_->GetTypeInfo(1, 0, &info), DISP_E_BADINDEX);
  EXPECT_EQ(info, nullptr);
}

TEST_F(TypeInformation, NamesTheClass) {
  ComRef<ITypeInfo> info;
  const ComRef<IProvideClassInfo> provider = Query<IProvideClassInfo>(log_.Get());
  ASSERT_TRUE(provider);
  ASSERT_EQ(provider->GetClassInfo(info.Receive()), S_OK);
  BSTR name = nullptr;
  ASSERT_EQ(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
  EXPECT_EQ(View(name), u"EtLog");
  SysFreeString(name);
}

TEST_F(TypeInformation, GivesTheIdsThatDispatchGives) {
  for (const std::u16string_view name : {u"Log", u"LogHostError", u"Source", u"LogTrace"}) {
    const ScopedBstr text(name);
    LPOLESTR wanted = text.Get();
    MEMBERID id = 0;
    ASSERT_EQ(info_->GetIDsOfNames(&wanted, 1, &id), S_OK);
    EXPECT_EQ(id, Client(log_).IdOf(name));
  }
}

TEST_F(TypeInformation, CallsReachTheVirtualTable) {
  Variant before;
  ASSERT_EQ(Invoke(log_.Get(), 4, DISPATCH_PROPERTYGET, {}, before), S_OK);
  EXPECT_EQ(View(before.Get().bstrVal), u"QorlTST.");
  Variant none;
  ASSERT_EQ(Invoke(log_.Get(), 4, DISPATCH_PROPERTYPUT, {String(u"Other.")}, none), S_OK);
  EXPECT_EQ(Client(log_).Call(u"Source").Text(), u"Other.");
}

TEST_F(TypeInformation, ArgumentsLeftOutHaveTheirDefaults) {
  Variant none;
  EXPECT_EQ(Invoke(log_.Get(), 3, DISPATCH_METHOD, {Number(1), String(u"text")}, none), S_OK);
  EXPECT_EQ(Invoke(log_.Get(), 3, DISPATCH_METHOD, {Number(1)}, none), DISP_E_BADPARAMCOUNT);
}

}  // namespace
}  // namespace qorltst::automation::test
