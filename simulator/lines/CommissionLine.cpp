// "COMM 7 NEW/25.00A/2.00/XP CAP/50.00 OLD/9/1.80": what the agency keeps, now and before.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

/// Behind a value that is an amount and not a percentage.
constexpr char16_t kAmountMarker = u'A';

constexpr ItemPart kValue{NodeTypeId::CommissionValue, u"commission", IsAmount};
constexpr ItemPart kVat{NodeTypeId::CommissionVat, u"VAT", IsAmount, true};
constexpr ItemPart kId{NodeTypeId::CommissionId, u"commission id", IsCode, true};
constexpr std::array kCap{ItemPart{NodeTypeId::CommissionCap, u"amount", IsAmount}};

void ReadValue(const LineReader& reader, TreeNode& group, Field& item) {
  Field value = item.TakeUntil(u'/');
  const bool isAmount = value.text.ends_with(kAmountMarker);
  AddPart(reader, group, value.Take(value.text.size() - (isAmount ? 1 : 0)), kValue);
  if (isAmount) {
    group.Add(NodeTypeId::CommissionAmountMarker, value.text);
  }
}

void ReadCurrent(LineReader& reader, TreeNode& data, Field item) {
  const Ref<TreeNode> group = data.Add(NodeTypeId::CurrentCommission, item.text);
  item.TakeUntil(u'/');
  ReadValue(reader, *group, item);
  ReadPart(reader, *group, item, kVat);
  ReadPart(reader, *group, item, kId);
  EndItem(reader, item);
}

void ReadOld(LineReader& reader, TreeNode& data, Field item) {
  const Ref<TreeNode> group = data.Add(NodeTypeId::OldCommission, item.text);
  item.TakeUntil(u'/');
  ReadValue(reader, *group, item);
  ReadPart(reader, *group, item, kVat);
  EndItem(reader, item);
}

constexpr std::array kItems{
    KeyedItem{u"NEW/", {}, ReadCurrent},
    KeyedItem{u"CAP/", kCap, nullptr, NodeTypeId::CommissionCapGroup},
    KeyedItem{u"OLD/", {}, ReadOld},
};

}  // namespace

void ReadCommissionLine(LineReader& reader) {
  ReadElementNumber(reader);
  if (const Ref<TreeNode> data = AddRest(reader, NodeTypeId::CommissionData, u"commission")) {
    ReadKeyedItems(reader, *data, kItems);
  }
}

}  // namespace qorltst::simulator
