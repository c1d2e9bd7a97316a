// Whether the sample displays hold every kind of node that the component asks for; see src/toolkit/NodeTypeId.h.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>

#include "DisplaySupport.h"
#include "simulator/RecordingReader.h"

namespace qorltst::simulator {
namespace {

/// Every node type that has a name, read from where the names are given, so that a new one cannot be forgotten here.
std::map<NodeTypeId, std::string> NamedTypes() {
  static const std::regex kEnumerator(R"(^  (\w+) = (\d+),.*)");
  std::map<NodeTypeId, std::string> names;
  std::ifstream header(SourceFolder() / "src/toolkit/NodeTypeId.h");
  std::smatch match;
  for (std::string line; std::getline(header, line);) {
    if (std::regex_match(line, match, kEnumerator)) {
      names.emplace(NodeTypeId{std::stoi(match[2])}, match[1]);
    }
  }
  names.erase(NodeTypeId::None);
  return names;
}

void CollectTypes(ParseNode& node, std::set<NodeTypeId>& types) {
  types.insert(node.TypeId());
  const auto children = node.Children();
  while (const auto child = children->Next()) {
    CollectTypes(*child, types);
  }
}

/// The types of all nodes of all sample displays, of single screens and of whole displays.
std::set<NodeTypeId> SampledTypes() {
  std::set<NodeTypeId> types;
  for (const auto& file : std::filesystem::directory_iterator(SourceFolder() / "examples/displays")) {
    for (const Exchange& exchange : ReadRecording(file.path())) {
      std::u16string whole;
      for (const std::u16string& screen : exchange.screens) {
        CollectTypes(*Parsed::FromText(screen).parser, types);
        whole = whole.empty() ? screen : Stitch(whole, screen);
      }
      CollectTypes(*Parsed::FromText(whole).parser, types);
    }
  }
  return types;
}

TEST(NodeCoverage, KnowsTheNamedTypes) {
  const auto names = NamedTypes();
  EXPECT_GE(names.size(), 200U) << "the form of the header has changed";
  EXPECT_EQ(names.at(NodeTypeId::AirLine), "AirLine");
  EXPECT_EQ(names.at(NodeTypeId::TotalFareGroup), "TotalFareGroup");
}

TEST(NodeCoverage, EveryNamedTypeOccursInASampleDisplay) {
  const std::set<NodeTypeId> sampled = SampledTypes();
  for (const auto& [type, name] : NamedTypes()) {
    EXPECT_TRUE(sampled.contains(type)) << name << " occurs in no sample display";
  }
}

}  // namespace
}  // namespace qorltst::simulator
