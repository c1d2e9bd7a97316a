// "AIR 1 X LON QX 0341 Y B 12NOV 0930 OK FB/YLE6M/ADT NV/12NOV/12MAY BG/20K": a flown segment.
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"
#include "simulator/lines/SegmentItems.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kFields{
    ItemPart{NodeTypeId::ConnectId, u"connection", IsOneLetter, true},
    ItemPart{NodeTypeId::City, u"board point", IsCity},
    ItemPart{NodeTypeId::AirLine, u"carrier", IsCarrier},
    ItemPart{NodeTypeId::FlightNumber, u"flight number", IsFlightNumber},
    ItemPart{NodeTypeId::BookingClass, u"class", IsOneLetter},
    ItemPart{NodeTypeId::RbdId, u"booking designator", IsOneLetter, true},
    ItemPart{NodeTypeId::DateText, u"day and month", IsDayAndMonth},
    ItemPart{NodeTypeId::TimeText, u"time", IsTime},
    ItemPart{NodeTypeId::ReservationStatus, u"status", IsTwoLetters},
};

}  // namespace

void ReadAirLine(LineReader& reader) {
  ReadElementNumber(reader, NodeTypeId::SegmentElementNumber);
  ReadFields(reader, kFields, kSegmentItems);
  ReadKeyedItems(reader, kSegmentItems);
}

}  // namespace qorltst::simulator
