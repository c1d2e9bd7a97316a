// The public table and the fill. See FareMinimun.h.
#include "farecalc/FareMinimun.h"

#include "farecalc/Fare.h"
#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData"},
    .end = {u"End of FillWithData (in FareMinimum) Function", u"FareMinimum.FillWithData"},
    .errorEnd = {u"End of FillWithData (in FareMinimum) Function with Error", u"FareMinimum.FillWithData"}};

}  // namespace

struct FareMinimun::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&FareMinimun::text_>(), .help = u"The check as displayed."},
      {.name = u"ErrorText",
       .access = Field<&FareMinimun::errorText_>(),
       .help = u"The parser's error text for the check."},
      {.name = u"FareId", .access = Field<&FareMinimun::fareId_>(), .help = u"The code of the check."},
      {.name = u"Fare",
       .access = Field<&FareMinimun::fare_>(),
       .help = u"The minimum amount; absent where the check has none."},
      {.name = u"LowestCombinationCityCode",
       .access = Field<&FareMinimun::lowestCombinationCityCode_>(),
       .help = u"The lowest combination city."},
      {.name = u"CityPair2", .access = Field<&FareMinimun::cityPair2_>(), .help = u"The second city of the pair."},
      {.name = u"CityPair1", .access = Field<&FareMinimun::cityPair1_>(), .help = u"The first city of the pair."},
      {.name = u"FareBasis", .access = Field<&FareMinimun::fareBasis_>(), .help = u"The fare basis."},
  }};
};

constinit const ClassDescription FareMinimun::kDescription = Table::kMembers.Describe(
    u"FareMinimun", u"A fare minimum check: fare basis, city pair and minimum amount.", &CreateObject<FareMinimun>);

FareMinimun::FareMinimun(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

FareMinimun::~FareMinimun() = default;

void FareMinimun::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    const auto minimum = [this](ParseNode& child) {
      const auto fare = Make<Fare>(Toolkit());
      fare->FillWithData(child);
      fare_ = fare;
    };
    Walk(node, On(NodeTypeId::FareBasis, Text(fareBasis_)), On(NodeTypeId::FareMinimumId, Text(fareId_)),
         On(NodeTypeId::FareMinimumOtherId, Text(fareId_)), On(NodeTypeId::FareMinimumCity1, Text(cityPair1_)),
         On(NodeTypeId::FareMinimumCity2, Text(cityPair2_)), On(NodeTypeId::FareWithStopOver, minimum),
         On(NodeTypeId::LowestCombination, Children(On(NodeTypeId::City, Text(lowestCombinationCityCode_)))));
  });
}

}  // namespace qorltst
