// "NETFARE GBP 00150.00": the fare that the agency settles.
#include "simulator/lines/Lines.h"
#include "simulator/lines/Money.h"

namespace qorltst::simulator {

void ReadNetFareLine(LineReader& reader) { ReadMoney(reader, NodeTypeId::FareAmount); }

}  // namespace qorltst::simulator
