// The class that a collection's row names, against what the collections of the sample displays hold.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "frame/Collection.h"
#include "frame/PublicClasses.h"
#include "frame/TST.h"
#include "simulator/RecordedSession.h"
#include "simulator/RecordingReader.h"
#include "simulator/SimulatedToolkit.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using Names = std::set<std::string>;

std::string NameOf(const ClassDescription& description, const Member& row) {
  return testing::Readable(description.name) + "." + testing::Readable(row.name);
}

void CheckObject(Object& object, Names& seen);

void CheckItems(const Collection& collection, const ClassDescription& wanted, const std::string& name, Names& seen) {
  for (std::int32_t i = 1; i <= collection.Count(); ++i) {
    const Ref<Object> item = collection.Item(i);
    EXPECT_EQ(&item->Description(), &wanted) << name;
    seen.insert(name);
    CheckObject(*item, seen);
  }
}

void CheckObject(Object& object, Names& seen) {
  for (const Member& row : object.Description().members) {
    const auto* const field = std::get_if<ObjectField>(&row.access);
    Object* const child = field != nullptr ? field->in(object) : nullptr;
    if (child == nullptr) {
      continue;
    }
    const auto* const collection = dynamic_cast<const Collection*>(child);
    EXPECT_EQ(collection != nullptr, field->items != nullptr) << NameOf(object.Description(), row);
    if (collection != nullptr && field->items != nullptr) {
      CheckItems(*collection, *field->items(), NameOf(object.Description(), row), seen);
    } else {
      CheckObject(*child, seen);
    }
  }
}

void CheckFile(const std::filesystem::path& file, Names& seen) {
  for (const simulator::Exchange& exchange : simulator::ReadRecording(file)) {
    const auto toolkit = Make<simulator::SimulatedToolkit>();
    const auto session = Make<simulator::RecordedSession>(simulator::Recording{exchange});
    const auto tst = Make<TST>(*toolkit);
    tst->RetrieveSpecificTst(session.Get(), exchange.command);
    CheckObject(*tst, seen);
  }
}

Names AllCollections() {
  Names names;
  for (const ClassDescription* const description : PublicClasses()) {
    for (const Member& row : description->members) {
      const auto* const field = std::get_if<ObjectField>(&row.access);
      if (field != nullptr && field->items != nullptr) {
        names.insert(NameOf(*description, row));
      }
    }
  }
  return names;
}

TEST(CollectionItems, AreOfTheClassThatTheRowNames) {
  Names seen;
  for (const auto& entry : std::filesystem::directory_iterator(QORL_SOURCE_DIR "/examples/displays")) {
    CheckFile(entry.path(), seen);
  }
  EXPECT_EQ(seen, AllCollections());
}

}  // namespace
}  // namespace qorltst
