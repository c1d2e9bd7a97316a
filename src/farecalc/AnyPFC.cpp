// The public table and the fill. See AnyPFC.h.
#include "farecalc/AnyPFC.h"

#include "farecalc/CityDigit.h"
#include "frame/Walk.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

constexpr TraceTexts kFillTexts{
    .begin = {u"Beginning of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData"},
    .end = {u"End of FillWithData (in AnyPFC) Function", u"AnyPFC.FillWithData"},
    .errorEnd = {u"End of FillWithData (in AnyPFC) Function with error", u"AnyPFC.FillWithData"}};
constexpr TraceTexts kCityDigitTexts{
    .begin = {},
    .end = {u"End of BuildCityDigits (in AnyPFC) Function", u"AnyPFC.BuildCityDigits"},
    .errorEnd = {u"End of BuildCityDigits (in AnyPFC) Function with Error", u"AnyPFC.BuildCityDigits"}};

}  // namespace

struct AnyPFC::Table {
  static void PutDomesticUSFlight(Object& object, const Value& value) {
    static_cast<AnyPFC&>(object).domesticUSFlight_ = std::get<bool>(value);
  }

  static constexpr MemberTable kMembers{{
      {.name = u"DomesticUSFlight",
       .access = Field<&AnyPFC::domesticUSFlight_>(),
       .put = {ValueType::Boolean, false, &PutDomesticUSFlight},
       .help = u"Whether this is a domestic segment tax; a caller may change it."},
      ClassDebugIdMember(),
      {.name = u"CityDigits", .access = Items<CityDigit, &AnyPFC::cityDigits_>(), .help = u"The amounts by airport."},
      {.name = u"CombinedTax", .access = Field<&AnyPFC::combinedTax_>(), .help = u"Whether this is a combined tax."},
      {.name = u"PaxFacilityCharge",
       .access = Field<&AnyPFC::paxFacilityCharge_>(),
       .help = u"Whether this is a passenger facility charge (PFC)."},
      {.name = u"PreviousPaid",
       .access = Field<&AnyPFC::previousPaid_>(),
       .help = u"Whether this was paid previously."},
      {.name = u"Text", .access = Field<&AnyPFC::text_>(), .help = u"The item as displayed."},
      {.name = u"ErrorText", .access = Field<&AnyPFC::errorText_>(), .help = u"The parser's error text for the item."},
  }};
};

constinit const ClassDescription AnyPFC::kDescription = Table::kMembers.Describe(
    u"AnyPFC", u"A facility charge, a segment tax, or a combined or previously paid tax.", &CreateObject<AnyPFC>);

void AnyPFC::FillWithData(ParseNode& node) {
  Traced(kFillTexts, [&] {
    Gathering digits;
    TakeTexts(node);
    const auto cities = [&](ParseNode& group) { BuildCityDigits(group, digits); };
    const auto facilityCharge = [&](ParseNode& item) {
      paxFacilityCharge_ = true;
      Walk(item, On(NodeTypeId::FacilityCities, cities));
    };
    const auto segmentTax = [&](ParseNode& item) {
      domesticUSFlight_ = true;
      Walk(item, On(NodeTypeId::SegmentTaxCities, cities));
    };
    Choose(node, On(NodeTypeId::PreviouslyPaid, Mark(previousPaid_)),
           On(NodeTypeId::PreviouslyPaidTax, Mark(previousPaid_)),
           On(NodeTypeId::PreviouslyPaidOther, Mark(previousPaid_)), On(NodeTypeId::CombinedTax, Mark(combinedTax_)),
           On(NodeTypeId::PassengerFacilityCharge, facilityCharge), On(NodeTypeId::DomesticUsFlight, segmentTax));
    digits.InstallIn(cityDigits_);
  });
}

void AnyPFC::BuildCityDigits(ParseNode& node, Gathering& digits) {
  Traced(kCityDigitTexts, [&] {
    const auto add = [&](ParseNode& child) { digits.AddFilled<CityDigit>(Toolkit(), child); };
    Walk(node, On(NodeTypeId::FacilityCityItem, add), On(NodeTypeId::SegmentTaxCityItem, add));
  });
}

}  // namespace qorltst
