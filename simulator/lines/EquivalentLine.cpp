// "EQUIV EUR 140.50": the fare in the currency of payment.
#include "simulator/lines/Lines.h"
#include "simulator/lines/Money.h"

namespace qorltst::simulator {

void ReadEquivalentLine(LineReader& reader) { ReadMoney(reader, NodeTypeId::FareAmount); }

}  // namespace qorltst::simulator
