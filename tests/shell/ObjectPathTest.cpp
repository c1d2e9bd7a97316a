// Paths into a model. See tools/model/ObjectPath.h.
#include "farecalc/ExtraSeat.h"
#include "tests/shell/Ticket.h"
#include "tools/model/ObjectPath.h"

namespace qorltst::model {
namespace {

class ObjectPathTest : public shell::WithTicket {
 protected:
  PathEnd Follow(std::string_view path) { return FollowPath(shell_.Ticket(), path); }

  std::u16string Text(std::string_view path) {
    return std::u16string(std::get<std::u16string_view>(Follow(path).content));
  }

  std::string Error(std::string_view path) {
    try {
      return "no error but " + Follow(path).path;
    } catch (const PathError& error) {
      return error.what();
    }
  }
};

TEST_F(ObjectPathTest, APropertyOfAnItemIsFound) { EXPECT_EQ(Text("AirSegments(2).BoardPoint"), u"PAR"); }

TEST_F(ObjectPathTest, NamesAreFoundWithoutRegardToCaseAndWrittenAsTheTablesDo) {
  const PathEnd end = Follow("airSEGMENTS(1).boardpoint");
  EXPECT_EQ(end.path, "AirSegments(1).BoardPoint");
  EXPECT_EQ(end.row->name, u"BoardPoint");
  EXPECT_EQ(end.owner->Description().name, u"AirSegment");
}

TEST_F(ObjectPathTest, TheRootMayBeNamed) {
  EXPECT_EQ(Text("TST.ZapOff"), u"25.00");
  EXPECT_EQ(std::get<Object*>(Follow("tst").content), &shell_.Ticket());
  EXPECT_EQ(Follow("TST").path, "");
}

TEST_F(ObjectPathTest, BlanksBetweenThePartsDoNotCount) { EXPECT_EQ(Text(" AirSegments ( 2 ) . BoardPoint "), u"PAR"); }

TEST_F(ObjectPathTest, CollectionsAnswerToItemAndCount) {
  EXPECT_EQ(Text("AirSegments.Item(3).AirLine"), u"ZZ");
  EXPECT_EQ(Follow("AirSegments.Item(3)").path, "AirSegments(3)");
  EXPECT_EQ(std::get<std::int32_t>(Follow("AirSegments.Count").content), 3);
}

TEST_F(ObjectPathTest, PathsGoAsDeepAsTheModel) {
  EXPECT_EQ(Text("FareCalculation.Itineraries(1).CityCode"), u"ROM");
  EXPECT_TRUE(std::get<bool>(Follow("FareCalculation.EndLine.EndId").content));
}

TEST_F(ObjectPathTest, AnItemThatIsNotThereIsAnError) {
  EXPECT_EQ(Error("AirSegments(4)"), "AirSegments has 3 items, counted from 1; there is no 4");
  EXPECT_EQ(Error("AirSegments(0)"), "AirSegments has 3 items, counted from 1; there is no 0");
  EXPECT_EQ(Error("AirSegments(-1)"), "AirSegments has 3 items, counted from 1; there is no -1");
  EXPECT_EQ(Error("AirSegments(99999999999)"), "AirSegments has no item of that number");
}

TEST_F(ObjectPathTest, AnUnknownNameIsAnErrorThatSaysWhatIsNear) {
  EXPECT_EQ(Error("AirSegments(1).BordPoint"), "AirSegment has no property BordPoint; did you mean BoardPoint?");
  EXPECT_EQ(Error("Quux"), "TST has no property Quux");
}

TEST_F(ObjectPathTest, WhatHasNothingBelowItIsAnError) {
  EXPECT_EQ(Error("ZapOff.Length"), "ZapOff is a value, with nothing below it");
  EXPECT_EQ(Error("ZapOff(1)"), "ZapOff is a value, with nothing below it");
  EXPECT_EQ(Error("TSTHeader(1)"), "TSTHeader is no collection");
  EXPECT_EQ(Error("TST(1)"), "TST is no collection");
  EXPECT_EQ(Error("AirSegments.BoardPoint"),
            "AirSegments is a collection; name one of its items, as in AirSegments(1).BoardPoint");
  EXPECT_EQ(Error("RetrieveCurrentTst"), "RetrieveCurrentTst is a method of TST");
}

TEST(ObjectPathBelowAnyObject, AnAbsentObjectHasNothingBelowIt) {
  const auto toolkit = Make<simulator::SimulatedToolkit>();
  const auto seat = Make<ExtraSeat>(*toolkit);
  EXPECT_EQ(std::get<Object*>(FollowPath(*seat, "Fare").content), nullptr);
  try {
    const PathEnd end = FollowPath(*seat, "ExtraSeat.Fare.Amount");
    FAIL() << "no error but " << end.path;
  } catch (const PathError& error) {
    EXPECT_STREQ(error.what(), "Fare is absent");
  }
}

TEST_F(ObjectPathTest, AMistakeInWritingIsNamedWithItsColumn) {
  EXPECT_EQ(Error(""), "column 1: a name expected");
  EXPECT_EQ(Error("AirSegments."), "column 13: a name expected");
  EXPECT_EQ(Error("AirSegments(x)"), "column 13: a number expected, such as (1)");
  EXPECT_EQ(Error("AirSegments()"), "column 13: a number expected, such as (1)");
  EXPECT_EQ(Error("AirSegments(2"), "column 14: a closing bracket expected");
  EXPECT_EQ(Error("AirSegments(2)BoardPoint"), "column 15: a dot or an index in brackets expected");
  EXPECT_EQ(Error("AirSegments[2]"), "column 12: a dot or an index in brackets expected");
}

}  // namespace
}  // namespace qorltst::model
