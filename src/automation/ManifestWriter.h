// Writes the manifests with which a program uses the library beside it unregistered; the classes come from the class
// tables. Runs on the building machine (tools/manifest). The registered counterpart is Registration.h.
#pragma once

#include <ostream>
#include <string_view>

#include "automation/Library.h"

namespace qorltst::automation {

/// One architecture, by the name that its files carry and by the name that manifests have for it.
struct Architecture {
  std::string_view name;
  std::string_view manifestName;
};

/// The architecture of this name, x64 or x86. Throws `std::invalid_argument` for another.
[[nodiscard]] const Architecture& ArchitectureOf(std::string_view name);

/// The library's own manifest, to stand beside its file under the name of `AssemblyName`: classes, type library, and
/// how their interfaces cross apartments. The version has three parts.
void WriteAssemblyManifest(std::ostream& out, const Library& library, const Architecture& architecture,
                           std::string_view version);

/// The manifest of a program that uses the library, to be kept beside the program or put into it.
void WriteClientManifest(std::ostream& out, const Library& library, const Architecture& architecture,
                         std::string_view version);

/// Such as "QorlTST.x64". It differs from the name of the file, whose resources the system would search otherwise.
[[nodiscard]] std::string AssemblyName(const Library& library, const Architecture& architecture);

}  // namespace qorltst::automation
