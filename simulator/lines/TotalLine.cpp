// "TOTAL EUR 167.35 BR/H/1.170833/2.50USD": what is collected, and the bank's rate that it was converted at.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/KeyedItem.h"
#include "simulator/lines/Lines.h"
#include "simulator/lines/Money.h"

namespace qorltst::simulator {
namespace {

constexpr std::size_t kCurrencyLength = 3;

constexpr ItemPart kRateId{NodeTypeId::BankersRateId, u"rate id", IsOneLetter};
constexpr ItemPart kRate{NodeTypeId::RateOfExchangeOrAmount, u"rate of exchange", IsAmount};
constexpr ItemPart kAdditional{NodeTypeId::AdditionalBankersGroup, u"amount and currency",
                               [](std::u16string_view text) {
                                 return text.size() > kCurrencyLength &&
                                        IsAmount(text.substr(0, text.size() - kCurrencyLength)) &&
                                        IsCurrencyCode(text.substr(text.size() - kCurrencyLength));
                               },
                               true};

/// Splits "2.50USD"; a text of another shape has no parts.
void AddAdditionalParts(TreeNode& group) {
  const std::u16string text = group.Text();
  if (kAdditional.fits(text)) {
    const std::u16string_view view = text;
    const std::size_t currency = view.size() - kCurrencyLength;
    group.Add(NodeTypeId::RateOfExchangeOrAmount, view.substr(0, currency));
    group.Add(NodeTypeId::AdditionalBankersCurrency, view.substr(currency));
  }
}

void ReadBankersRate(LineReader& reader, TreeNode& line, Field item) {
  const Ref<TreeNode> group = line.Add(NodeTypeId::BankersRateGroup, item.text);
  item.TakeUntil(u'/');
  ReadPart(reader, *group, item, kRateId);
  ReadPart(reader, *group, item, kRate);
  if (const Ref<TreeNode> additional = ReadPart(reader, *group, item, kAdditional)) {
    AddAdditionalParts(*additional);
  }
  EndItem(reader, item);
}

constexpr std::array kItems{KeyedItem{u"BR/", {}, ReadBankersRate}};

}  // namespace

void ReadTotalLine(LineReader& reader) {
  ReadMoney(reader, NodeTypeId::TotalCollection);
  ReadKeyedItems(reader, kItems);
}

}  // namespace qorltst::simulator
