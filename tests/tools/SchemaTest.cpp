// Output against the schema that the program prints; see tools/model/JsonSchema.h and tools/tstdump/Record.h.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "frame/PublicClasses.h"
#include "tests/tools/support/Samples.h"
#include "tests/tools/support/ToolRun.h"
#include "tests/tools/support/Validation.h"
#include "tools/model/JsonSchema.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

using namespace std::string_literals;
using testing::RunTool;
using testing::Violations;

std::string SchemaFor(std::vector<std::string> options) {
  options.emplace_back("--schema");
  return RunTool(options).out;
}

/// The lines of output for every sample.
std::vector<std::string> Lines(std::vector<std::string> options) {
  options.emplace_back("--jsonl");
  std::ranges::copy(testing::SamplePaths(), std::back_inserter(options));
  std::istringstream out(RunTool(options).out);
  std::vector<std::string> lines;
  for (std::string line; std::getline(out, line);) {
    lines.push_back(line);
  }
  return lines;
}

/// The schema of one object of any class.
std::string ItemSchema() {
  Json schema = SchemaReference("item");
  Json root = {{"$schema", "http://json-schema.org/draft-07/schema#"}, {"allOf", {schema}}};
  root["definitions"] = SchemaDefinitions({.empty = true, .numbers = true});
  return root.dump();
}

class SchemaOfOptions : public ::testing::TestWithParam<std::vector<std::string>> {};

TEST_P(SchemaOfOptions, FitsTheOutputForEverySample) {
  const std::string schema = SchemaFor(GetParam());
  const std::vector<std::string> lines = Lines(GetParam());
  EXPECT_GT(lines.size(), 20U);
  for (const std::string& line : lines) {
    EXPECT_EQ(Violations(schema, line), "") << line.substr(0, 200);
  }
}

INSTANTIATE_TEST_SUITE_P(Tstdump, SchemaOfOptions,
                         ::testing::Values(std::vector<std::string>{}, std::vector{"--filled"s},
                                           std::vector{"--numbers"s}, std::vector{"--trace"s},
                                           std::vector{"--class=TST"s}, std::vector{"--property=Text"s}));

TEST(Schema, FitsEveryClassWithEveryPropertyFilled) {
  const std::string schema = ItemSchema();
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create == nullptr || !HasContent(*description)) {
      continue;
    }
    const Ref<Object> object = description->create(*toolkit);
    for (const std::u16string& text : {u"\0\xD800"s, u"plain"s, u""s}) {
      testing::FillProperties(*object, text);
      EXPECT_EQ(Violations(schema, ToJson(*object, {.empty = true, .numbers = true}).dump()), "")
          << NameText(description->name);
    }
  }
}

TEST(Schema, ExplainsEveryPropertyByTheTables) {
  const Json definitions = SchemaDefinitions({});
  for (const ClassDescription* const description : PublicClasses()) {
    if (!HasContent(*description)) {
      continue;
    }
    const Json& properties = definitions.at(NameText(description->name)).at("properties");
    for (const Member& row : description->members) {
      if (!std::holds_alternative<Method>(row.access)) {
        EXPECT_EQ(properties.at(NameText(row.name)).at("description"), NameText(row.help));
      }
    }
  }
}

/// The first line of the output for the minimal sample, changed.
template <class Change>
std::string Damaged(Change change) {
  Json record = Json::parse(Lines({"--command=TQT"}).back());
  change(record);
  return record.dump();
}

TEST(Schema, RefusesWhatTheProgramDoesNotWrite) {
  const std::string schema = SchemaFor({});
  EXPECT_EQ(Violations(schema, Damaged([](Json&) {})), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r.erase("source"); })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["more"] = 1; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"].erase("Text"); })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["Nonsense"] = ""; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["Text"] = 7; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["className"] = "AirSegment"; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["TotalCollectionAmount"] = "1.5"; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["TSTHeader"]["LastDateFromTst"] = "20DEC"; })), "");
  EXPECT_NE(Violations(schema, Damaged([](Json& r) { r["ticket"]["AirSegments"] = {{{"className", "TST"}}}; })), "");
}

}  // namespace
}  // namespace qorltst::model
