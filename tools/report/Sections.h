// The sections of a ticket's page, in their order; a file each.
#pragma once

#include "frame/TST.h"
#include "tools/report/Page.h"

namespace qorltst::report {

/// All of the below that have something to show.
void WriteSections(Page& page, TST& ticket);

/// The journey as a line of places, and its segments as a table.
void WriteItinerary(Page& page, TST& ticket);
void WritePassengers(Page& page, TST& ticket);
/// Fare, taxes and total, and whether they add up.
void WriteFare(Page& page, TST& ticket);
/// The fare calculation line with its pieces explained.
void WriteFareCalculation(Page& page, TST& ticket);
/// Everything else, by the tables of the classes.
void WriteTicketing(Page& page, TST& ticket);
/// The display as the host sent it.
void WriteDisplay(Page& page, TST& ticket);

}  // namespace qorltst::report
