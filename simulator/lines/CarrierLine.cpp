// "CARRIER 9 QX": the carrier that validates the ticket.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kFields{ItemPart{NodeTypeId::ValidatingCarrier, u"carrier", IsCarrier}};

}  // namespace

void ReadCarrierLine(LineReader& reader) {
  ReadElementNumber(reader);
  ReadFields(reader, kFields);
}

}  // namespace qorltst::simulator
