// Registration and its removal, on a registry of the test's own below the user's key.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "automation/Identities.h"
#include "automation/Registration.h"
#include "automation/Text.h"
#include "frame/EtLog.h"
#include "frame/TST.h"
#include "support/ServerFile.h"
#include "support/TestServer.h"

namespace qorltst::automation::test {
namespace {

constexpr const wchar_t* kOwnRoot = L"Software\\QorlTSTRegistrationTest";

/// Keys and values of a tree as text.
using Snapshot = std::vector<std::u16string>;

void Collect(HKEY key, const std::u16string& path, Snapshot& found) {
  found.push_back(path);
  std::vector<wchar_t> name(512);
  std::vector<BYTE> data(4096);
  for (DWORD i = 0;; ++i) {
    auto nameLength = static_cast<DWORD>(name.size());
    auto dataLength = static_cast<DWORD>(data.size());
    DWORD type = 0;
    if (RegEnumValueW(key, i, name.data(), &nameLength, nullptr, &type, data.data(), &dataLength) != ERROR_SUCCESS) {
      break;
    }
    std::u16string line = path + u" | " + std::u16string(View(name.data(), nameLength)) + u" = ";
    line.append(View(reinterpret_cast<const wchar_t*>(data.data()), dataLength / sizeof(wchar_t)));
    found.push_back(line);
  }
  for (DWORD i = 0;; ++i) {
    auto nameLength = static_cast<DWORD>(name.size());
    if (RegEnumKeyExW(key, i, name.data(), &nameLength, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
      break;
    }
    HKEY below = nullptr;
    if (RegOpenKeyExW(key, name.data(), 0, KEY_READ, &below) == ERROR_SUCCESS) {
      Collect(below, path + u"\\" + std::u16string(View(name.data(), nameLength)), found);
      RegCloseKey(below);
    }
  }
}

/// Fails at one of the calls that change something.
class FailingRegistry final : public Registry {
 public:
  explicit FailingRegistry(int failAt) : failAt_(failAt) {}

  bool HasKey(const std::u16string& key) override { return SystemRegistry().HasKey(key); }
  std::optional<std::u16string> Read(const std::u16string& key, const std::u16string& name) override {
    return SystemRegistry().Read(key, name);
  }
  HRESULT MakeKey(const std::u16string& key) override {
    return Fails() ? E_ACCESSDENIED : SystemRegistry().MakeKey(key);
  }
  HRESULT Write(const std::u16string& key, const std::u16string& name, const std::u16string& value) override {
    return Fails() ? E_ACCESSDENIED : SystemRegistry().Write(key, name, value);
  }
  HRESULT RemoveValue(const std::u16string& key, const std::u16string& name) override {
    return SystemRegistry().RemoveValue(key, name);
  }
  HRESULT RemoveKey(const std::u16string& key) override { return SystemRegistry().RemoveKey(key); }
  std::optional<std::u16string> TypeLibraryPath(const GUID& id, WORD majorVersion, WORD minorVersion) override {
    return SystemRegistry().TypeLibraryPath(id, majorVersion, minorVersion);
  }
  HRESULT AddTypeLibrary(const std::u16string& path) override {
    // Fails after the work was done, which is worse than before.
    const HRESULT code = SystemRegistry().AddTypeLibrary(path);
    return Fails() ? TYPE_E_REGISTRYACCESS : code;
  }
  HRESULT RemoveTypeLibrary(const GUID& id, WORD majorVersion, WORD minorVersion) override {
    return SystemRegistry().RemoveTypeLibrary(id, majorVersion, minorVersion);
  }

  [[nodiscard]] bool Failed() const noexcept { return calls_ >= failAt_; }

 private:
  bool Fails() { return ++calls_ == failAt_; }

  int failAt_;
  int calls_ = 0;
};

class Registering : public testing::Test {
 protected:
  void SetUp() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, kOwnRoot);
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kOwnRoot, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                              &root_, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(RegOverridePredefKey(HKEY_CLASSES_ROOT, root_), ERROR_SUCCESS);
    for (const char16_t* const key : {u"CLSID", u"Interface", u"TypeLib"}) {
      ASSERT_EQ(SystemRegistry().MakeKey(key), S_OK);
    }
  }

  void TearDown() override {
    RegOverridePredefKey(HKEY_CLASSES_ROOT, nullptr);
    RegCloseKey(root_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kOwnRoot);
  }

  Snapshot Take() const {
    Snapshot found;
    Collect(root_, u"", found);
    return found;
  }

  static HRESULT RegisterNow(Registry& registry = SystemRegistry()) {
    return Register(ComponentLibrary(), path_, registry);
  }

  /// Each failure leaves everything as it was; there are more steps than `least`.
  void FailAtEveryStep(const Library& library, int least) {
    const Snapshot before = Take();
    for (int step = 1;; ++step) {
      FailingRegistry registry(step);
      const HRESULT code = Register(library, path_, registry);
      if (!registry.Failed()) {
        EXPECT_EQ(code, S_OK);
        EXPECT_GT(step, least);
        break;
      }
      ASSERT_TRUE(FAILED(code)) << "step " << step;
      ASSERT_EQ(Take(), before) << "step " << step;
    }
  }

  inline static const std::u16string path_ = BesideProgram(u"QorlTST.dll");

 private:
  HKEY root_ = nullptr;
};

TEST_F(Registering, EveryCreatableClassGetsItsNames) {
  ASSERT_EQ(RegisterNow(), S_OK);
  Registry& registry = SystemRegistry();
  for (const ClassDescription* const description : ComponentLibrary().classes()) {
    const std::u16string name = u"QorlTST." + std::u16string(description->name);
    const auto classId = registry.Read(name + u"\\CLSID", u"");
    EXPECT_EQ(classId.has_value(), description->create != nullptr);
    if (!classId) {
      continue;
    }
    const std::u16string key = u"CLSID\\" + *classId;
    EXPECT_EQ(registry.Read(name + u"\\CurVer", u""), name + u".1");
    EXPECT_EQ(registry.Read(name + u".1\\CLSID", u""), classId);
    EXPECT_EQ(registry.Read(key + u"\\InprocServer32", u""), path_);
    EXPECT_EQ(registry.Read(key + u"\\InprocServer32", u"ThreadingModel"), u"Apartment");
    EXPECT_EQ(registry.Read(key + u"\\ProgID", u""), name + u".1");
    EXPECT_EQ(registry.Read(key + u"\\VersionIndependentProgID", u""), name);
    EXPECT_EQ(registry.Read(key + u"\\Version", u""), u"1.0");
    EXPECT_TRUE(registry.HasKey(key + u"\\Programmable"));
    EXPECT_EQ(registry.Read(key + u"\\TypeLib", u""), u"{6A260773-DD7A-41FD-8AB0-D439AB04E997}");
  }
}

TEST_F(Registering, TheTypeLibraryIsRegistered) {
  ASSERT_EQ(RegisterNow(), S_OK);
  EXPECT_TRUE(SystemRegistry().HasKey(u"TypeLib\\{6A260773-DD7A-41FD-8AB0-D439AB04E997}\\1.0"));
}

TEST_F(Registering, RemovalLeavesTheRegistryAsItWas) {
  const Snapshot before = Take();
  ASSERT_EQ(RegisterNow(), S_OK);
  EXPECT_GT(Take().size(), before.size() + 20);
  EXPECT_EQ(Unregister(ComponentLibrary(), SystemRegistry()), S_OK);
  EXPECT_EQ(Take(), before);
}

TEST_F(Registering, RegisteringTwiceIsRegisteringOnce) {
  const Snapshot before = Take();
  ASSERT_EQ(RegisterNow(), S_OK);
  const Snapshot once = Take();
  ASSERT_EQ(RegisterNow(), S_OK);
  EXPECT_EQ(Take(), once);
  EXPECT_EQ(Unregister(ComponentLibrary(), SystemRegistry()), S_OK);
  EXPECT_EQ(Take(), before);
}

TEST_F(Registering, RemovingWhatIsNotThereIsNoFailure) {
  const Snapshot before = Take();
  EXPECT_EQ(Unregister(ComponentLibrary(), SystemRegistry()), S_OK);
  EXPECT_EQ(Take(), before);
}

TEST_F(Registering, AFileWithoutATypeLibraryIsNotRegistered) {
  const Snapshot before = Take();
  EXPECT_TRUE(FAILED(Register(ComponentLibrary(), u"C:\\nowhere\\QorlTST.dll", SystemRegistry())));
  EXPECT_EQ(Take(), before);
}

/// Two classes are enough for every kind of step.
Library SmallLibrary() {
  static const std::array<const ClassDescription*, 2> classes{&TST::kDescription, &EtLog::kDescription};
  Library library = ComponentLibrary();
  library.classes = [] { return std::span<const ClassDescription* const>(classes); };
  return library;
}

TEST_F(Registering, AFailureAtAnyStepIsUndone) { FailAtEveryStep(SmallLibrary(), 20); }

TEST_F(Registering, AFailureOverAnOlderRegistrationRestoresThat) {
  const Library library = SmallLibrary();
  ASSERT_EQ(Register(library, path_, SystemRegistry()), S_OK);
  ASSERT_EQ(SystemRegistry().Write(u"QorlTST.EtLog", u"", u"older text"), S_OK);
  FailAtEveryStep(library, 15);
}

TEST_F(Registering, WhatCannotBeWrittenIsSaid) {
  EXPECT_TRUE(FAILED(SystemRegistry().Write(u"NoSuchKey", u"", u"text")));
  EXPECT_TRUE(FAILED(SystemRegistry().MakeKey(u"NoSuchKey\\" + std::u16string(300, u'x'))));
}

TEST_F(Registering, ANameOfAnotherLibraryIsNotTakenOver) {
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlTST.EtLog"), S_OK);
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlTST.EtLog\\CLSID"), S_OK);
  ASSERT_EQ(SystemRegistry().Write(u"QorlTST.EtLog\\CLSID", u"", u"{11111111-2222-3333-4444-555555555555}"), S_OK);
  const Snapshot before = Take();
  EXPECT_EQ(RegisterNow(), kNameTaken);
  EXPECT_EQ(Take(), before);
  EXPECT_EQ(Unregister(ComponentLibrary(), SystemRegistry()), S_OK);
  EXPECT_EQ(Take(), before);
}

TEST_F(Registering, BothLibrariesRegisterAndRemoveThemselves) {
  const Snapshot before = Take();
  for (const std::u16string_view name : {u"QorlTST.dll", u"QorlHostToolkit.dll"}) {
    const ServerFile file(BesideProgram(name));
    ASSERT_EQ(file.Register(), S_OK);
    EXPECT_GT(Take().size(), before.size() + 20);
    EXPECT_EQ(file.Unregister(), S_OK);
    EXPECT_EQ(Take(), before);
  }
}

TEST_F(Registering, TheSimulatedToolkitDoesNotTakeTheRealOnesPlace) {
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlHostToolkit.ParseNode"), S_OK);
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlHostToolkit.ParseNode\\CLSID"), S_OK);
  ASSERT_EQ(SystemRegistry().Write(u"QorlHostToolkit.ParseNode\\CLSID", u"", u"{11111111-2222-3333-4444-555555555555}"),
            S_OK);
  const Snapshot before = Take();
  const ServerFile file(BesideProgram(u"QorlHostToolkit.dll"));
  EXPECT_EQ(file.Register(), kNameTaken);
  EXPECT_EQ(Take(), before);
  EXPECT_EQ(file.Unregister(), S_OK);
  EXPECT_EQ(Take(), before);
}

TEST_F(Registering, ARefusalSaysWhy) {
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlTST.TST.1"), S_OK);
  ASSERT_EQ(SystemRegistry().MakeKey(u"QorlTST.TST.1\\CLSID"), S_OK);
  ASSERT_EQ(SystemRegistry().Write(u"QorlTST.TST.1\\CLSID", u"", u"{11111111-2222-3333-4444-555555555555}"), S_OK);
  SetErrorInfo(0, nullptr);
  EXPECT_EQ(RegisterNow(), kNameTaken);
  ComRef<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  BSTR description = nullptr;
  info->GetDescription(&description);
  EXPECT_EQ(View(description), u"A name of this library belongs to another one.");
  SysFreeString(description);
}

}  // namespace
}  // namespace qorltst::automation::test
