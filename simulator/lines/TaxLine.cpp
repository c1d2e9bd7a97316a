// "TAX X/GBP/13.00/GB/AD X/EUR/22.40/FR": the taxes of a ticket, one a field.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr ItemPart kTaxId{NodeTypeId::TaxId, u"tax id", IsOneLetter};
constexpr std::array kAmount{
    ItemPart{NodeTypeId::CurrencyCode, u"currency code", IsCurrencyCode},
    ItemPart{NodeTypeId::TaxAmount, u"amount", IsAmount},
    ItemPart{NodeTypeId::TaxIsoType, u"tax code",
             [](std::u16string_view text) { return text.size() == 2 && IsCode(text); }},
    ItemPart{NodeTypeId::TaxNatureType, u"tax nature", IsTwoLetters, true},
};

void ReadTax(LineReader& reader, TreeNode& container) {
  Field item = reader.Next();
  const Ref<TreeNode> tax = container.Add(kTax, item.text);
  reader.StartElement(tax);
  ReadPart(reader, *tax, item, kTaxId);
  if (item.Empty()) {
    reader.WarnExpected(item, kAmount.front().name);
    return;
  }
  ReadParts(reader, *tax->Add(NodeTypeId::TaxAmountGroup, item.text), item, kAmount);
  EndItem(reader, item);
}

}  // namespace

void ReadTaxLine(LineReader& reader) {
  const Ref<TreeNode> container = AddRest(reader, NodeTypeId::TaxContainer, u"tax");
  while (!reader.AtEnd()) {
    ReadTax(reader, *container);
  }
}

}  // namespace qorltst::simulator
