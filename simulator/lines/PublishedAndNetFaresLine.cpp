// "PUBNET P/GBP/845.00 N/GBP/790.50": published and net fares side by side.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/KeyedItem.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kFare{
    ItemPart{NodeTypeId::FareId, u"fare id", IsOneLetter},
    ItemPart{NodeTypeId::CurrencyCode, u"currency code", IsCurrencyCode},
    ItemPart{NodeTypeId::FareAmount, u"amount", IsAmount},
};

}  // namespace

void ReadPublishedAndNetFaresLine(LineReader& reader) {
  if (reader.AtEnd()) {
    reader.WarnExpected(reader.Peek(), u"fare");
  }
  while (!reader.AtEnd()) {
    Field item = reader.Next();
    const Ref<TreeNode> fare = reader.Add(NodeTypeId::PublishedOrNetFare, item);
    reader.StartElement(fare);
    ReadParts(reader, *fare, item, kFare);
    EndItem(reader, item);
  }
}

}  // namespace qorltst::simulator
