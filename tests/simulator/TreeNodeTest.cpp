// The owned parse tree and its written form; see simulator/TreeNode.h and simulator/Node.h.
#include <gtest/gtest.h>

#include "simulator/Node.h"
#include "simulator/TreeNode.h"
#include "toolkit/RuntimeError.h"

namespace qorltst::simulator {
namespace {

std::u16string BufferOf(const Ref<BufferOwner>& owner) { return owner ? owner->Buffer() : u"<nothing>"; }

TEST(TreeNode, IsEmptyWithoutAnyChildOrAttribute) {
  const auto node = Make<TreeNode>();
  EXPECT_EQ(node->TypeId(), NodeTypeId::None);
  EXPECT_EQ(node->Text(), u"");
  EXPECT_EQ(node->ErrorText(), u"");
  EXPECT_FALSE(node->HasWarning());
  EXPECT_FALSE(node->HasChildren());
  EXPECT_EQ(node->DateValue(), Date{});
  EXPECT_FALSE(node->Item(1));
  EXPECT_FALSE(node->FindNode(NodeTypeId::TstRoot));
  EXPECT_FALSE(node->Children()->Next());
}

TEST(TreeNode, HasTheAttributesThatItIsWrittenWith) {
  const Ref<TreeNode> node = Node(3324, u"20DEC26").Date(46376).Warning(u"late").Buffer(u"raw");
  EXPECT_EQ(node->TypeId(), NodeTypeId::LastDate);
  EXPECT_EQ(node->Text(), u"20DEC26");
  EXPECT_EQ(node->DateValue(), Date{46376});
  EXPECT_TRUE(node->HasWarning());
  EXPECT_EQ(node->ErrorText(), u"late");
  EXPECT_EQ(node->Buffer(), u"raw");
}

TEST(TreeNode, CanCarryAnErrorTextWithoutAWarning) {
  const Ref<TreeNode> node = Node(602).Error(u"damaged");
  EXPECT_EQ(node->ErrorText(), u"damaged");
  EXPECT_FALSE(node->HasWarning());
}

TEST(TreeNode, JoinsTheReasonsOfItsWarnings) {
  const Ref<TreeNode> node = Node(602).Warning(u"first").Warning(u"second");
  EXPECT_EQ(node->ErrorText(), u"first; second");
}

TEST(TreeNode, HandsOutItsChildrenInDisplayOrder) {
  const auto tree = Tree({Node(602, u"a", {Node(2689, u"below")}), Node(2850, u"b")});
  const auto children = tree->Children();
  EXPECT_EQ(children->Next()->Text(), u"a");
  EXPECT_EQ(children->Next()->Text(), u"b");
  EXPECT_FALSE(children->Next());
  EXPECT_FALSE(children->Next());
}

TEST(TreeNode, StartsAFreshEnumerationEachTime) {
  const auto tree = Tree({Node(602, u"a"), Node(2850, u"b")});
  const auto first = tree->Children();
  EXPECT_EQ(first->Next()->Text(), u"a");
  EXPECT_EQ(tree->Children()->Next()->Text(), u"a");
}

TEST(TreeNode, LivesAsLongAsAnEnumerationOfItsChildren) {
  auto tree = Tree({Node(602, u"a")});
  const auto children = tree->Children();
  tree = nullptr;
  EXPECT_EQ(children->Next()->Text(), u"a");
}

TEST(TreeNode, FindsTheFirstNodeInDisplayOrderAtAnyDepth) {
  const auto tree = Tree({Node(2850, u"", {Node(2717, u"deep")}), Node(2717, u"shallow")});
  EXPECT_EQ(tree->FindNode(NodeTypeId::FareAmount)->Text(), u"deep");
}

TEST(TreeNode, FindsANodeBeforeTheNodesBelowIt) {
  const auto tree = Tree({Node(2858, u"outer", {Node(2858, u"inner")})});
  EXPECT_EQ(tree->FindNode(NodeTypeId::BankersRateGroup)->Text(), u"outer");
}

TEST(TreeNode, DoesNotFindItself) {
  const Ref<TreeNode> node = Node(602, u"header", {Node(2689, u"1")});
  EXPECT_FALSE(node->FindNode(NodeTypeId::TstRoot));
}

TEST(TreeNode, TakesItsChildrenForItsItems) {
  const Ref<TreeNode> node = Node(759, u"", {Node(1, u"a"), Node(1, u"b")});
  EXPECT_EQ(BufferOf(node->Item(1)), u"a");
  EXPECT_EQ(BufferOf(node->Item(2)), u"b");
}

TEST(TreeNode, HasNoItemOutsideItsPositions) {
  const Ref<TreeNode> node = Node(759, u"", {Node(1, u"a")});
  for (const std::int32_t index : {0, 2, -1, INT32_MAX, INT32_MIN}) {
    EXPECT_FALSE(node->Item(index)) << index;
  }
}

TEST(TreeNode, PrefersItemsOfItsOwnToItsChildren) {
  const Ref<TreeNode> node = Node(740, u"/C12", {Node(1, u"child")}).Items({Node(1, u"12")});
  EXPECT_EQ(BufferOf(node->Item(1)), u"12");
  EXPECT_FALSE(node->Item(2));
}

TEST(TreeNode, CanHaveNoItemsDespiteItsChildren) {
  const Ref<TreeNode> node = Node(740, u"", {Node(1, u"child")}).Items({});
  EXPECT_FALSE(node->Item(1));
  EXPECT_TRUE(node->HasChildren());
}

TEST(TreeNode, HasItsTextForItsBuffer) { EXPECT_EQ(Node(2755, u"EH").Get()->Buffer(), u"EH"); }

TEST(TreeNode, RaisesTheMissingMemberErrorWhenItHasNoBuffer) {
  const Ref<TreeNode> node = Node(2755, u"EH").NoBuffer();
  try {
    node->Buffer();
    FAIL() << "no error was raised";
  } catch (const toolkit::RuntimeError& error) {
    EXPECT_EQ(error.Number(), toolkit::kNoSuchMember);
  }
}

TEST(TreeNode, WrittenByHandKeepsItsNodesWhateverItParses) {
  const auto tree = Tree({Node(602, u"header")});
  EXPECT_EQ(tree->Parse(u"anything", 6), toolkit::kParseSuccess);
  EXPECT_TRUE(tree->FindNode(NodeTypeId::TstRoot));
}

TEST(TreeNode, WrittenByHandCanFailToParse) { EXPECT_EQ(Tree({}, 10001)->Parse(u"anything", 6), 10001); }

TEST(TreeNode, LetsGoOfItsChildrenWhenItEnds) {
  const Ref<TreeNode> child = Node(2689, u"1");
  {
    const auto parent = Make<TreeNode>();
    parent->Add(child);
    EXPECT_EQ(child->References(), 2U);
  }
  EXPECT_EQ(child->References(), 1U);
}

}  // namespace
}  // namespace qorltst::simulator
