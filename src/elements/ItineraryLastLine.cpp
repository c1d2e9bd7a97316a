// The public table and the fill. See ItineraryLastLine.h.
#include "elements/ItineraryLastLine.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct ItineraryLastLine::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ErrorText",
       .access = Field<&ItineraryLastLine::errorText_>(),
       .help = u"The error text of the last child that was read."},
      {.name = u"DestinationCode",
       .access = Field<&ItineraryLastLine::destinationCode_>(),
       .getGuard = u"ItineraryLastLine:DestinationCode Property Get",
       .letGuard = u"ItineraryLastLine:DestinationCode Property Let",
       .help = u"The city of the final destination."},
      ClassDebugIdMember(),
  }};
};

constinit const ClassDescription ItineraryLastLine::kDescription = Table::kMembers.Describe(
    u"ItineraryLastLine", u"The closing line of the itinerary, which names the final destination.",
    &CreateObject<ItineraryLastLine>);

void ItineraryLastLine::FillWithData(ParseNode& child) {
  Traced(kUsualTexts<u"FillWithData", u"ItineraryLastLine">, [&] {
    errorText_ = child.ErrorText();  // whatever the child's type: the last child's error text stays, and that is meant
    Choose(child, On(NodeTypeId::Destination, Text(destinationCode_)));
  });
}

}  // namespace qorltst
