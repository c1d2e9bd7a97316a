// "PAYMENT CASH OR CARD QX ONLY": how the ticket may be paid, in free text.
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {

void ReadPaymentRestrictionLine(LineReader& reader) {
  if (reader.AtEnd()) {
    reader.Warn(reader.Peek(), u"text expected");
  }
  reader.Line().SetText(reader.FreeText());
}

}  // namespace qorltst::simulator
