// Names through an activation context. See InstalledToolkit.h.
#include "support/InstalledToolkit.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

#include "automation/Text.h"
#include "support/TestServer.h"

namespace qorltst::automation::test {
namespace {

std::string ClassLine(const Guid& classId, const std::string& threading, const std::string& programId) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(SystemGuid(classId), text.data(), static_cast<int>(text.size()));
  std::string braced;
  for (const char16_t c : ViewOfName(text.data())) {
    braced += static_cast<char>(c);
  }
  return "    <comClass clsid=\"" + braced + "\" threadingModel=\"" + threading + "\" progid=\"" + programId + "\"/>\n";
}

void WriteManifest(const std::string& path, const std::string& library, const std::string& threading) {
  std::ofstream file(path, std::ios::binary);
  file << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
       << "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
       << "  <assemblyIdentity type=\"win32\" name=\"ToolkitTest\" version=\"1.0.0.0\"/>\n"
       << "  <file name=\"" << library << "\">\n"
       << ClassLine(kParserClass, threading, "QorlHostToolkit.ParseNode")
       << ClassLine(kLoggerClass, threading, "QorlHostToolkit.HostLogger") << "  </file>\n</assembly>\n";
}

}  // namespace

Installed::Installed(const std::string& library, const std::string& threading) {
  const std::u16string directory = BesideProgram(u"");
  // Tests run side by side, and threads do: each writes a file of its own.
  const std::string name = "toolkit-" + std::to_string(GetCurrentProcessId()) + "-" +
                           std::to_string(GetCurrentThreadId()) + "-" + library + ".manifest";
  const std::u16string path = BesideProgram(std::u16string(name.begin(), name.end()));
  const std::string narrow(path.begin(), path.end());
  WriteManifest(narrow, library, threading);
  ACTCTXW description{};
  description.cbSize = sizeof description;
  description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
  description.lpSource = SystemText(path);
  description.lpAssemblyDirectory = SystemText(directory);
  context_ = CreateActCtxW(&description);
  EXPECT_NE(context_, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
  // The context has been read.
  DeleteFileW(SystemText(path));
}

Installed::~Installed() {
  DeactivateActCtx(0, cookie_);
  ReleaseActCtx(context_);
}

}  // namespace qorltst::automation::test
