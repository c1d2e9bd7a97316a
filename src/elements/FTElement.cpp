// The public table and the fill. See FTElement.h.
#include "elements/FTElement.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;

struct FTElement::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ElementNumber", .access = Field<&FTElement::elementNumber_>(), .help = u"The number of the element."},
      ClassDebugIdMember(),
      {.name = u"TourType", .access = Field<&FTElement::tourType_>(), .help = u"The type of the tour."},
      {.name = u"TourCode", .access = Field<&FTElement::tourCode_>(), .help = u"The tour code."},
      {.name = u"PassengerExeption", .access = Field<&FTElement::passengerExeption_>(), .help = u"Always empty."},
      {.name = u"FreeFlowText",
       .access = Field<&FTElement::freeFlowText_>(),
       .help = u"The free text; behind one space where it stands in sub-fields."},
      {.name = u"Text", .access = Field<&FTElement::text_>(), .help = u"The tour code line as displayed."},
      {.name = u"ErrorText",
       .access = Field<&FTElement::errorText_>(),
       .help = u"The parser's error text for the tour code line."},
  }};
};

constinit const ClassDescription FTElement::kDescription = Table::kMembers.Describe(
    u"FTElement", u"A tour code: tour type, tour code and free text.", &CreateObject<FTElement>);

void FTElement::FillWithData(ParseNode& node) {
  Traced(kUsualTexts<u"FillWithData", u"FTElement">, [&] {
    TakeTexts(node);
    // The space in front is part of the value.
    const auto secondSubField = [this](ParseNode& child) { freeFlowText_ = u" " + BufferOf(child.Item(2)); };
    Walk(node, On(NodeTypeId::ElementNumber, Text(elementNumber_)),
         On(NodeTypeId::TourCodeData,
            Children(On(NodeTypeId::TourGroup,
                        Children(On(NodeTypeId::TourCode, Text(tourCode_)), On(NodeTypeId::TourType, Text(tourType_)))),
                     On(NodeTypeId::TourFreeFlow, Text(freeFlowText_)),
                     On(NodeTypeId::TourOtherFreeFlow, Text(freeFlowText_)),
                     On(NodeTypeId::TourSubFields, secondSubField))));
  });
}

}  // namespace qorltst
