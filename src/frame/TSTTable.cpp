// The public face of the root object, one row a member, in interface order. See TST.h.
#include <array>

#include "elements/ARNKSegment.h"
#include "elements/AirOpenSegment.h"
#include "elements/AirSegment.h"
#include "elements/FEElement.h"
#include "elements/FMElement.h"
#include "elements/FOElement.h"
#include "elements/FPElement.h"
#include "elements/FTElement.h"
#include "elements/FVElement.h"
#include "elements/ItineraryLastLine.h"
#include "elements/NameElement.h"
#include "elements/PublishedAndNetFares.h"
#include "elements/TSTHeader.h"
#include "elements/TaxElement.h"
#include "farecalc/FareCalculation.h"
#include "frame/TST.h"

namespace qorltst {
namespace {

constexpr std::array kCurrentParameters{Parameter{u"objSession", ValueType::HostSession}};
constexpr std::array kSpecificParameters{Parameter{u"objHostSession", ValueType::HostSession},
                                         Parameter{u"strCommand", ValueType::String}};

using Arguments = std::span<const Value>;

TST& TstOf(Object& object) { return static_cast<TST&>(object); }

toolkit::HostSession* SessionArgument(const Value& argument) {
  const auto* const session = std::get_if<Ref<toolkit::HostSession>>(&argument);
  return session != nullptr ? session->Get() : nullptr;
}

Value CallRetrieveCurrent(Object& object, Arguments arguments) {
  return TstOf(object).RetrieveCurrentTst(SessionArgument(arguments[0]));
}

Value CallRetrieveSpecific(Object& object, Arguments arguments) {
  return TstOf(object).RetrieveSpecificTst(SessionArgument(arguments[0]), TextIn(arguments[1]));
}

/// A caller may put a collection of its own in the place of this one, but not nothing.
void PutPublishedAndNetFares(Object& object, const Value& value) {
  const auto* const collection = std::get_if<Ref<Object>>(&value);
  if (collection == nullptr || !*collection) {
    throw RuntimeError(toolkit::kObjectNotSet);
  }
  TstOf(object).SetCollection(CollectionKind::PublishedAndNetFares, *collection);
}

const ClassDescription* AnyType() { return nullptr; }

}  // namespace

struct TST::Table {
  template <CollectionKind Kind>
  static Object* In(Object& object) {
    return TstOf(object).collections_[static_cast<std::size_t>(Kind)].Get();
  }

  template <CollectionKind Kind, class Item>
  static constexpr ObjectField kCollection{&In<Kind>, &DescriptionOf<Collection>, &DescriptionOf<Item>};

  static constexpr MemberTable kMembers{{
      {.name = u"PublishedAndNetFares",
       .access = ObjectField{&In<CollectionKind::PublishedAndNetFares>, &AnyType, &DescriptionOf<PublishedAndNetFares>},
       .put = {ValueType::Automation, true, &PutPublishedAndNetFares},
       .help = u"The published and net fares; a caller may set another collection here."},
      {.name = u"FareBaseLineErrorText",
       .access = Field<&TST::fareBaseLineErrorText_>(),
       .help = u"The parser's error text for the fare line."},
      {.name = u"TotalBankersRateId",
       .access = Field<&TST::totalBankersRateId_>(),
       .help = u"The identifier of the banker's rate of the total."},
      {.name = u"FareBaseLineIssueId",
       .access = Field<&TST::fareBaseLineIssueId_>(),
       .help = u"The issue identifier of the fare line."},
      {.name = u"TotalErrorText",
       .access = Field<&TST::totalErrorText_>(),
       .help = u"The parser's error text for the total line."},
      {.name = u"EquivalentLineText",
       .access = Field<&TST::equivalentLineText_>(),
       .help = u"The equivalent fare line as displayed."},
      {.name = u"EquivalentLineErrorText",
       .access = Field<&TST::equivalentLineErrorText_>(),
       .help = u"The parser's error text for the equivalent fare line."},
      {.name = u"RetrieveCurrentTst",
       .access = Method{kCurrentParameters, ValueType::Long, &CallRetrieveCurrent},
       .help = u"Retrieves the current TST of a host session and returns a result code."},
      {.name = u"RetrieveSpecificTst",
       .access = Method{kSpecificParameters, ValueType::Long, &CallRetrieveSpecific},
       .help = u"Retrieves a TST by a display command and returns a result code."},
      {.name = u"FMElements",
       .access = kCollection<CollectionKind::Commissions, FMElement>,
       .help = u"The commission lines."},
      {.name = u"FOElements",
       .access = kCollection<CollectionKind::OriginalIssues, FOElement>,
       .help = u"The original issue lines."},
      {.name = u"FPElements",
       .access = kCollection<CollectionKind::FormsOfPayment, FPElement>,
       .help = u"The form of payment lines."},
      {.name = u"FVElements",
       .access = kCollection<CollectionKind::ValidatingCarriers, FVElement>,
       .help = u"The validating carrier lines."},
      {.name = u"NameElements",
       .access = kCollection<CollectionKind::Names, NameElement>,
       .help = u"The passenger names."},
      {.name = u"AirSegments",
       .access = kCollection<CollectionKind::AirSegments, AirSegment>,
       .help = u"The flown segments."},
      {.name = u"AirOpenSegments",
       .access = kCollection<CollectionKind::OpenSegments, AirOpenSegment>,
       .help = u"The open segments."},
      {.name = u"ARNKSegments",
       .access = kCollection<CollectionKind::ArnkSegments, ARNKSegment>,
       .help = u"The surface segments whose arrival is unknown."},
      {.name = u"FareCalculation", .access = Field<&TST::fareCalculation_>(), .help = u"The fare calculation."},
      {.name = u"TSTHeader", .access = Field<&TST::tstHeader_>(), .help = u"The header line."},
      {.name = u"TaxElements", .access = kCollection<CollectionKind::Taxes, TaxElement>, .help = u"The taxes."},
      {.name = u"FEElement", .access = Field<&TST::feElement_>(), .help = u"The endorsement line."},
      {.name = u"ItineraryLastLine",
       .access = Field<&TST::itineraryLastLine_>(),
       .help = u"The last line of the itinerary, which names the destination."},
      ClassDebugIdMember(),
      {.name = u"FTElements",
       .access = kCollection<CollectionKind::TourCodes, FTElement>,
       .help = u"The tour code lines."},
      {.name = u"FareBaseLineCorporateCode",
       .access = Field<&TST::fareBaseLineCorporateCode_>(),
       .help = u"The corporate code of the fare line."},
      {.name = u"NetFareCurrencyCode",
       .access = Field<&TST::netFareCurrencyCode_>(),
       .help = u"The currency code of the net fare."},
      {.name = u"NetFareFareAmount",
       .access = Field<&TST::netFareFareAmount_>(),
       .help = u"The net fare as a number in the system's number format."},
      {.name = u"FareBaseLineBase", .access = Field<&TST::fareBaseLineBase_>(), .help = u"The base fare as displayed."},
      {.name = u"FareBaseLineCurrencyCode",
       .access = Field<&TST::fareBaseLineCurrencyCode_>(),
       .help = u"The currency code of the base fare."},
      {.name = u"FareBaseLineText", .access = Field<&TST::fareBaseLineText_>(), .help = u"The fare line as displayed."},
      {.name = u"NetFareBaseLineText",
       .access = Field<&TST::netFareBaseLineText_>(),
       .help = u"The net fare line as displayed."},
      {.name = u"TotalCollection",
       .access = Field<&TST::totalCollection_>(),
       .help = u"The total to collect as displayed."},
      {.name = u"TotalRateExchange",
       .access = Field<&TST::totalRateExchange_>(),
       .help = u"The rate of exchange of the total."},
      {.name = u"TotalCurrencyCode",
       .access = Field<&TST::totalCurrencyCode_>(),
       .help = u"The currency code of the total."},
      {.name = u"TotalLineText", .access = Field<&TST::totalLineText_>(), .help = u"The total line as displayed."},
      {.name = u"EquivalentLineFareBase",
       .access = Field<&TST::equivalentLineFareBase_>(),
       .help = u"The equivalent fare as displayed."},
      {.name = u"EquivalentLineCurrencyCode",
       .access = Field<&TST::equivalentLineCurrencyCode_>(),
       .help = u"The currency code of the equivalent fare."},
      {.name = u"PaymentRestrictionLineFreeFlowText",
       .access = Field<&TST::paymentRestrictionLineFreeFlowText_>(),
       .help = u"The payment restriction line as displayed."},
      {.name = u"PaymentRestrictionLineErrorText",
       .access = Field<&TST::paymentRestrictionLineErrorText_>(),
       .help = u"The parser's error text for the payment restriction line."},
      {.name = u"AdditionalTotalBankersText",
       .access = Field<&TST::additionalTotalBankersText_>(),
       .help = u"The additional banker's rate part of the total as displayed."},
      {.name = u"AdditionalTotalBankersCur",
       .access = Field<&TST::additionalTotalBankersCur_>(),
       .help = u"The currency code of the additional banker's rate part."},
      {.name = u"AdditionalTotalBankersAmount",
       .access = Field<&TST::additionalTotalBankersAmount_>(),
       .help = u"The amount of the additional banker's rate part as displayed."},
      {.name = u"Text", .access = Field<&TST::text_>(), .help = u"The whole display text."},
      {.name = u"ZapOff", .access = Field<&TST::zapOff_>(), .help = u"The ZapOff value."},
      {.name = u"TotalCollectionAmount",
       .access = Field<&TST::totalCollectionAmount_>(),
       .help = u"The total to collect as a currency amount."},
      {.name = u"FareBaseLineBaseAmount",
       .access = Field<&TST::fareBaseLineBaseAmount_>(),
       .help = u"The base fare as a currency amount."},
      {.name = u"NetFareBaseLineErrorText",
       .access = Field<&TST::netFareBaseLineErrorText_>(),
       .help = u"The parser's error text for the net fare line."},
  }};
};

constinit const ClassDescription TST::kDescription = Table::kMembers.Describe(
    u"TST", u"A Transitional Stored Ticket, retrieved through a host session.", &CreateObject<TST>);

}  // namespace qorltst
