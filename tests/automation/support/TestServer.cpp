// The tests' server and program. See TestServer.h.
#include "support/TestServer.h"

#include <gtest/gtest.h>

#include <vector>

#include "automation/Identities.h"
#include "automation/LateBoundToolkit.h"
#include "automation/Module.h"
#include "automation/Server.h"
#include "support/MemberList.h"
#include "support/TestRecord.h"

namespace qorltst::automation {
namespace test {
namespace {

std::span<const ClassDescription* const> Classes() {
  static const std::vector<const ClassDescription*> classes = [] {
    const auto component = ComponentLibrary().classes();
    std::vector<const ClassDescription*> all(component.begin(), component.end());
    all.push_back(&TestRecord::kDescription);
    all.push_back(&PlainRecord::kDescription);
    return all;
  }();
  return classes;
}

std::span<const ClassIdentity> Identities() {
  static const std::vector<ClassIdentity> identities = [] {
    const auto component = ComponentLibrary().identities;
    std::vector<ClassIdentity> all(component.begin(), component.end());
    all.push_back({u"TestRecord", ParseGuid("08a7321a-917e-4fbe-8347-bcb615922880"),
                   ParseGuid("88f99e76-152e-4cb7-b62c-ff6e646fd463")});
    all.push_back({u"PlainRecord", ParseGuid("9ca04b67-4692-48ee-8098-23ab0419802c"),
                   ParseGuid("9ca04b67-4692-48ee-8098-23ab0419802d")});
    return all;
  }();
  return identities;
}

}  // namespace

const Library& TestLibrary() {
  static const Library library = [] {
    Library made = ComponentLibrary();
    made.classes = &Classes;
    made.identities = Identities();
    return made;
  }();
  return library;
}

std::u16string BesideProgram(std::u16string_view file) {
  std::u16string path = ModulePath();
  path.resize(path.rfind(u'\\') + 1);
  return path.append(file);
}

std::string SourcePath(const std::string& relative) {
  const std::string path = std::string(QORL_SOURCE_DIR) + "/" + relative;
  return path.starts_with('/') ? "Z:" + path : path;
}

}  // namespace test

const Server& ThisServer() noexcept {
  static const Server server{test::TestLibrary(), &LateBoundToolkit::OfThisThread};
  return server;
}

}  // namespace qorltst::automation

int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  // Scripts read the names from a file: "--members <file>" writes it.
  if (argumentCount == 3 && std::string_view(arguments[1]) == "--members") {
    return qorltst::automation::test::WriteMemberList(arguments[2]) ? 0 : 1;
  }
  if (FAILED(CoInitialize(nullptr))) {
    return 1;
  }
  const int result = RUN_ALL_TESTS();
  CoUninitialize();
  return result;
}
