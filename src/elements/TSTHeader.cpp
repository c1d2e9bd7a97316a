// The public table and the fill. See TSTHeader.h.
#include "elements/TSTHeader.h"

namespace qorltst {

using toolkit::NodeTypeId;
using toolkit::ParseNode;
namespace {

// The lines write the class as "TstHeader" and the error line of the fill begins with "Beginning"; both are meant.
constexpr TraceTexts kTextTexts = kUsualTexts<u"FillTextWithData", u"TstHeader">;
constexpr TraceTexts kFillTexts{
    .begin = kUsualTexts<u"FillWithData", u"TstHeader">.begin,
    .end = kUsualTexts<u"FillWithData", u"TstHeader">.end,
    .errorEnd = {u"Beginning of FillWithData(in TstHeader) Function with Error", u"TstHeader.FillWithData"}};

}  // namespace

struct TSTHeader::Table {
  static constexpr MemberTable kMembers{{
      {.name = u"ErrorText",
       .access = Field<&TSTHeader::errorText_>(),
       .help = u"The parser's error text for the header line."},
      {.name = u"InternationalSalesId",
       .access = Field<&TSTHeader::internationalSalesId_>(),
       .node = NodeTypeId::InternationalSalesId,
       .help = u"The international sales indicator."},
      {.name = u"OriginDestinationId",
       .access = Field<&TSTHeader::originDestinationId_>(),
       .node = NodeTypeId::OriginDestinationId,
       .help = u"The origin and destination indicator."},
      {.name = u"PricingId",
       .access = Field<&TSTHeader::pricingId_>(),
       .node = NodeTypeId::PricingId,
       .help = u"The pricing indicator."},
      {.name = u"FareCalculationType",
       .access = Field<&TSTHeader::fareCalculationType_>(),
       .node = NodeTypeId::FareCalculationType,
       .help = u"The type of the fare calculation."},
      {.name = u"LastModifDate",
       .access = Field<&TSTHeader::lastModifDate_>(),
       .node = NodeTypeId::DateText,
       .help = u"The date of the last modification as displayed."},
      ClassDebugIdMember(),
      {.name = u"OriginDestinationData",
       .access = Field<&TSTHeader::originDestinationData_>(),
       .node = NodeTypeId::OriginDestinationData,
       .help = u"The origin and destination."},
      {.name = u"AgentDutyCode",
       .access = Field<&TSTHeader::agentDutyCode_>(),
       .node = NodeTypeId::AgentDutyCode,
       .help = u"The duty code of the agent who last touched the TST."},
      {.name = u"OfficeId",
       .access = Field<&TSTHeader::officeId_>(),
       .node = NodeTypeId::Office,
       .help = u"The office that last touched the TST."},
      {.name = u"PNRChangeFlag",
       .access = Field<&TSTHeader::pnrChangeFlag_>(),
       .node = NodeTypeId::PnrChangeFlag,
       .help = u"The flag that the booking has changed since pricing."},
      {.name = u"Text", .access = Field<&TSTHeader::text_>(), .help = u"The header line as displayed."},
      {.name = u"ElementNumber",
       .access = Field<&TSTHeader::elementNumber_>(),
       .node = NodeTypeId::HeaderElementNumber,
       .help = u"The number of the TST."},
      {.name = u"FareCalculationModeIndicator",
       .access = Field<&TSTHeader::fareCalculationModeIndicator_>(),
       .node = NodeTypeId::FareCalculationMode,
       .help = u"The mode of the fare calculation."},
      {.name = u"LastDateFromTst",
       .access = Field<&TSTHeader::lastDateFromTst_>(),
       .node = NodeTypeId::LastDate,
       .help = u"The last date of the TST as a date."},
  }};
};

constinit const ClassDescription TSTHeader::kDescription = Table::kMembers.Describe(
    u"TSTHeader", u"The header line: indicators, dates, and the office and agent that last touched the TST.",
    &CreateObject<TSTHeader>);

void TSTHeader::FillTextWithData(ParseNode& node) {
  Traced(kTextTexts, [&] { TakeTexts(node); });
}

void TSTHeader::FillWithData(ParseNode& child) {
  Traced(kFillTexts, [&] { FillFromChild(child); });
}

}  // namespace qorltst
