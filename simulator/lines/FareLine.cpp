// "FARE F GBP 120.00 CC/ACME01": the fare of the ticket.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/KeyedItem.h"
#include "simulator/lines/Lines.h"
#include "simulator/lines/Money.h"

namespace qorltst::simulator {
namespace {

/// Stand for an amount that the ticket does not show: inclusive tour and bulk fares.
constexpr std::array<std::u16string_view, 2> kWithoutAmount{u"IT", u"BT"};

constexpr std::array kCorporate{ItemPart{NodeTypeId::CorporateCode, u"corporate code", IsCode}};
constexpr std::array kItems{KeyedItem{u"CC/", kCorporate}};

}  // namespace

void ReadFareLine(LineReader& reader) {
  if (IsOneLetter(reader.Peek().text)) {
    reader.Add(NodeTypeId::FareId, reader.Next());
  } else {
    reader.Warn(reader.Peek(), u"issue id expected");
  }
  ReadMoney(reader, NodeTypeId::FareAmount, kWithoutAmount);
  ReadKeyedItems(reader, kItems);
}

}  // namespace qorltst::simulator
