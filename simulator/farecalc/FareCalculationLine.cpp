// "FCALC LON QX PAR 120.50QX LON 120.50NUC241.00END ROE0.812345": the fare calculation line. Its productions are
// declared in Grammar.h.
#include "simulator/farecalc/Grammar.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {

void ReadFareCalculationLine(LineReader& reader) {
  FareCursor cursor(reader);
  ReadDeparturePoint(cursor, reader.Line());
  ReadItineraries(cursor, reader.Line());
  if (!cursor.AtEnd()) {
    ReadEndLine(cursor, reader.Line());
  }
}

}  // namespace qorltst::simulator
