#include <gtest/gtest.h>

#include <set>

#include "frame/ClassDescription.h"
#include "frame/PublicClasses.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

TEST(Description, FindsEveryMemberByItsNameWhateverTheCase) {
  for (const ClassDescription* const description : PublicClasses()) {
    for (const Member& row : description->members) {
      std::u16string shouted(row.name);
      for (char16_t& character : shouted) {
        character = character >= u'a' && character <= u'z' ? static_cast<char16_t>(character - 32) : character;
      }
      EXPECT_EQ(description->FindByName(row.name), &row) << testing::Readable(row.name);
      EXPECT_EQ(description->FindByName(shouted), &row) << testing::Readable(shouted);
    }
  }
}

TEST(Description, KnowsNoOtherNames) {
  for (const ClassDescription* const description : PublicClasses()) {
    for (const std::u16string_view name : {u"", u"A", u"Zzz", u"FillWithData", u"Texts", u"Tex"}) {
      EXPECT_EQ(description->FindByName(name), nullptr) << testing::Readable(name);
    }
  }
}

TEST(Description, FindsEveryMemberByItsDispatchId) {
  for (const ClassDescription* const description : PublicClasses()) {
    for (const Member& row : description->members) {
      EXPECT_EQ(description->FindByDispatchId(description->DispatchIdOf(row)), &row) << testing::Readable(row.name);
    }
    EXPECT_EQ(description->FindByDispatchId(-1), nullptr);
    EXPECT_EQ(description->FindByDispatchId(1000), nullptr);
  }
}

TEST(Description, NamesEachClassOnceAndExplainsIt) {
  std::set<std::u16string_view> names;
  for (const ClassDescription* const description : PublicClasses()) {
    EXPECT_TRUE(names.insert(description->name).second) << testing::Readable(description->name);
    EXPECT_FALSE(description->help.empty()) << testing::Readable(description->name);
  }
}

TEST(Description, EveryCreatableClassIsReadableEmpty) {
  const auto toolkit = Make<testing::TestToolkit>();
  for (const ClassDescription* const description : PublicClasses()) {
    if (description->create == nullptr) {
      continue;
    }
    SCOPED_TRACE(testing::Readable(description->name));
    const Ref<Object> object = description->create(*toolkit);
    EXPECT_EQ(&object->Description(), description);
    EXPECT_EQ(testing::FilledTexts(*object), std::vector<std::string>());
  }
}

}  // namespace
}  // namespace qorltst
