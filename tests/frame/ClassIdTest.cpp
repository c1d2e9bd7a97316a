#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <thread>

#include "elements/TSTHeader.h"
#include "frame/TST.h"
#include "frame/modClassIDGenerator.h"
#include "tests/support/Printers.h"
#include "toolkit/RuntimeError.h"

namespace qorltst {
namespace {

TEST(ClassDebugId, OfTheFirstObjectIsOne) {
  modClassIDGenerator generator;
  EXPECT_EQ(generator.NextID(), 1);
  EXPECT_EQ(generator.NextID(), 2);
}

TEST(ClassDebugId, PastTheLargestNumberIsAnOverflowAndStaysOne) {
  modClassIDGenerator generator(std::numeric_limits<std::int32_t>::max() - 1);
  EXPECT_EQ(generator.NextID(), std::numeric_limits<std::int32_t>::max());
  for (int attempt = 0; attempt < 2; ++attempt) {
    try {
      (void)generator.NextID();
      FAIL() << "no overflow";
    } catch (const toolkit::RuntimeError& error) {
      EXPECT_EQ(error.Number(), toolkit::kOverflow);
    }
  }
}

TEST(ClassDebugId, IsNeverGivenTwiceWhicheverThreadAsks) {
  modClassIDGenerator generator;
  constexpr std::int32_t kEach = 20000;
  std::vector<std::vector<std::int32_t>> taken(4);
  {
    std::vector<std::jthread> threads;
    for (auto& mine : taken) {
      threads.emplace_back([&generator, &mine] {
        for (std::int32_t i = 0; i < kEach; ++i) {
          mine.push_back(generator.NextID());
        }
      });
    }
  }
  std::set<std::int32_t> all;
  for (const auto& mine : taken) {
    all.insert(mine.begin(), mine.end());
  }
  EXPECT_EQ(all.size(), taken.size() * kEach);
  EXPECT_EQ(*all.rbegin(), static_cast<std::int32_t>(all.size()));
}

TEST(ClassDebugId, OfTwoObjectsOneAfterTheOtherIsConsecutive) {
  const auto toolkit = Make<testing::TestToolkit>();
  const auto first = Make<TSTHeader>(*toolkit);
  const auto second = Make<TSTHeader>(*toolkit);
  EXPECT_EQ(second->ClassDebugID(), first->ClassDebugID() + 1);
}

TEST(ClassDebugId, OfChildrenLieBetweenTheirParentsAndTheNextObjects) {
  const auto toolkit = Make<testing::TestToolkit>();
  const auto tst = Make<TST>(*toolkit);
  const auto next = Make<TSTHeader>(*toolkit);
  const std::int32_t first = tst->ClassDebugID();
  EXPECT_EQ(testing::NumberOf(*testing::ObjectOf(*tst, u"FareCalculation"), u"ClassDebugID"), first + 1);
  // The departure point and the end line, which the fare calculation creates, come next and show no id.
  EXPECT_EQ(testing::NumberOf(*testing::ObjectOf(*tst, u"FEElement"), u"ClassDebugID"), first + 4);
  EXPECT_EQ(testing::NumberOf(*testing::ObjectOf(*tst, u"ItineraryLastLine"), u"ClassDebugID"), first + 5);
  EXPECT_EQ(testing::NumberOf(*testing::ObjectOf(*tst, u"TSTHeader"), u"ClassDebugID"), first + 6);
  EXPECT_EQ(next->ClassDebugID(), first + 7);
}

}  // namespace
}  // namespace qorltst
