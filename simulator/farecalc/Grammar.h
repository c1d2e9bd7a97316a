// The productions of the fare calculation's grammar: `Starts...` tells whether one stands at the cursor, `Read...`
// reads it into nodes below `parent`. docs/display-format.md shows them as a table with examples.
#pragma once

#include "simulator/farecalc/FareCursor.h"

namespace qorltst::simulator {

// The three parts of a line.

/// "LON", "12NOV LON", "I-12NOV26 LON". A missing one is a warning.
void ReadDeparturePoint(FareCursor& cursor, TreeNode& line);

/// All up to the end line.
void ReadItineraries(FareCursor& cursor, TreeNode& line);

/// "NUC241.00END ROE0.812345 XT 20.00GB XF JFK4.5".
bool StartsEndLine(const FareCursor& cursor);
void ReadEndLine(FareCursor& cursor, TreeNode& line);

// What stands between them.

/// "QX X/PAR ZZ TYO M1250.50YRT": a fare component, up to its fare.
bool StartsComponent(const FareCursor& cursor);
void ReadComponent(FareCursor& cursor, TreeNode& parent);

/// "(QX BRU QX PAR 80.00)": a composite element.
bool StartsSideTrip(const FareCursor& cursor);
void ReadSideTrip(FareCursor& cursor, TreeNode& parent);

/// "P LONTYO LC/PAR 25.00YRT".
bool StartsFareMinimum(const FareCursor& cursor);
void ReadFareMinimum(FareCursor& cursor, TreeNode& parent);

/// "C/LONPAR/PARTYO 120.00".
bool StartsFareCommon(const FareCursor& cursor);
void ReadFareCommon(FareCursor& cursor, TreeNode& parent);

/// "D LONTYO LONPAR/C M12.00".
bool StartsHigherClassDifferential(const FareCursor& cursor);
void ReadHigherClassDifferential(FareCursor& cursor, TreeNode& parent);

/// "EXST LON GBP120.00LESS20.00", "CBBG 50.00".
bool StartsExtraSeat(const FareCursor& cursor);
void ReadExtraSeat(FareCursor& cursor, TreeNode& parent);

// Parts of a fare component and of a side trip's items.

/// "QX": a word of two characters, except 5M, IT and BT.
bool StartsCarrier(const FareCursor& cursor);

/// "QX X/PAR", "//BRU", or a city without the carrier that should be there.
bool StartsLeg(const FareCursor& cursor);
void ReadLeg(FareCursor& cursor, TreeNode& parent);

/// "(EH)".
bool StartsGlobalRouting(const FareCursor& cursor);
void ReadGlobalRouting(FareCursor& cursor, TreeNode& parent);

/// "Q10.00", "Q LONPAR10.00".
bool StartsSurcharge(const FareCursor& cursor);
void ReadSurcharge(FareCursor& cursor, TreeNode& parent);

/// Reads all surcharges that follow one another, in a group of their own.
void ReadSurcharges(FareCursor& cursor, TreeNode& parent);

/// "S50.00", "2S50.00", "S/2".
bool StartsStopOver(const FareCursor& cursor);
void ReadStopOver(FareCursor& cursor, TreeNode& parent);

/// "M", "15M", "M/IT", "BT".
bool StartsMileageItem(const FareCursor& cursor);
void ReadMileageItem(FareCursor& cursor, TreeNode& parent);

/// The same further ahead.
bool StartsMileageItemAt(const FareCursor& cursor, std::size_t ahead);

/// A mileage item with IT or BT, which may stand in the place of a fare.
bool StartsTourFare(const FareCursor& cursor);

/// "LONTYO/Y".
bool StartsIntermediatePoint(const FareCursor& cursor);
void ReadIntermediatePoint(FareCursor& cursor, TreeNode& parent);

/// "LC/PAR".
bool StartsLowestCombination(const FareCursor& cursor);
void ReadLowestCombination(FareCursor& cursor, TreeNode& parent);

/// "F/TYO".
bool StartsFictitiousPoint(const FareCursor& cursor);
void ReadFictitiousPoint(FareCursor& cursor, TreeNode& parent);

/// "E/XXX".
bool StartsExtraMileageAllowance(const FareCursor& cursor);
void ReadExtraMileageAllowance(FareCursor& cursor, TreeNode& parent);

/// "B/BUE B/RIO/5M".
bool StartsMileageEqualization(const FareCursor& cursor);
void ReadMileageEqualization(FareCursor& cursor, TreeNode& parent);

// Fares.

/// "1250.50YRT LESS 25.00 S50.00".
bool StartsFare(const FareCursor& cursor);
void ReadFare(FareCursor& cursor, TreeNode& parent);

/// "LESS 25.00", "-25.00".
bool StartsLessFare(const FareCursor& cursor);
void ReadLessFare(FareCursor& cursor, TreeNode& parent);

/// The fare basis right behind an amount; of no kind where there is none.
Token TakeFareBasis(FareCursor& cursor);

/// Adds its node, unless there is none.
void AddFareBasis(TreeNode& parent, const Token& basis);

/// Reads an amount into a node of this type. A missing one is a warning; then the result is false.
bool ReadAmount(FareCursor& cursor, TreeNode& parent, NodeTypeId type);

// Parts of the end line.

/// "XF JFK4.5LAX4.5", "ZPJFKLAX", "PD 12.00GB", "XT 20.00GB 15.00FR".
bool StartsCharge(const FareCursor& cursor);

/// Reads all charges that follow one another.
void ReadCharges(FareCursor& cursor, TreeNode& parent);

}  // namespace qorltst::simulator
