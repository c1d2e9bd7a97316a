// The public table and the fill. See CityDigit.h.
#include "farecalc/CityDigit.h"

#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The end line misspells the class; log readers match it.
constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in CityDigit) Function", u"CityDigit.FillWithData"},
    .end = {u"End of FillWithData (in CityDicgit) Function", u"CityDigit.FillWithData"},
    .errorEnd = {u"End of FillWithData (in CityDigit) Function with Error", u"CityDigit.FillWithData"}};

}  // namespace

struct CityDigit::Table {
  static constexpr MemberTable kMembers{{
      ClassDebugIdMember(),
      {.name = u"CityDigit", .access = Field<&CityDigit::cityDigit_>(), .help = u"The amount digits for the airport."},
      {.name = u"CityCode", .access = Field<&CityDigit::cityCode_>(), .help = u"The airport or city."},
      {.name = u"Text", .access = Field<&CityDigit::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&CityDigit::errorText_>(),
       .help = u"The parser's error text for the item."},
  }};
};

constinit const ClassDescription CityDigit::kDescription = Table::kMembers.Describe(
    u"CityDigit", u"The amount of a facility charge or segment tax at one airport.", &CreateObject<CityDigit>);

void CityDigit::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    Walk(node, On(NodeTypeId::FacilityAmount, Text(cityDigit_)), On(NodeTypeId::SegmentTaxAmount, Text(cityDigit_)),
         On(NodeTypeId::FacilityCity, Text(cityCode_)));
  });
}

}  // namespace qorltst
