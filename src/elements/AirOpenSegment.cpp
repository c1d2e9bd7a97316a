// The public table and the fill. See AirOpenSegment.h.
#include "elements/AirOpenSegment.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct AirOpenSegment::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ElementNumber",
       .access = Field<&AirOpenSegment::elementNumber_>(),
       .node = NodeTypeId::SegmentElementNumber,
       .getGuard = u"AirOpenSegment:ElementNumber Property Get",
       .letGuard = u"AirOpenSegment:ElementNumber Property Let",
       .help = u"The number of the segment."},
      {.name = u"Text",
       .access = Field<&AirOpenSegment::text_>(),
       .getGuard = u"AirOpenSegment:Text Property Get",
       .letGuard = u"AirOpenSegment:Text Property Let",
       .help = u"The segment line as displayed."},
      {.name = u"ConnectId",
       .access = Field<&AirOpenSegment::connectId_>(),
       .node = NodeTypeId::ConnectId,
       .getGuard = u"AirOpenSegment:ConnectIndicator Property Get",
       .letGuard = u"AirOpenSegment:ConnectId Property Let",
       .help = u"The connection indicator."},
      {.name = u"BoardPoint",
       .access = Field<&AirOpenSegment::boardPoint_>(),
       .node = NodeTypeId::City,
       .getGuard = u"AirOpenSegment:BoardPoint Property Get",
       .letGuard = u"AirOpenSegment:BoardPoint Property Let",
       .help = u"The board point."},
      {.name = u"AirLine",
       .access = Field<&AirOpenSegment::airLine_>(),
       .node = NodeTypeId::AirLine,
       .getGuard = u"AirOpenSegment:AirLine Property Get",
       .letGuard = u"AirOpenSegment:AirLine Property Let",
       .help = u"The carrier."},
      {.name = u"DepartureDate",
       .access = Field<&AirOpenSegment::departureDate_>(),
       .node = NodeTypeId::DateText,
       .getGuard = u"AirOpenSegment:DepartureDate Property Get",
       .letGuard = u"AirOpenSegment:DepartureDate Property Let",
       .help = u"The date of departure as displayed."},
      {.name = u"FareBasisId",
       .access = Field<&AirOpenSegment::fareBasisId_>(),
       .node = NodeTypeId::SegmentFareBasis,
       .getGuard = u"AirOpenSegment:FareBasisIndicator Property Get",
       .letGuard = u"AirOpenSegment:FareBasisId Property Let",
       .help = u"The fare basis."},
      {.name = u"PassengerType",
       .access = Field<&AirOpenSegment::passengerType_>(),
       .node = NodeTypeId::SegmentPassengerType,
       .getGuard = u"AirOpenSegment:PassengerType Property Get",
       .letGuard = u"AirOpenSegment:PassengerType Property Let",
       .help = u"The passenger type of the fare."},
      {.name = u"BaggageAllowance",
       .access = Field<&AirOpenSegment::baggageAllowance_>(),
       .node = NodeTypeId::BaggageAllowance,
       .getGuard = u"AirOpenSegment:BaggageAllowance Property Get",
       .letGuard = u"AirOpenSegment:BaggageAllowance Property Let",
       .help = u"The baggage allowance."},
      ClassDebugIdMember(),
      {.name = u"Class",
       .access = Field<&AirOpenSegment::class_>(),
       .node = NodeTypeId::BookingClass,
       .help = u"The class of service."},
      {.name = u"ErrorText",
       .access = Field<&AirOpenSegment::errorText_>(),
       .help = u"The parser's error text for the segment line."},
      {.name = u"NotValidBefore",
       .access = Field<&AirOpenSegment::notValidBefore_>(),
       .node = NodeTypeId::NotValidBefore,
       .getGuard = u"AirSegment:NotValidBefore Property Get",
       .letGuard = u"AirSegment:NotValidBefore Property Let",
       .help = u"The date before which the ticket is not valid."},
      {.name = u"NotValidAfter",
       .access = Field<&AirOpenSegment::notValidAfter_>(),
       .node = NodeTypeId::NotValidAfter,
       .getGuard = u"AirSegment:NotValidAfter Property Get",
       .letGuard = u"AirSegment:NotValidAfter Property Let",
       .help = u"The date after which the ticket is not valid."},
  }};
};

constinit const ClassDescription AirOpenSegment::kDescription = Table::kMembers.Describe(
    u"AirOpenSegment", u"An open segment: the flown segment without flight, time, status and booking designator.",
    &CreateObject<AirOpenSegment>);

void AirOpenSegment::FillWithData(ParseNode& node) {
  FillFromTable(kUsualTexts<u"FillWithData", u"AirOpenSegment">, node);
}

}  // namespace qorltst
