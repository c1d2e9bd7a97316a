// The public table and the fill. See MileageEqualizationRule.h.
#include "farecalc/MileageEqualizationRule.h"

#include "farecalc/FareGroups.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in MileageEqualizationRule) Function",
              u"MileageEqualizationRule.FillWithData"},
    .end = {u"End of FillWithData (in MileageEqualizationRule) Function", u"MileageEqualizationRule.FillWithData"},
    .errorEnd = {u"End of FillWithData (in MileageEqualizationRule) Function with Errors",
                 u"MileageEqualizationRule.FillWithData"}};

}  // namespace

struct MileageEqualizationRule::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&MileageEqualizationRule::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&MileageEqualizationRule::errorText_>(),
       .help = u"The parser's error text for the item."},
      {.name = u"BulkTourFare",
       .access = Field<&MileageEqualizationRule::bulkTourFare_>(),
       .help = u"Whether a bulk tour fare applies."},
      {.name = u"InclusiveTourFare",
       .access = Field<&MileageEqualizationRule::inclusiveTourFare_>(),
       .help = u"Whether an inclusive tour fare applies."},
      {.name = u"MileageId",
       .access = Field<&MileageEqualizationRule::mileageId_>(),
       .help = u"Whether the mileage marker is present."},
      ClassDebugIdMember(),
      {.name = u"MileageItemPercentage",
       .access = Field<&MileageEqualizationRule::mileageItemPercentage_>(),
       .help = u"The mileage percentage."},
      {.name = u"CityCode", .access = Field<&MileageEqualizationRule::cityCode_>(), .help = u"The city."},
  }};
};

constinit const ClassDescription MileageEqualizationRule::kDescription = Table::kMembers.Describe(
    u"MileageEqualizationRule", u"A mileage equalization: a city with its mileage qualifier and percentage.",
    &CreateObject<MileageEqualizationRule>);

void MileageEqualizationRule::FillWithData(ParseNode& node) {
  mileageId_ = false;  // once for the fill, not for each group
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    const auto mileage = [this](ParseNode& group) {
      WalkMileageItem(group, {inclusiveTourFare_, bulkTourFare_, mileageId_, mileageItemPercentage_});
    };
    Walk(node, On(NodeTypeId::City, Text(cityCode_)), On(NodeTypeId::MileageItem, mileage));
  });
}

}  // namespace qorltst
