// The public table and the fill. See ARNKSegment.h.
#include "elements/ARNKSegment.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct ARNKSegment::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ElementNumber",
       .access = Field<&ARNKSegment::elementNumber_>(),
       .node = NodeTypeId::SegmentElementNumber,
       .getGuard = u"ARNKSegment:ElementNumber Property Get",
       .letGuard = u"ARNKSegment:ElementNumber Property Let",
       .help = u"The number of the segment."},
      {.name = u"Text",
       .access = Field<&ARNKSegment::text_>(),
       .getGuard = u"ARNKSegment:Text Property Get",
       .letGuard = u"ARNKSegment:Text Property Let",
       .help = u"The segment line as displayed."},
      {.name = u"BoardPoint",
       .access = Field<&ARNKSegment::boardPoint_>(),
       .node = NodeTypeId::ArnkBoardPoint,
       .getGuard = u"ARNKSegment:BoardPoint Property Get",
       .letGuard = u"ARNKSegment:BoardPoint Property Let",
       .help = u"The point where the surface segment starts."},
      {.name = u"ErrorText",
       .access = Field<&ARNKSegment::errorText_>(),
       .getGuard = u"ARNKSegment:ErrorText Property Get",
       .letGuard = u"ARNKSegment:ErrorText Property Let",
       .help = u"The parser's error text for the segment line."},
      ClassDebugIdMember(),
  }};
};

constinit const ClassDescription ARNKSegment::kDescription = Table::kMembers.Describe(
    u"ARNKSegment", u"A surface segment whose arrival is unknown.", &CreateObject<ARNKSegment>);

void ARNKSegment::FillWithData(ParseNode& node) { FillFromTable(kUsualTexts<u"FillWithData", u"ARNKSegment">, node); }

}  // namespace qorltst
