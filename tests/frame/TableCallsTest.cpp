// Methods and settable properties, called through the rows of their classes' tables as automation calls them.
#include <gtest/gtest.h>

#include "frame/EtLog.h"
#include "frame/PublicClasses.h"
#include "frame/TST.h"
#include "tests/support/Printers.h"

namespace qorltst {
namespace {

using testing::Entry;
using testing::Line;
using testing::Parsed;
using testing::TestSession;
using testing::TestToolkit;

class TableCallsTest : public ::testing::Test {
 protected:
  static const Member& Row(Object& object, std::u16string_view name) {
    const Member* const row = object.Description().FindByName(name);
    EXPECT_NE(row, nullptr) << testing::Readable(name);
    return *row;
  }

  static Value Call(Object& object, std::u16string_view name, const std::vector<Value>& arguments = {}) {
    const auto& method = std::get<Method>(Row(object, name).access);
    EXPECT_EQ(method.parameters.size(), arguments.size());
    return method.call(object, arguments);
  }

  Ref<TestToolkit> toolkit_ = Make<TestToolkit>(Parsed{10000, {{602, u"TST"}}});
  Ref<EtLog> log_ = Make<EtLog>(*toolkit_);
  Ref<TST> tst_ = Make<TST>(*toolkit_);
};

TEST_F(TableCallsTest, EveryLogOperationWritesItsEntry) {
  Call(*log_, u"Log", {std::u16string(u"Here"), std::u16string(u"text")});
  Call(*log_, u"LogHostError", {1004, std::u16string(u"Here")});
  Call(*log_, u"LogVbError", {5, std::u16string(u"bad"), std::u16string(u"Here"), std::u16string(u"text"), 3000});
  Call(*log_, u"LogParseWarning", {1005, std::u16string(u"Here")});
  Call(*log_, u"LogVbWarning", {5, std::u16string(u"bad"), std::u16string(u"Here"), std::u16string(u"text"), 0});
  Call(*log_, u"LogTrace", {std::u16string(u"text"), std::u16string(u"Here")});
  EXPECT_EQ(toolkit_->log, (std::vector<Entry>{{0, u"QorlTST.Here", 0, u"text"},
                                               {0, u"QorlTST.Here", 1004, u"User not sign in"},
                                               {0, u"QorlTST.Here", 0, u"bad - text"},
                                               {0, u"QorlTST.Here", 3000, u"Time out."},
                                               {2, u"QorlTST.Here", 1005, u"Parsing Warning"},
                                               {2, u"QorlTST.Here", 0, u"bad - text"},
                                               {3, u"QorlTST.Here", 1, u"text"}}));
}

TEST_F(TableCallsTest, LeftOutArgumentsAreEmptyTextsAndZero) {
  Call(*log_, u"Log", {Value{}, Value{}});
  Call(*log_, u"LogHostError", {Value{}, Value{}});
  Call(*log_, u"LogVbError", {Value{}, Value{}, Value{}, Value{}, Value{}});
  EXPECT_EQ(toolkit_->log,
            (std::vector<Entry>{{0, u"QorlTST.", 0, u""}, {0, u"QorlTST.", 0, u""}, {0, u"QorlTST.", 0, u" - "}}));
}

TEST_F(TableCallsTest, TheSourceOfALogIsReadAndSet) {
  EXPECT_EQ(std::get<std::u16string>(Call(*log_, u"Source")), u"QorlTST.");
  Row(*log_, u"Source").put.call(*log_, std::u16string(u"Mine/"));
  EXPECT_EQ(std::get<std::u16string>(Call(*log_, u"Source")), u"Mine/");
}

TEST_F(TableCallsTest, BothRetrievalsRun) {
  const Ref<toolkit::HostSession> session =
      Make<TestSession>(*toolkit_, std::deque<std::optional<std::u16string>>(2, Line(u"TST")));
  EXPECT_EQ(std::get<std::int32_t>(Call(*tst_, u"RetrieveCurrentTst", {session})), 0);
  EXPECT_EQ(std::get<std::int32_t>(Call(*tst_, u"RetrieveSpecificTst", {session, std::u16string(u"TQT/T1")})), 0);
  EXPECT_EQ(testing::TextOf(*tst_, u"Text"), u"TST");
}

TEST_F(TableCallsTest, ARetrievalWithoutASessionIsASessionProblem) {
  EXPECT_EQ(std::get<std::int32_t>(Call(*tst_, u"RetrieveCurrentTst", {Value{}})), 3004);
  EXPECT_EQ(std::get<std::int32_t>(Call(*tst_, u"RetrieveSpecificTst", {Value{}, Value{}})), 3004);
}

TEST_F(TableCallsTest, PublishedAndNetFaresCanBeReplacedButNotByNothing) {
  const Member& row = Row(*tst_, u"PublishedAndNetFares");
  EXPECT_EQ(std::get<ObjectField>(row.access).type(), nullptr) << "any object may stand there";
  const Ref<Object> other = Make<Collection>();
  row.put.call(*tst_, other);
  EXPECT_EQ(testing::ObjectOf(*tst_, u"PublishedAndNetFares"), other.Get());
  for (const Value& nothing : {Value{}, Value{Ref<Object>()}, Value{7}}) {
    try {
      row.put.call(*tst_, nothing);
      FAIL() << "nothing was taken";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), toolkit::kObjectNotSet);
      EXPECT_STREQ(error.what(), "runtime error");
    }
  }
  EXPECT_EQ(testing::ObjectOf(*tst_, u"PublishedAndNetFares"), other.Get());
}

TEST_F(TableCallsTest, ACollectionIsCountedReadAndEnumerated) {
  const auto collection = Make<Collection>();
  collection->Add(log_);
  EXPECT_EQ(testing::NumberOf(*collection, u"Count"), 1);
  EXPECT_EQ(std::get<Ref<Object>>(Call(*collection, u"Item", {1})), log_);
  EXPECT_EQ(std::get<Ref<Cursor>>(Call(*collection, u"_NewEnum"))->Next(), log_);
  EXPECT_EQ(std::get<ObjectField>(Row(*tst_, u"AirSegments").access).type(), &Collection::kDescription);
}

TEST_F(TableCallsTest, MembersAreFoundByTheirDispatchIds) {
  for (const ClassDescription* const description : PublicClasses()) {
    for (const Member& row : description->members) {
      EXPECT_EQ(description->FindByDispatchId(description->DispatchIdOf(row)), &row);
    }
    EXPECT_EQ(description->FindByDispatchId(-5), nullptr);
    EXPECT_EQ(description->FindByDispatchId(static_cast<std::int32_t>(description->members.size()) + 1), nullptr);
  }
}

TEST_F(TableCallsTest, ARowWithADispatchIdOfItsOwnIsNotFoundByItsPlace) {
  const ClassDescription& collection = Collection::kDescription;
  EXPECT_EQ(collection.FindByDispatchId(1)->name, u"Count");
  EXPECT_EQ(collection.FindByDispatchId(0)->name, u"Item");
  EXPECT_EQ(collection.FindByDispatchId(2), nullptr);
  EXPECT_EQ(collection.FindByDispatchId(-4)->name, u"_NewEnum");
}

/// A face that says when it goes.
class Face final : public ObjectFace {
 public:
  explicit Face(bool& gone) : gone_(gone) {}
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;
  ~Face() override { gone_ = true; }

 private:
  bool& gone_;
};

TEST_F(TableCallsTest, AnObjectKeepsItsFaceToItsEnd) {
  bool gone = false;
  EXPECT_EQ(log_->Face(), nullptr);
  auto face = std::make_unique<Face>(gone);
  const ObjectFace* const kept = face.get();
  log_->SetFace(std::move(face));
  EXPECT_EQ(log_->Face(), kept);
  EXPECT_EQ(log_->References(), 1U);
  log_ = nullptr;
  EXPECT_TRUE(gone);
}

}  // namespace
}  // namespace qorltst
