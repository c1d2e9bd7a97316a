// The retrieval operations of the root object, end to end over the tests' own toolkit.
#include <gtest/gtest.h>

#include "frame/TST.h"
#include "frame/modClassIDGenerator.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using testing::Parsed;
using testing::Screen;
using testing::TestSession;
using testing::TestToolkit;

class RetrievalTest : public ::testing::Test {
 protected:
  Ref<TestToolkit> toolkit_ = Make<TestToolkit>(Parsed{10000, {{602, u"TST"}, {2850, u"FARE", {{2717, u"12.5"}}}}});
  Ref<TST> tst_ = Make<TST>(*toolkit_);
  Ref<TestSession> session_ =
      Make<TestSession>(*toolkit_, std::deque<std::optional<std::u16string>>(3, Screen({u"TST"})));
};

TEST_F(RetrievalTest, FillsTheRootObject) {
  EXPECT_EQ(tst_->RetrieveCurrentTst(session_.Get()), 0);
  EXPECT_EQ(testing::CurrencyOf(*tst_, u"FareBaseLineBaseAmount"), Currency{125'000});
  EXPECT_EQ(tst_->RetrieveSpecificTst(session_.Get(), u"TQT/T2"), 0);
  EXPECT_EQ(session_->commands, (std::vector<std::u16string>{u"SetOption", u"TQT", u"TQT/T2"}));
}

TEST_F(RetrievalTest, WritesNoTraceOfTheRootObjectsOwn) {
  tst_->RetrieveCurrentTst(nullptr);
  ASSERT_FALSE(toolkit_->log.empty());
  EXPECT_EQ(toolkit_->log.front().source, u"QorlTST.Communication.RetrieveCurrentTST");
}

TEST_F(RetrievalTest, TheCommunicationIsMadeOnceAndAParserForEachRetrieval) {
  const std::int32_t before = modClassIDGenerator::OfProcess().NextID();
  tst_->RetrieveCurrentTst(nullptr);
  EXPECT_EQ(modClassIDGenerator::OfProcess().NextID(), before + 2) << "the communication";
  tst_->RetrieveCurrentTst(nullptr);
  EXPECT_EQ(modClassIDGenerator::OfProcess().NextID(), before + 3) << "nothing new";
  tst_->RetrieveCurrentTst(session_.Get());
  EXPECT_EQ(modClassIDGenerator::OfProcess().NextID(), before + 6) << "a parser and a header";
  tst_->RetrieveCurrentTst(session_.Get());
  EXPECT_EQ(modClassIDGenerator::OfProcess().NextID(), before + 9) << "another parser and another header";
}

TEST_F(RetrievalTest, AFailedOneKeepsEarlierValues) {
  tst_->RetrieveCurrentTst(session_.Get());
  EXPECT_EQ(tst_->RetrieveCurrentTst(nullptr), 3004);
  EXPECT_EQ(testing::TextOf(*tst_, u"FareBaseLineText"), u"FARE");
}

TEST_F(RetrievalTest, NoObjectIsLeftAfterTheRootIsGone) {
  tst_ = nullptr;
  const std::int32_t living = Object::Living();
  {
    const auto tst = Make<TST>(*toolkit_);
    tst->RetrieveCurrentTst(session_.Get());
    EXPECT_GT(Object::Living(), living);
  }
  EXPECT_EQ(Object::Living(), living);
}

TEST_F(RetrievalTest, WhatACallerHoldsOutlivesItsRoot) {
  const Ref<Object> header(testing::ObjectOf(*tst_, u"TSTHeader"));
  tst_ = nullptr;
  EXPECT_EQ(testing::TextOf(*header, u"OfficeId"), u"");
}

}  // namespace
}  // namespace qorltst
