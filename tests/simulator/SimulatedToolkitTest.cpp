// The simulator as a toolkit; see simulator/SimulatedToolkit.h.
#include <gtest/gtest.h>

#include <sstream>

#include "DisplaySupport.h"
#include "simulator/Node.h"
#include "simulator/SimulatedToolkit.h"
#include "simulator/StreamLogger.h"

namespace qorltst::simulator {
namespace {

TEST(SimulatedToolkit, MakesAFreshParserEachTime) {
  const auto toolkit = Make<SimulatedToolkit>();
  const auto first = toolkit->CreateParser();
  const auto second = toolkit->CreateParser();
  EXPECT_EQ(first->Parse(Screen({u"TST 00001"}), 6), toolkit::kParseSuccess);
  EXPECT_TRUE(first->FindNode(NodeTypeId::TstRoot));
  EXPECT_FALSE(second->HasChildren());
  EXPECT_EQ(toolkit->ParsersCreated(), 2U);
}

TEST(SimulatedToolkit, GathersTheEntriesOfItsLoggersInOneLog) {
  const auto toolkit = Make<SimulatedToolkit>();
  const auto first = toolkit->CreateLogger();
  const auto second = toolkit->CreateLogger();
  second->Write(3, u"b", 1, u"1");
  first->Write(3, u"a", 1, u"2");
  EXPECT_EQ(toolkit->LoggersCreated(), 2U);
  ASSERT_EQ(toolkit->Log()->Count(), 2U);
  EXPECT_EQ(toolkit->Log()->Entries()[0].source, u"b");
}

TEST(SimulatedToolkit, TakesItsLoggersFromAnotherSource) {
  std::ostringstream stream;
  const auto toolkit = Make<SimulatedToolkit>();
  toolkit->SetLoggerSource([&stream] { return Make<StreamLogger>(stream); });
  toolkit->CreateLogger()->Write(3, u"S", 1, u"M");
  EXPECT_EQ(stream.str(), "- TRACE 1 S: M\n");
  EXPECT_EQ(toolkit->Log()->Count(), 0U);
}

TEST(SimulatedToolkit, TakesItsParsersFromAnotherSource) {
  const auto toolkit = Make<SimulatedToolkit>();
  toolkit->SetParserSource([] { return Tree({Node(602, u"header")}); });
  const auto parser = toolkit->CreateParser();
  EXPECT_EQ(parser->Parse(u"anything", 6), toolkit::kParseSuccess);
  EXPECT_EQ(parser->FindNode(NodeTypeId::TstRoot)->Text(), u"header");
  EXPECT_EQ(toolkit->ParsersCreated(), 1U);
}

}  // namespace
}  // namespace qorltst::simulator
