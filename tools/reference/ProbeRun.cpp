// See ProbeRun.h.
#include "tools/reference/ProbeRun.h"

#include "frame/TST.h"
#include "frame/TstParser.h"
#include "toolkit/RuntimeError.h"
#include "tools/reference/NodeNames.h"

namespace qorltst::reference {
namespace {

bool IsSame(const ProbeRun& one, const ProbeRun& other) {
  return one.snapshot == other.snapshot && one.notes.childrenWalked == other.notes.childrenWalked &&
         one.notes.typesSought == other.notes.typesSought;
}

/// Leaves out the types of which a fill does the same as with the unknown one, where it takes that.
std::set<NodeTypeId> Distinct(const Path& path, const Snapshot& before, std::set<NodeTypeId> types) {
  if (types.contains(kUnknownType)) {
    const ProbeRun usual = Fill({.path = Extended(path, kUnknownType)}, before);
    std::erase_if(types, [&](NodeTypeId type) {
      return type != kUnknownType && IsSame(Fill({.path = Extended(path, type)}, before), usual);
    });
  }
  return types;
}

std::vector<NodeTypeId> Without(std::vector<NodeTypeId> all, const std::set<NodeTypeId>& some) {
  std::erase_if(all, [&](NodeTypeId type) { return some.contains(type); });
  return all;
}

/// Adds the types of which nothing but their presence is read.
void AddMarkers(const Path& path, const Snapshot& before, const std::vector<NodeTypeId>& candidates,
                std::set<NodeTypeId>& types) {
  if (Fill({.path = path, .children = candidates}, before).snapshot.set == before.set) {
    return;
  }
  for (const NodeTypeId type : candidates) {
    if (Fill({.path = path, .children = {type}}, before).snapshot.set != before.set) {
      types.insert(type);
    }
  }
}

}  // namespace

ProbeRun Fill(const ProbePlan& plan, const Snapshot& before) {
  ProbeRun run{before, {}};
  const auto toolkit = MakeProbeToolkit(plan, run.notes);
  const auto tst = Make<TST>(*toolkit);
  try {
    TstParser(*toolkit).ParseTst(std::u16string(kProbeText), *tst);
    run.snapshot = SnapshotOf(*tst);
  } catch (const toolkit::RuntimeError&) {  // NOLINT(bugprone-empty-catch): what was set before stays
  }
  return run;
}

std::vector<NodeTypeId> TypesBelow(const Path& path, const ProbeRun& run) {
  std::set<NodeTypeId> types = run.notes.typesSought;
  if (run.notes.childrenWalked) {
    std::vector<NodeTypeId> all = NamedNodeTypes();
    all.push_back(kUnknownType);
    const ProbeNotes notes = Fill({.path = path, .children = all}, run.snapshot).notes;
    if (!notes.typesRead.contains(kUnknownType)) {
      return {kUnknownType};
    }
    const auto read = Distinct(path, run.snapshot, notes.contentsRead);
    types.insert(read.begin(), read.end());
    AddMarkers(path, run.snapshot, Without(all, notes.contentsRead), types);
  }
  return {types.begin(), types.end()};
}

Path Extended(Path path, NodeTypeId type) {
  path.push_back(type);
  return path;
}

}  // namespace qorltst::reference
