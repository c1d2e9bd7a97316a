// "OPEN 3 O PAR QX Y 12NOV FB/YLE6M NV//12MAY BG/1PC": a segment without a flight, perhaps without a date.
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"
#include "simulator/lines/SegmentItems.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kFields{
    ItemPart{NodeTypeId::ConnectId, u"connection", IsOneLetter, true},
    ItemPart{NodeTypeId::City, u"board point", IsCity},
    ItemPart{NodeTypeId::AirLine, u"carrier", IsCarrier},
    ItemPart{NodeTypeId::BookingClass, u"class", IsOneLetter},
    ItemPart{NodeTypeId::DateText, u"day and month", IsDayAndMonth, true},
};

}  // namespace

void ReadOpenLine(LineReader& reader) {
  ReadElementNumber(reader, NodeTypeId::SegmentElementNumber);
  ReadFields(reader, kFields, kSegmentItems);
  ReadKeyedItems(reader, kSegmentItems);
}

}  // namespace qorltst::simulator
