// The registered toolkit: found by its names, its class factories kept while somebody uses it.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "automation/LateBoundToolkit.h"
#include "automation/Text.h"
#include "support/TestServer.h"
#include "toolkit/HostNumbers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::automation::test {
namespace {

/// In its scope the toolkit's names stand for this library, whatever the registry says.
class Installed {
 public:
  explicit Installed(const std::string& library) {
    const std::u16string directory = BesideProgram(u"");
    const std::u16string path =
        BesideProgram(u"toolkit-" + std::u16string(library.begin(), library.end()) + u".manifest");
    WriteManifest(std::string(path.begin(), path.end()), library);
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    description.lpSource = SystemText(path);
    description.lpAssemblyDirectory = SystemText(directory);
    context_ = CreateActCtxW(&description);
    EXPECT_NE(context_, INVALID_HANDLE_VALUE);
    EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
  }
  Installed(const Installed&) = delete;
  Installed& operator=(const Installed&) = delete;
  ~Installed() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
  }

 private:
  static void WriteManifest(const std::string& path, const std::string& library) {
    std::ofstream file(path, std::ios::binary);
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
         << "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
         << "  <assemblyIdentity type=\"win32\" name=\"ToolkitTest\" version=\"1.0.0.0\"/>\n"
         << "  <file name=\"" << library << "\">\n"
         << "    <comClass clsid=\"{f2c1b7c6-1bf0-4cb3-8eb9-e8f9b32e235a}\" threadingModel=\"Apartment\" "
         << "progid=\"QorlHostToolkit.ParseNode\"/>\n"
         << "    <comClass clsid=\"{f6768415-8214-4763-b5c5-e8313a3f6bdb}\" threadingModel=\"Apartment\" "
         << "progid=\"QorlHostToolkit.HostLogger\"/>\n"
         << "  </file>\n</assembly>\n";
  }

  HANDLE context_ = nullptr;
  ULONG_PTR cookie_ = 0;
};

constexpr const char* kThere = "QorlHostToolkit.dll";
constexpr const char* kMissing = "NoSuchToolkit.dll";

std::int32_t ErrorOfCreating(toolkit::Toolkit& toolkit) {
  try {
    static_cast<void>(toolkit.CreateLogger());
    return 0;
  } catch (const toolkit::RuntimeError& error) {
    return error.Number();
  }
}

TEST(RegisteredToolkit, ItsParserReadsDisplays) {
  const Installed installed(kThere);
  const Ref<toolkit::ParseNode> parser = LateBoundToolkit::OfThisThread()->CreateParser();
  EXPECT_EQ(parser->Parse(u"NO TICKET HERE", toolkit::kParseMode), toolkit::kParseSuccess);
  EXPECT_FALSE(parser->FindNode(toolkit::NodeTypeId::TstRoot));
}

TEST(RegisteredToolkit, ItsLoggersTakeEntries) {
  const Installed installed(kThere);
  const Ref<toolkit::HostLogger> logger = LateBoundToolkit::OfThisThread()->CreateLogger();
  EXPECT_NO_THROW(logger->SetApplication(u"Test"));
  EXPECT_NO_THROW(logger->Write(toolkit::kLogTrace, u"source", 1, u"message"));
}

TEST(RegisteredToolkit, IsOneForAThreadWhileSomebodyHoldsIt) {
  const Ref<toolkit::Toolkit> held = LateBoundToolkit::OfThisThread();
  EXPECT_EQ(LateBoundToolkit::OfThisThread().Get(), held.Get());
}

TEST(RegisteredToolkit, FurtherObjectsCostNoLookUp) {
  const Ref<toolkit::Toolkit> toolkit = LateBoundToolkit::OfThisThread();
  {
    const Installed installed(kThere);
    EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
  }
  const Installed gone(kMissing);
  EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
}

TEST(RegisteredToolkit, IsForgottenWhenNobodyHoldsIt) {
  {
    const Installed installed(kThere);
    EXPECT_EQ(ErrorOfCreating(*LateBoundToolkit::OfThisThread()), 0);
  }
  const Installed gone(kMissing);
  EXPECT_EQ(ErrorOfCreating(*LateBoundToolkit::OfThisThread()), 429);
}

TEST(RegisteredToolkit, AMissingOneRaises429UntilItIsInstalled) {
  const Ref<toolkit::Toolkit> toolkit = LateBoundToolkit::OfThisThread();
  {
    const Installed missing(kMissing);
    EXPECT_EQ(ErrorOfCreating(*toolkit), 429);
    EXPECT_THROW(static_cast<void>(toolkit->CreateParser()), toolkit::RuntimeError);
  }
  const Installed installed(kThere);
  EXPECT_EQ(ErrorOfCreating(*toolkit), 0);
}

}  // namespace
}  // namespace qorltst::automation::test
