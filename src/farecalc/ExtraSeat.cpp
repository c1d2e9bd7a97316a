// The public table and the fill. See ExtraSeat.h.
#include "farecalc/ExtraSeat.h"

#include "farecalc/Fare.h"
#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData"},
    .end = {u"End of FillWithData (in ExtraSeat) Function", u"ExtraSeat.FillWithData"},
    .errorEnd = {u"End of FillWithData (in ExtraSeat) Function with Errors", u"ExtraSeat.FillWithData"}};

}  // namespace

struct ExtraSeat::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"Text", .access = Field<&ExtraSeat::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText",
       .access = Field<&ExtraSeat::errorText_>(),
       .help = u"The parser's error text for the item."},
      {.name = u"ExtraSeatId", .access = Field<&ExtraSeat::extraSeatId_>(), .help = u"The code of the item."},
      {.name = u"Fare",
       .access = Field<&ExtraSeat::fare_>(),
       .help = u"The fare of the item; absent until the item is filled."},
      {.name = u"CityCode", .access = Field<&ExtraSeat::cityCode_>(), .help = u"The city."},
  }};
};

constinit const ClassDescription ExtraSeat::kDescription = Table::kMembers.Describe(
    u"ExtraSeat", u"An extra seat or cabin baggage with its own fare.", &CreateObject<ExtraSeat>);

ExtraSeat::ExtraSeat(toolkit::Toolkit& toolkit) : LineElement(toolkit) {}

ExtraSeat::~ExtraSeat() = default;

void ExtraSeat::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    TakeTexts(node);
    const auto fare = Make<Fare>(Toolkit());
    Walk(node, On(NodeTypeId::FareAmount, [&](ParseNode& child) { fare->BuildFare(child); }),
         On(NodeTypeId::ExtraSeatId, Text(extraSeatId_)), On(NodeTypeId::CabinBaggageId, Text(extraSeatId_)),
         On(NodeTypeId::ExtraSeatCity, Text(cityCode_)),
         On(NodeTypeId::ExtraSeatCurrency, [&](ParseNode& child) { fare->BuildCurrency(child); }),
         On(NodeTypeId::LessFare, [&](ParseNode& child) { fare->BuildLessFare(child); }));
    fare_ = fare;  // also where no part of a fare was there
  });
}

}  // namespace qorltst
