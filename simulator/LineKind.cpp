// The table of the line kinds: a new kind is a row here, a declaration in lines/Lines.h and a file in lines/.
#include "simulator/LineKind.h"

#include <algorithm>
#include <array>

#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

/// For a label that may start other lines.
bool StandsAlone(const DisplayLine& line) { return line.text == line.Label(); }

constexpr std::array kLineKinds{
    LineKind{u"TST", NodeTypeId::TstRoot, ReadHeaderLine, IsHeaderLine},
    LineKind{u"FARE", NodeTypeId::FareLine, ReadFareLine},
    LineKind{u"EQUIV", NodeTypeId::EquivalentLine, ReadEquivalentLine},
    LineKind{u"TOTAL", NodeTypeId::TotalLine, ReadTotalLine},
    LineKind{u"NETFARE", NodeTypeId::NetFareLine, ReadNetFareLine},
    LineKind{u"PAYMENT", NodeTypeId::PaymentRestrictionLine, ReadPaymentRestrictionLine},
    LineKind{u"ZAPOFF", NodeTypeId::ZapOffLine, ReadZapOffLine},
    LineKind{u"PUBNET", NodeTypeId::PublishedAndNetFaresBlock, ReadPublishedAndNetFaresLine},
    LineKind{u"NAMES", NodeTypeId::NameLine, ReadNamesLine},
    LineKind{u"AIR", NodeTypeId::AirSegment, ReadAirLine},
    LineKind{u"OPEN", NodeTypeId::AirOpenSegment, ReadOpenLine},
    LineKind{u"ARNK", NodeTypeId::ArnkSegment, ReadArnkLine},
    LineKind{u"DEST", NodeTypeId::ItineraryLastLine, ReadDestinationLine},
    LineKind{u"TAX", NodeTypeId::TaxLine, ReadTaxLine},
    LineKind{u"XTAX", NodeTypeId::AdditionalTaxLine, ReadTaxLine},
    LineKind{u"COMM", NodeTypeId::CommissionLine, ReadCommissionLine},
    LineKind{u"FOP", NodeTypeId::FormOfPaymentLine, ReadFormOfPaymentLine},
    LineKind{u"CARRIER", NodeTypeId::ValidatingCarrierLine, ReadCarrierLine},
    LineKind{u"ENDORSE", NodeTypeId::EndorsementLine, ReadEndorsementLine},
    LineKind{u"TOUR", NodeTypeId::TourCodeLine, ReadTourCodeLine},
    LineKind{u"EXCH", NodeTypeId::OriginalIssueLine, ReadExchangeLine},
    LineKind{u"FCALC", NodeTypeId::FareCalculationLine, ReadFareCalculationLine},
    LineKind{u"-MORE-", NodeTypeId::MoreScreens},
    LineKind{u">", NodeTypeId::None, nullptr, StandsAlone},  // the host's prompt
};

}  // namespace

const LineKind* FindLineKind(const DisplayLine& line) {
  const std::u16string_view label = line.Label();
  const auto* const found = std::ranges::find_if(kLineKinds, [&](const LineKind& kind) {
    return kind.label == label && (kind.recognises == nullptr || kind.recognises(line));
  });
  return found != kLineKinds.end() ? found : nullptr;
}

}  // namespace qorltst::simulator
