// The reading of any object by its table, and the walk; see tools/model/Property.h and ModelWalk.h.
#include <gtest/gtest.h>

#include "elements/AirSegment.h"
#include "frame/EtLog.h"
#include "frame/PublicClasses.h"
#include "tests/tools/support/Samples.h"
#include "tools/model/ModelWalk.h"
#include "tools/model/ValueText.h"

namespace qorltst::model {
namespace {

const auto kToolkit = Make<simulator::SimulatedToolkit>();

std::vector<std::string> Names(Object& object, Filter filter) {
  std::vector<std::string> names;
  ForEachProperty(object, filter, [&](const Property& property) { names.push_back(NameText(property.row.name)); });
  return names;
}

std::vector<std::string> Paths(Object& root) {
  std::vector<std::string> paths;
  WalkObjects(root, [&](const std::string& path, Object&) {
    paths.push_back(path);
    return true;
  });
  return paths;
}

TEST(Property, EveryNewObjectIsEmpty) {
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create != nullptr && HasContent(*description)) {
      const Ref<Object> object = description->create(*kToolkit);
      EXPECT_TRUE(IsEmpty(*object)) << NameText(description->name);
      EXPECT_TRUE(Names(*object, {}).empty()) << NameText(description->name);
    }
  }
}

TEST(Property, EveryRowButMethodsCanBeRead) {
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create == nullptr) {
      continue;
    }
    const Ref<Object> object = description->create(*kToolkit);
    for (const Member& row : description->members) {
      EXPECT_EQ(ContentOf(*object, row).has_value(), !std::holds_alternative<Method>(row.access)) << NameText(row.name);
    }
  }
}

TEST(Property, AnyFilledPropertyMakesAnObjectFilled) {
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create != nullptr && HasContent(*description)) {
      const Ref<Object> object = description->create(*kToolkit);
      testing::FillProperties(*object, u"X");
      EXPECT_FALSE(IsEmpty(*object)) << NameText(description->name);
    }
  }
}

TEST(Property, IsFilledByAnObjectBelow) {
  const Ref<TST> ticket = testing::SampleTicket("minimal.txt");
  const Member* const header = ticket->Description().FindByName(u"TSTHeader");
  ASSERT_NE(header, nullptr);
  EXPECT_FALSE(IsEmpty(ContentOf(*ticket, *header).value()));
}

TEST(Property, FilterLetsEmptyOnesAndNumbersThroughOnRequest) {
  const auto segment = Make<AirSegment>(*kToolkit);
  const std::size_t rows = segment->Description().members.size();
  EXPECT_EQ(Names(*segment, {.numbers = true}), std::vector<std::string>{"ClassDebugID"});
  EXPECT_EQ(Names(*segment, {.empty = true}).size(), rows - 1);
  EXPECT_EQ(Names(*segment, {.empty = true, .numbers = true}).size(), rows);
}

TEST(Property, LogsAndCollectionsHaveNoContent) {
  EXPECT_FALSE(HasContent(EtLog::kDescription));
  EXPECT_FALSE(HasContent(Collection::kDescription));
  EXPECT_TRUE(HasContent(TST::kDescription));
}

TEST(ModelWalk, NamesEveryObjectByItsPath) {
  const std::vector<std::string> paths = Paths(*testing::SampleTicket("fc-pfc.txt"));
  ASSERT_FALSE(paths.empty());
  EXPECT_EQ(paths.front(), "");
  for (const std::string path : {"FareCalculation", "FareCalculation.Itineraries(1)", "FareCalculation.EndLine",
                                 "FareCalculation.EndLine.AnyPFCs(1)", "TSTHeader"}) {
    EXPECT_EQ(std::ranges::count(paths, path), 1) << path;
  }
}

TEST(ModelWalk, LeavesOutWhatStandsBelowARefusedObject) {
  std::size_t visits = 0;
  WalkObjects(*testing::SampleTicket("rich.txt"), [&](const std::string&, Object&) {
    ++visits;
    return false;
  });
  EXPECT_EQ(visits, 1U);
}

}  // namespace
}  // namespace qorltst::model
