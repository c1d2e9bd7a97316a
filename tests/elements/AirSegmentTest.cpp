// A flown segment. See src/elements/AirSegment.h.
#include <gtest/gtest.h>

#include "elements/AirSegment.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using AirSegmentTest = testing::ElementTest<AirSegment>;

/// A segment line with every field once.
Tree WholeLine() {
  return Tree{230,
              u"1 O LON QX 417 Y 12MAR 0915 OK YRT 12MAR 12MAR 20K",
              {{2699, u"1"},
               {2700, u"O"},
               {92, u"LON"},
               {3, u"QX"},
               {95, u"417"},
               {93, u"Y"},
               {2705, u"R"},
               {94, u"12MAR"},
               {99, u"0915"},
               {96, u"OK"},
               {2707, u"YRT"},
               {2708, u"CH"},
               {2709, u"10MAR"},
               {2710, u"20MAR"},
               {2711, u"20K"}}}
      .WithError(u"col 9");
}

TEST_F(AirSegmentTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(
      FilledFrom(WholeLine()),
      (Texts{"ErrorText=col 9", "PassengerType=CH", "FlightNumber=417", "ElementNumber=1",
             "Text=1 O LON QX 417 Y 12MAR 0915 OK YRT 12MAR 12MAR 20K", "ConnectId=O", "BoardPoint=LON", "AirLine=QX",
             "Class=Y", "RBDId=R", "DepartureDate=12MAR", "DepartureTime=0915", "ReservationStatus=OK",
             "FareBasisId=YRT", "NotValidBefore=10MAR", "NotValidAfter=20MAR", "BaggageAllowance=20K"}));
}

TEST_F(AirSegmentTest, ASegmentWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{230, u"1 LON"}.WithError(u"e")), (Texts{"ErrorText=e", "Text=1 LON"}));
}

TEST_F(AirSegmentTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}), (Texts{"3 AirLine=text", "92 BoardPoint=text", "93 Class=text", "94 DepartureDate=text",
                                    "95 FlightNumber=text", "96 ReservationStatus=text", "99 DepartureTime=text",
                                    "2699 ElementNumber=text", "2700 ConnectId=text", "2705 RBDId=text",
                                    "2707 FareBasisId=text", "2708 PassengerType=text", "2709 NotValidBefore=text",
                                    "2710 NotValidAfter=text", "2711 BaggageAllowance=text"}));
}

TEST_F(AirSegmentTest, TypesInsideTheRangesThatItDoesNotKnowChangeNothing) {
  EXPECT_EQ(
      FilledFrom(
          {230, u"", {{97, u"a"}, {98, u"b"}, {2701, u"c"}, {2702, u"d"}, {2703, u"e"}, {2704, u"f"}, {2706, u"g"}}}),
      Texts());
}

TEST_F(AirSegmentTest, TheSecondClassWins) {
  EXPECT_EQ(FilledFrom({230, u"", {{93, u"Y"}, {3, u"QX"}, {93, u"M"}}}), (Texts{"AirLine=QX", "Class=M"}));
}

TEST_F(AirSegmentTest, FieldsBelowAChildAreNotSeen) {
  EXPECT_EQ(FilledFrom({230, u"", {{4711, u"?", {{93, u"Y"}}}, {3, u"QX", {{92, u"LON"}}}}}), Texts{"AirLine=QX"});
}

TEST_F(AirSegmentTest, ASecondFillOverwritesWhatItsLineHolds) {
  Fill({230, u"1", {{93, u"Y"}, {3, u"QX"}}});
  EXPECT_EQ(FilledFrom({230, u"2", {{93, u"M"}}}), (Texts{"Text=2", "AirLine=QX", "Class=M"}));
}

TEST_F(AirSegmentTest, DatesAndTimesAreKeptAsTheyAreDisplayed) {
  EXPECT_EQ(FilledFrom({230, u" x ", {Tree{94, u" 1MAR"}.WithDate(5), {99, u"915 "}}}),
            (Texts{"Text= x ", "DepartureDate= 1MAR", "DepartureTime=915 "}));
}

TEST_F(AirSegmentTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"AirSegment"));
}

TEST_F(AirSegmentTest, EachChildIsReadOnceAndOnlyWhatIsStored) {
  Fill({230, u"", {{93, u"Y"}, {97, u"?", {{93, u"x"}}}, {2711, u"20K"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 230", "ErrorText 230", "Children 230", "Next 230", "TypeId 93", "Text 93",
                                    "Next 230", "TypeId 97", "Next 230", "TypeId 2711", "Text 2711", "Next 230"}));
}

TEST_F(AirSegmentTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(AirSegmentTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

TEST_F(AirSegmentTest, AFailureCarriesItsOwnNumberAndSource) {
  toolkit_->FailAt(6, toolkit::RuntimeError(1234, u"Toolkit.Node", u""));
  EXPECT_EQ(FailureOf(WholeLine()), "0x800404D2 Toolkit.Node");
  EXPECT_EQ(toolkit_->log, std::vector{testing::TraceEntry(u"Beginning of FillWithData(in AirSegment) Function",
                                                           u"AirSegment.FillWithData")});
}

}  // namespace
}  // namespace qorltst
