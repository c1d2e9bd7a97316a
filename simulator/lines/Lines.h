// The productions of the line kinds: each reads the fields of its line. Their table is LineKind.cpp.
#pragma once

#include "simulator/LineReader.h"

namespace qorltst::simulator {

/// Raises a `DisplayError` when the element number cannot be read.
void ReadHeaderLine(LineReader& reader);

/// A header names an element number; other lines may start with the same word.
bool IsHeaderLine(const DisplayLine& line);

void ReadFareLine(LineReader& reader);
void ReadEquivalentLine(LineReader& reader);
void ReadTotalLine(LineReader& reader);
void ReadNetFareLine(LineReader& reader);

/// The line's node takes the free text after the label as its own text.
void ReadPaymentRestrictionLine(LineReader& reader);

void ReadZapOffLine(LineReader& reader);
void ReadPublishedAndNetFaresLine(LineReader& reader);

/// The passengers' nodes have warnings of their own.
void ReadNamesLine(LineReader& reader);

void ReadAirLine(LineReader& reader);
void ReadOpenLine(LineReader& reader);
void ReadArnkLine(LineReader& reader);
void ReadDestinationLine(LineReader& reader);

/// Serves both lines of taxes. The taxes' nodes have warnings of their own.
void ReadTaxLine(LineReader& reader);

void ReadCommissionLine(LineReader& reader);
void ReadFormOfPaymentLine(LineReader& reader);
void ReadCarrierLine(LineReader& reader);
void ReadEndorsementLine(LineReader& reader);
void ReadTourCodeLine(LineReader& reader);
void ReadExchangeLine(LineReader& reader);

/// Its grammar is in simulator/farecalc.
void ReadFareCalculationLine(LineReader& reader);

}  // namespace qorltst::simulator
