// Writes the pages of docs/ that are made: the object model with its picture, and the log excerpts in the page on the
// log. `./run reference` calls it; a test compares what it writes with what is there.
#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <sstream>
#include <stdexcept>

#include "frame/PublicClasses.h"
#include "frame/TST.h"
#include "tools/reference/Drawing.h"
#include "tools/reference/LogExcerpt.h"
#include "tools/reference/MemberText.h"
#include "tools/reference/ModelPage.h"
#include "tools/reference/NodeNames.h"

namespace {

namespace reference = qorltst::reference;

/// Writes by `write`, and only when that has ended well, so that a page may be made from itself.
template <class Write>
void WriteFile(const std::filesystem::path& file, Write&& write) {
  std::ostringstream text;
  write(text);
  std::ofstream out(file, std::ios::binary);
  out << text.str();
  if (!out.flush()) {
    throw std::runtime_error("cannot write " + file.string());
  }
}

/// What was found out must agree with the rows that name their node.
void CheckAgainstRows(const reference::FillSources& sources) {
  for (const qorltst::ClassDescription* const description : qorltst::PublicClasses()) {
    for (const qorltst::Member& row : description->members) {
      const auto found = sources.properties.find({description, &row});
      const auto isRowsNode = [&](const reference::Source& source) {
        return !source.path.empty() && source.path.back() == row.node;
      };
      if (row.node != qorltst::toolkit::NodeTypeId::None &&
          (found == sources.properties.end() || std::ranges::none_of(found->second, isRowsNode))) {
        throw std::runtime_error("no node " + reference::NameOf(row.node) + " fills " + reference::SignatureOf(row));
      }
    }
  }
}

void WriteAll(const std::filesystem::path& sources, const std::filesystem::path& folder) {
  const reference::ModelNode tree = reference::ModelTreeOf(qorltst::TST::kDescription);
  const reference::FillSources found = reference::FindFillSources();
  CheckAgainstRows(found);
  WriteFile(folder / "object-model.md", [&](std::ostream& out) { reference::WriteModelPage(out, tree, found); });
  WriteFile(folder / "object-model.svg", [&](std::ostream& out) { reference::DrawModel(out, tree); });
  WriteFile(folder / "trace-log.md", [&](std::ostream& out) {
    std::ifstream page(sources / "docs/trace-log.md", std::ios::binary);
    if (!page) {
      throw std::runtime_error("docs/trace-log.md is not there");
    }
    reference::RenewLogExcerpts(page, sources, out);
  });
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: qorl_reference <source folder> <folder to write to>\n";
    return 2;
  }
  try {
    WriteAll(std::span(arguments, 3)[1], std::span(arguments, 3)[2]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "qorl_reference: " << error.what() << '\n';
    return 1;
  }
}
