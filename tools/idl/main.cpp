// Prints the component's interface description, from which the type library and the client header are made.
// Counterpart: src/automation/IdlWriter.h.
#include <exception>
#include <fstream>
#include <iostream>

#include "automation/Identities.h"
#include "automation/IdlWriter.h"

namespace {

void Write(std::ostream& out) { qorltst::automation::WriteIdl(out, qorltst::automation::ComponentLibrary()); }

}  // namespace

/// With an argument the description goes to the file of this name, else to the standard output.
int main(int argumentCount, char** arguments) {
  try {
    if (argumentCount < 2) {
      Write(std::cout);
      return std::cout ? 0 : 1;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    Write(file);
    file.close();
    return file ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "qorl_idl: " << error.what() << "\n";
    return 1;
  }
}
