// "TOUR 11 TC/N/IT27QX9 TX/LAND PART INCLUDED": the tour that the fare belongs to.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::array kTour{
    ItemPart{NodeTypeId::TourType, u"tour type", IsOneLetter},
    ItemPart{NodeTypeId::TourCode, u"tour code", IsCode},
};
constexpr std::array kSubFields{
    ItemPart{kSubField, u"sub-field", IsCode},
    ItemPart{kSubField, u"sub-field", IsCode},
};

/// The second sub-field is asked for by its place without a look, so an item with fewer than two is left out.
void ReadSubFields(LineReader& reader, TreeNode& data, Field item) {
  const std::u16string_view whole = item.text;
  item.TakeUntil(u'/');
  const std::size_t first = item.text.find(u'/');
  if (first == 0 || first >= item.text.size() - 1) {
    reader.WarnExpected(item, u"two sub-fields");
    return;
  }
  ReadParts(reader, *data.Add(NodeTypeId::TourSubFields, whole), item, kSubFields);
  EndItem(reader, item);
}

template <NodeTypeId Type>
void ReadText(LineReader& reader, TreeNode& data, Field item) {
  item.TakeUntil(u'/');
  if (const std::u16string text = ReadFreeText(reader, item); !text.empty()) {
    data.Add(Type, text);
  }
}

constexpr std::array kItems{
    KeyedItem{u"TC/", kTour, nullptr, NodeTypeId::TourGroup},
    KeyedItem{u"SF/", {}, ReadSubFields},
    KeyedItem{u"TX/", {}, ReadText<NodeTypeId::TourFreeFlow>},
    KeyedItem{u"RM/", {}, ReadText<NodeTypeId::TourOtherFreeFlow>},
};

}  // namespace

void ReadTourCodeLine(LineReader& reader) {
  ReadElementNumber(reader);
  if (const Ref<TreeNode> data = AddRest(reader, NodeTypeId::TourCodeData, u"tour code")) {
    ReadKeyedItems(reader, *data, kItems);
  }
}

}  // namespace qorltst::simulator
