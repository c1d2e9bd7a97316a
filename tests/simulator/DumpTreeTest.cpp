// The tree printer; see simulator/DumpTree.h.
#include <gtest/gtest.h>

#include "simulator/DumpTree.h"
#include "simulator/Node.h"

namespace qorltst::simulator {
namespace {

TEST(DumpTree, PrintsNothingForAnEmptyRoot) { EXPECT_EQ(DumpTree(*Tree({})), ""); }

TEST(DumpTree, IndentsChildrenUnderTheirParent) {
  const auto tree = Tree({Node(2857, u"TOTAL", {Node(2858, u"BR", {Node(2726, u"H")})}), Node(561, u"-MORE-")});
  EXPECT_EQ(DumpTree(*tree),
            "2857 \"TOTAL\"\n"
            "  2858 \"BR\"\n"
            "    2726 \"H\"\n"
            "561 \"-MORE-\"\n");
}

TEST(DumpTree, PrintsANodeThatIsNoRootWithItself) {
  const Ref<TreeNode> node = Node(602, u"TST", {Node(2689, u"1")});
  EXPECT_EQ(DumpTree(*node), "602 \"TST\"\n  2689 \"1\"\n");
}

TEST(DumpTree, ShowsDatesAsDaysOfTheCalendar) {
  EXPECT_EQ(DumpTree(*Node(3324, u"20DEC26").Date(46376).Get()), "3324 \"20DEC26\" = 2026-12-20\n");
  EXPECT_EQ(DumpTree(*Node(3324).Date(-1).Get()), "3324 \"\" = 1899-12-29\n");
}

TEST(DumpTree, ShowsDatesWithATimeOrOutOfRangeAsNumbers) {
  EXPECT_EQ(DumpTree(*Node(3324).Date(46376.5).Get()), "3324 \"\" = 46376.5\n");
  EXPECT_EQ(DumpTree(*Node(3324).Date(1e9).Get()), "3324 \"\" = 1000000000\n");
}

TEST(DumpTree, TellsAWarningFromAnErrorText) {
  EXPECT_EQ(DumpTree(*Node(602).Warning(u"odd").Get()), "602 \"\" ! odd\n");
  EXPECT_EQ(DumpTree(*Node(602).Error(u"odd").Get()), "602 \"\" ? odd\n");
}

TEST(DumpTree, EscapesWhatWouldBreakItsLines) {
  EXPECT_EQ(DumpTree(*Node(602, u"a\"b\\c\nd\u00E9").Get()), "602 \"a\\\"b\\\\c\\x0ad\xC3\xA9\"\n");
}

}  // namespace
}  // namespace qorltst::simulator
