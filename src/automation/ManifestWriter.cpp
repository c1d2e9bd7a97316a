// Manifests as text. See ManifestWriter.h.
#include "automation/ManifestWriter.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace qorltst::automation {
namespace {

constexpr std::array kArchitectures{Architecture{"x64", "amd64"}, Architecture{"x86", "x86"}};

/// The system's marshaller of dual interfaces, which goes by the type library.
constexpr std::string_view kTypeLibraryMarshaller = "{00020424-0000-0000-C000-000000000046}";

constexpr std::string_view kBegin =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<!-- Made from the class tables; do not edit. -->
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
)";
constexpr std::string_view kEnd = "</assembly>\n";

/// Names and help strings are ASCII; what marks up is written as an entity.
std::string Xml(std::u16string_view text) {
  std::string xml;
  for (const char16_t c : text) {
    switch (c) {
      case u'&':
        xml += "&amp;";
        break;
      case u'<':
        xml += "&lt;";
        break;
      case u'"':
        xml += "&quot;";
        break;
      default:
        if (c >= 0x7F) {
          throw std::invalid_argument("names and help strings are written in ASCII");
        }
        xml += static_cast<char>(c);
    }
  }
  return xml;
}

std::string Braced(const Guid& guid) { return "{" + ToString(guid) + "}"; }

/// One attribute with the blank before it. The value is in XML already.
std::string Attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

void WriteIdentity(std::ostream& out, const Library& library, const Architecture& architecture,
                   std::string_view version, std::string_view indent) {
  out << indent << "<assemblyIdentity" << Attribute("type", "win32")
      << Attribute("name", AssemblyName(library, architecture)) << Attribute("version", std::string(version) + ".0")
      << Attribute("processorArchitecture", architecture.manifestName) << "/>\n";
}

const ClassIdentity& IdentityOf(const Library& library, const ClassDescription& description) {
  if (const ClassIdentity* const identity = library.IdentityOf(description.name)) {
    return *identity;
  }
  throw std::invalid_argument("no identifiers for the class " + Xml(description.name));
}

void WriteClass(std::ostream& out, const Library& library, const ClassDescription& description) {
  const ProgramIds names = library.ProgramIdsOf(description);
  out << "    <comClass" << Attribute("clsid", Braced(IdentityOf(library, description).classId))
      << Attribute("threadingModel", Xml(kThreadingModel)) << Attribute("tlbid", Braced(library.id))
      << Attribute("progid", Xml(names.versioned)) << Attribute("description", Xml(description.help)) << ">\n"
      << "      <progid>" << Xml(names.plain) << "</progid>\n"
      << "    </comClass>\n";
}

void WriteFile(std::ostream& out, const Library& library) {
  const std::string version = std::to_string(library.majorVersion) + "." + std::to_string(library.minorVersion);
  out << "  <file" << Attribute("name", Xml(library.name) + ".dll") << ">\n";
  for (const ClassDescription* const description : library.CreatableClasses()) {
    WriteClass(out, library, *description);
  }
  out << "    <typelib" << Attribute("tlbid", Braced(library.id)) << Attribute("version", version)
      << Attribute("helpdir", "") << Attribute("flags", "HASDISKIMAGE") << "/>\n"
      << "  </file>\n";
}

void WriteInterface(std::ostream& out, const Library& library, const ClassDescription& description) {
  out << "  <comInterfaceExternalProxyStub" << Attribute("name", "_" + Xml(description.name))
      << Attribute("iid", Braced(IdentityOf(library, description).interfaceId))
      << Attribute("tlbid", Braced(library.id)) << Attribute("proxyStubClsid32", kTypeLibraryMarshaller) << "/>\n";
}

}  // namespace

const Architecture& ArchitectureOf(std::string_view name) {
  const auto* const found = std::ranges::find(kArchitectures, name, &Architecture::name);
  if (found == kArchitectures.end()) {
    throw std::invalid_argument("no such architecture: " + std::string(name));
  }
  return *found;
}

std::string AssemblyName(const Library& library, const Architecture& architecture) {
  return Xml(library.name) + "." + std::string(architecture.name);
}

void WriteAssemblyManifest(std::ostream& out, const Library& library, const Architecture& architecture,
                           std::string_view version) {
  out << kBegin;
  WriteIdentity(out, library, architecture, version, "  ");
  WriteFile(out, library);
  for (const ClassDescription* const description : library.classes()) {
    WriteInterface(out, library, *description);
  }
  out << kEnd;
}

void WriteClientManifest(std::ostream& out, const Library& library, const Architecture& architecture,
                         std::string_view version) {
  out << kBegin << "  <assemblyIdentity" << Attribute("type", "win32") << Attribute("name", "Client")
      << Attribute("version", "1.0.0.0") << "/>\n  <dependency>\n    <dependentAssembly>\n";
  WriteIdentity(out, library, architecture, version, "      ");
  out << "    </dependentAssembly>\n  </dependency>\n" << kEnd;
}

}  // namespace qorltst::automation
