// A program that uses the component by the manifests beside it, while nothing of the component is registered.
// registration-free.sh lays out its folder from the package; the first argument is a recorded display.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>

#include "automation/Com.h"
#include "automation/Identities.h"
#include "automation/Server.h"
#include "automation/Text.h"
#include "support/Client.h"

namespace qorltst::automation {

// The machinery that this program links has no server of its own to serve.
const Server& ThisServer() noexcept {
  static const Server none{ComponentLibrary(), nullptr};
  return none;
}

namespace test {
namespace {

std::u16string display;

GUID InterfaceIdOf(const ClassDescription& description) {
  return SystemGuid(ComponentLibrary().IdentityOf(description.name)->interfaceId);
}

/// Creates by name, as scripts do.
ComRef<IDispatch> Create(const std::u16string& name) {
  GUID classId{};
  ComRef<IDispatch> object;
  EXPECT_EQ(CLSIDFromProgID(SystemText(name), &classId), S_OK);
  EXPECT_EQ(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                             reinterpret_cast<void**>(object.Receive())),
            S_OK);
  return object;
}

std::u16string FolderOf(HMODULE module) {
  std::array<wchar_t, 1024> path{};
  const DWORD length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
  const std::u16string full(View(path.data(), length));
  return full.substr(0, full.rfind(u'\\'));
}

TEST(RegistrationFree, NothingOfTheComponentIsRegistered) {
  for (const ClassDescription* const description : ComponentLibrary().CreatableClasses()) {
    const std::u16string name = ComponentLibrary().ProgramIdsOf(*description).plain;
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CLASSES_ROOT, SystemText(name), 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
  }
}

// Without registration the system gives a name another class id than the class's own; what it makes tells.
TEST(RegistrationFree, EveryClassIsCreatedByBothItsNames) {
  for (const ClassDescription* const description : ComponentLibrary().CreatableClasses()) {
    const ProgramIds names = ComponentLibrary().ProgramIdsOf(*description);
    for (const std::u16string& name : {names.plain, names.versioned}) {
      const ComRef<IDispatch> object = Create(name);
      ASSERT_TRUE(object) << std::string(name.begin(), name.end());
      ComRef<IUnknown> face;
      EXPECT_EQ(object->QueryInterface(InterfaceIdOf(*description), reinterpret_cast<void**>(face.Receive())), S_OK)
          << std::string(name.begin(), name.end());
    }
  }
}

TEST(RegistrationFree, EveryClassIsCreatedByItsClassId) {
  for (const ClassDescription* const description : ComponentLibrary().CreatableClasses()) {
    const GUID classId = SystemGuid(ComponentLibrary().IdentityOf(description->name)->classId);
    ComRef<IUnknown> object;
    EXPECT_EQ(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, InterfaceIdOf(*description),
                               reinterpret_cast<void**>(object.Receive())),
              S_OK);
  }
}

TEST(RegistrationFree, TheLibraryBesideTheProgramServes) {
  const ComRef<IDispatch> object = Create(u"QorlTST.TST");
  HMODULE const library = GetModuleHandleW(L"QorlTST.dll");
  ASSERT_NE(library, nullptr);
  EXPECT_EQ(FolderOf(library), FolderOf(nullptr));
}

/// Takes the object over in an apartment of its own and asks it for a property, which it returns; negative if it
/// cannot.
std::int32_t AskElsewhere(IStream* crossing, const GUID& interfaceId) {
  ComRef<IDispatch> object;
  const HRESULT code =
      CoGetInterfaceAndReleaseStream(crossing, interfaceId, reinterpret_cast<void**>(object.Receive()));
  return FAILED(code) ? code : Client(std::move(object)).Call(u"ClassDebugID").Long();
}

TEST(RegistrationFree, AnObjectIsUsedFromAnotherApartment) {
  const ComRef<IDispatch> tst = Create(u"QorlTST.TST");
  ASSERT_TRUE(tst);
  const GUID interfaceId = SystemGuid(ComponentLibrary().IdentityOf(u"TST")->interfaceId);
  IStream* crossing = nullptr;
  ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(interfaceId, tst.Get(), &crossing), S_OK);

  HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::int32_t debugId = 0;
  std::thread other([&] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    debugId = AskElsewhere(crossing, interfaceId);
    CoUninitialize();
    SetEvent(done);
  });
  // Calls come in while this thread waits.
  DWORD index = 0;
  EXPECT_EQ(CoWaitForMultipleHandles(0, 20000, 1, &done, &index), S_OK);
  other.join();
  CloseHandle(done);

  EXPECT_GT(debugId, 0);
  EXPECT_EQ(debugId, Client(tst).Call(u"ClassDebugID").Long());
}

TEST(RegistrationFree, ATicketIsRetrieved) {
  const ComRef<IDispatch> session = Create(u"QorlHostToolkit.RecordedSession");
  const ComRef<IDispatch> tst = Create(u"QorlTST.TST");
  ASSERT_TRUE(session && tst);
  ASSERT_EQ(Client(session).Call(u"Load", {String(display)}).code, S_OK);
  const Answer answer = Client(tst).Call(u"RetrieveCurrentTst", {Dispatch(session.Get())});
  ASSERT_EQ(answer.code, S_OK);
  EXPECT_EQ(answer.Long(), 0);
  EXPECT_FALSE(Client(tst).Call(u"TotalCurrencyCode").Text().empty());
}

}  // namespace
}  // namespace test
}  // namespace qorltst::automation

int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  if (argumentCount != 2 || FAILED(CoInitialize(nullptr))) {
    return 1;
  }
  const std::string path = arguments[1];
  qorltst::automation::test::display.assign(path.begin(), path.end());
  const int result = RUN_ALL_TESTS();
  CoUninitialize();
  return result;
}
