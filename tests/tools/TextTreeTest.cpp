// The model as text; see tools/model/TextTree.h.
#include <gtest/gtest.h>

#include "elements/NameElement.h"
#include "elements/TSTHeader.h"
#include "farecalc/ExtraSeat.h"
#include "tests/tools/support/Samples.h"
#include "tools/model/TextTree.h"

namespace qorltst::model {
namespace {

std::string Tree(Object& object, Filter filter = {}, std::size_t depth = 0) {
  std::string out;
  PrintTree(out, object, filter, depth);
  return out;
}

TEST(TextTree, PutsValuesInLineAndObjectsBelowThem) {
  EXPECT_EQ(Tree(*testing::SampleTicket("minimal.txt"), {}, 1),
            "  Text  TST 1\n"
            "  TSTHeader\n"
            "    Text           TST 1\n"
            "    ElementNumber  1\n");
}

TEST(TextTree, WritesEmptyValuesOnRequest) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const std::string tree = Tree(*Make<ExtraSeat>(*toolkit), {.empty = true});
  EXPECT_NE(tree.find("Text         \"\"\n"), std::string::npos) << tree;
  EXPECT_NE(tree.find("Fare         (absent)\n"), std::string::npos) << tree;
  const std::string ticket = Tree(*Make<TST>(*toolkit), {.empty = true});
  EXPECT_NE(ticket.find("AirSegments                         (none)\n"), std::string::npos) << ticket;
  EXPECT_NE(ticket.find("TotalCollectionAmount               0.0000\n"), std::string::npos) << ticket;
  EXPECT_NE(ticket.find("LastDateFromTst               (none)\n"), std::string::npos) << ticket;
}

TEST(TextTree, CutsATextIntoTheLinesOfTheScreen) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto ticket = Make<TST>(*toolkit);
  ticket->SetTextToParse(std::u16string(80, u'A') + std::u16string(80, u'B') + u"C");
  EXPECT_EQ(Tree(*ticket), "Text  " + std::string(80, 'A') + "\n      " + std::string(80, 'B') + "\n      C\n");
}

TEST(TextTree, GivesEachErrorALine) {
  const std::string tree = Tree(*testing::SampleTicket("warnings.txt"));
  EXPECT_NE(tree.find("TotalErrorText                   column 23: rate of exchange expected\n"
                      "                                 column 28: amount and currency expected\n"),
            std::string::npos)
      << tree;
}

TEST(TextTree, KeepsValuesOnTheirLine) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto name = Make<NameElement>(*toolkit);
  testing::FillProperties(*name, u"A\nB");
  EXPECT_NE(Tree(*name).find("LastName       A\\u000aB\n"), std::string::npos) << Tree(*name);
}

TEST(TextTree, WritesTheDateOfTheHeader) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto header = Make<TSTHeader>(*toolkit);
  testing::FillProperties(*header, u"");
  EXPECT_EQ(Tree(*header), "LastDateFromTst  2026-12-20T06:00:00.000\n");
}

}  // namespace
}  // namespace qorltst::model
