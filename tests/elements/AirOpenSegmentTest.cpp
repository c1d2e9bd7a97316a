// An open segment. See src/elements/AirOpenSegment.h.
#include <gtest/gtest.h>

#include "elements/AirOpenSegment.h"
#include "tests/support/ElementTests.h"

namespace qorltst {
namespace {

using testing::Around;
using testing::Calls;
using testing::Texts;
using testing::Tree;

using AirOpenSegmentTest = testing::ElementTest<AirOpenSegment>;

/// An open segment line with every field once.
Tree WholeLine() {
  return Tree{2847,
              u"2 X ROM QX OPEN Y",
              {{2699, u"2"},
               {2700, u"X"},
               {92, u"ROM"},
               {3, u"QX"},
               {93, u"Y"},
               {94, u"OPEN"},
               {2707, u"YRT"},
               {2708, u"CH"},
               {2709, u"10MAR"},
               {2710, u"20MAR"},
               {2711, u"20K"}}}
      .WithError(u"col 4");
}

TEST_F(AirOpenSegmentTest, EveryFieldOfTheLineIsStored) {
  EXPECT_EQ(FilledFrom(WholeLine()),
            (Texts{"ElementNumber=2", "Text=2 X ROM QX OPEN Y", "ConnectId=X", "BoardPoint=ROM", "AirLine=QX",
                   "DepartureDate=OPEN", "FareBasisId=YRT", "PassengerType=CH", "BaggageAllowance=20K", "Class=Y",
                   "ErrorText=col 4", "NotValidBefore=10MAR", "NotValidAfter=20MAR"}));
}

TEST_F(AirOpenSegmentTest, ASegmentWithoutChildrenHasOnlyItsTextAndErrorText) {
  EXPECT_EQ(FilledFrom(Tree{2847, u"2 ROM"}.WithError(u"e")), (Texts{"Text=2 ROM", "ErrorText=e"}));
}

TEST_F(AirOpenSegmentTest, ExactlyTheseChildrenAreStored) {
  EXPECT_EQ(StoredBelow({}),
            (Texts{"3 AirLine=text", "92 BoardPoint=text", "93 Class=text", "94 DepartureDate=text",
                   "2699 ElementNumber=text", "2700 ConnectId=text", "2707 FareBasisId=text", "2708 PassengerType=text",
                   "2709 NotValidBefore=text", "2710 NotValidAfter=text", "2711 BaggageAllowance=text"}));
}

TEST_F(AirOpenSegmentTest, AFlightNumberLeavesNothingBehind) {
  EXPECT_EQ(FilledFrom({2847, u"", {{95, u"417"}}}), Texts());
  EXPECT_EQ(AirOpenSegment::kDescription.FindByName(u"FlightNumber"), nullptr);
}

TEST_F(AirOpenSegmentTest, WhatOnlyAFlownSegmentHasIsSkippedUnread) {
  Fill({2847, u"", {{96, u"OK"}, {99, u"0915"}, {2705, u"R"}}});
  EXPECT_EQ(toolkit_->calls, (Calls{"Text 2847", "ErrorText 2847", "Children 2847", "Next 2847", "TypeId 96",
                                    "Next 2847", "TypeId 99", "Next 2847", "TypeId 2705", "Next 2847"}));
}

TEST_F(AirOpenSegmentTest, ARepeatedChildOverwrites) {
  EXPECT_EQ(FilledFrom({2847, u"", {{93, u"Y"}, {92, u"ROM"}, {93, u"M"}}}), (Texts{"BoardPoint=ROM", "Class=M"}));
}

TEST_F(AirOpenSegmentTest, FieldsBelowAChildAreNotSeen) {
  EXPECT_EQ(FilledFrom({2847, u"", {{4711, u"?", {{93, u"Y"}}}, {3, u"QX", {{92, u"ROM"}}}}}), Texts{"AirLine=QX"});
}

TEST_F(AirOpenSegmentTest, OneFillWritesOnePairOfTraces) {
  Fill(WholeLine());
  EXPECT_EQ(toolkit_->log, Around(u"FillWithData", u"AirOpenSegment"));
}

TEST_F(AirOpenSegmentTest, EveryFailureClimbsAndNothingMoreIsTraced) { ExpectEveryFailureToClimb(WholeLine()); }

TEST_F(AirOpenSegmentTest, EveryFailureKeepsWhatWasSet) { ExpectEveryFailureToKeepWhatWasSet(WholeLine()); }

}  // namespace
}  // namespace qorltst
