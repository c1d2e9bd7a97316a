// Prints the manifests for the use of the component without registration. Counterpart:
// src/automation/ManifestWriter.h; what they are for is told in packaging/README.txt.
#include <algorithm>
#include <array>
#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Version.h"
#include "automation/Identities.h"
#include "automation/ManifestWriter.h"

namespace {

using qorltst::automation::Architecture;
using qorltst::automation::ArchitectureOf;
using qorltst::automation::ComponentLibrary;
using qorltst::automation::Library;

constexpr std::string_view kUsage =
    "qorl_manifest component|client x64|x86 [file]\n"
    "  component  the manifest of the component itself, to stand beside its library\n"
    "  client     the manifest of a program that uses it\n"
    "qorl_manifest --version\n";

struct Kind {
  std::string_view name;
  void (*write)(std::ostream&, const Library&, const Architecture&, std::string_view);
};

constexpr std::array kKinds{Kind{"component", &qorltst::automation::WriteAssemblyManifest},
                            Kind{"client", &qorltst::automation::WriteClientManifest}};

int Write(std::span<char* const> words) {
  const auto* const kind = std::ranges::find(kKinds, std::string_view(words[0]), &Kind::name);
  if (kind == kKinds.end()) {
    throw std::invalid_argument("no such manifest: " + std::string(words[0]));
  }
  const Architecture& architecture = ArchitectureOf(words[1]);
  if (words.size() == 2) {
    kind->write(std::cout, ComponentLibrary(), architecture, qorltst::kVersion);
    return std::cout ? 0 : 1;
  }
  std::ofstream file(words[2], std::ios::binary);
  kind->write(file, ComponentLibrary(), architecture, qorltst::kVersion);
  file.close();
  return file ? 0 : 1;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const std::span<char* const> words(arguments + 1, static_cast<std::size_t>(std::max(argumentCount - 1, 0)));
  try {
    if (words.size() == 1 && std::string_view(words[0]) == "--version") {
      std::cout << "qorl_manifest " << qorltst::kVersion << "\n";
      return 0;
    }
    if (words.size() < 2 || words.size() > 3) {
      std::cerr << kUsage;
      return 2;
    }
    return Write(words);
  } catch (const std::exception& error) {
    std::cerr << "qorl_manifest: " << error.what() << "\n";
    return 1;
  }
}
