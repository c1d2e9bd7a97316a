// "ARNK 2 PAR": a gap in the journey that is travelled by other means; where it starts.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kFields{ItemPart{NodeTypeId::ArnkBoardPoint, u"board point", IsCity}};

}  // namespace

void ReadArnkLine(LineReader& reader) {
  ReadElementNumber(reader, NodeTypeId::SegmentElementNumber);
  ReadFields(reader, kFields);
}

}  // namespace qorltst::simulator
