// "TST 00001* P/F BY/LONQX0100/SU/12NOV LD/20DEC26 OD/I/LONPAR SI/SITI FC/A/0": opens a TST.
#include <array>

#include "simulator/DisplayError.h"
#include "simulator/FieldShape.h"
#include "simulator/HostDate.h"
#include "simulator/KeyedItem.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kLongestNumber = 5;

void ReadLastDate(LineReader& reader, TreeNode& header, Field item) {
  static constexpr ItemPart kLastDate{NodeTypeId::LastDate, u"last date",
                                      [](std::u16string_view text) { return ReadHostDate(text).has_value(); }};
  item.TakeUntil(u'/');
  if (const Ref<TreeNode> node = ReadPart(reader, header, item, kLastDate)) {
    node->SetDate(ReadHostDate(node->Text()).value_or(Date{}));
  }
  EndItem(reader, item);
}

constexpr std::array kPricing{ItemPart{NodeTypeId::PricingId, u"pricing id", IsOneLetter}};
constexpr std::array kModifiedBy{
    ItemPart{NodeTypeId::Office, u"office", IsOffice},
    ItemPart{NodeTypeId::AgentDutyCode, u"duty code", IsDutyCode},
    ItemPart{NodeTypeId::DateText, u"day and month", IsDayAndMonth},
};
constexpr std::array kOriginDestination{
    ItemPart{NodeTypeId::OriginDestinationId, u"origin-destination id", IsOneLetter},
    ItemPart{NodeTypeId::OriginDestinationData, u"city pair", IsCityPair},
};
constexpr std::array kInternationalSales{
    ItemPart{NodeTypeId::InternationalSalesId, u"sales id", IsSalesId},
};
constexpr std::array kFareCalculation{
    ItemPart{NodeTypeId::FareCalculationType, u"fare calculation type", IsOneLetter},
    ItemPart{NodeTypeId::FareCalculationMode, u"mode indicator", IsCode, true},
};

constexpr std::array kItems{
    KeyedItem{u"P/", kPricing},
    KeyedItem{u"BY/", kModifiedBy},
    KeyedItem{u"LD/", {}, ReadLastDate},
    KeyedItem{u"OD/", kOriginDestination},
    KeyedItem{u"SI/", kInternationalSales},
    KeyedItem{u"FC/", kFareCalculation},
};

void ReadElementNumber(LineReader& reader) {
  Field field = reader.Next();
  const std::size_t digits = std::min(field.text.find_first_not_of(u"0123456789"), field.text.size());
  const Field number = field.Take(digits);
  const bool hasFlag = field.text == u"*" || IsOneLetter(field.text);
  if (number.text.size() > kLongestNumber || !(field.Empty() || hasFlag)) {
    throw DisplayError(kDamagedHeader, u"header, " + DescribePlace(number.position) + u": element number expected");
  }
  reader.Add(NodeTypeId::HeaderElementNumber, number);
  if (hasFlag) {
    reader.Add(NodeTypeId::PnrChangeFlag, field);
  }
}

}  // namespace

bool IsHeaderLine(const DisplayLine& line) {
  const std::u16string_view label = line.Label();
  const std::size_t field = line.text.find_first_not_of(u' ', label.size());
  return field != std::u16string_view::npos && IsDigit(line.text[field]);
}

void ReadHeaderLine(LineReader& reader) {
  ReadElementNumber(reader);
  ReadKeyedItems(reader, kItems);
}

}  // namespace qorltst::simulator
