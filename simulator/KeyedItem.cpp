// Reading of items that a key marks. See KeyedItem.h.
#include "simulator/KeyedItem.h"

#include <algorithm>

namespace qorltst::simulator {
namespace {

void ReadItem(LineReader& reader, TreeNode& parent, const KeyedItem& kind, Field item) {
  if (kind.read != nullptr) {
    kind.read(reader, parent, item);
    return;
  }
  TreeNode& owner = kind.group == NodeTypeId::None ? parent : *parent.Add(kind.group, item.text);
  item.Take(kind.key.size());
  ReadParts(reader, owner, item, kind.parts);
  EndItem(reader, item);
}

}  // namespace

Ref<TreeNode> AddPart(const LineReader& reader, TreeNode& parent, const Field& field, const ItemPart& part) {
  if (!part.fits(field.text) && !(field.Empty() && part.isOptional)) {
    reader.WarnExpected(field, part.name);
  }
  return field.Empty() ? nullptr : parent.Add(part.type, field.text);
}

Ref<TreeNode> ReadPart(const LineReader& reader, TreeNode& parent, Field& item, const ItemPart& part,
                       char16_t separator) {
  return AddPart(reader, parent, item.TakeUntil(separator), part);
}

void ReadParts(const LineReader& reader, TreeNode& parent, Field& item, std::span<const ItemPart> parts,
               char16_t separator) {
  for (const ItemPart& part : parts) {
    ReadPart(reader, parent, item, part, separator);
  }
}

void ReadList(const LineReader& reader, TreeNode& parent, Field list, const ItemPart& value) {
  for (bool more = true; more;) {
    more = list.text.find(u'+') != std::u16string_view::npos;
    ReadPart(reader, parent, list, value, u'+');
  }
}

void EndItem(const LineReader& reader, const Field& item) {
  if (!item.Empty()) {
    reader.Warn(item, u"unexpected text");
  }
}

void ReadKeyedItems(LineReader& reader, TreeNode& parent, std::span<const KeyedItem> items) {
  while (!reader.AtEnd()) {
    const Field item = reader.Next();
    const auto kind =
        std::ranges::find_if(items, [&](const KeyedItem& known) { return item.text.starts_with(known.key); });
    if (kind != items.end()) {
      ReadItem(reader, parent, *kind, item);
    } else {
      reader.Warn(item, u"unknown item");
    }
  }
}

void ReadKeyedItems(LineReader& reader, std::span<const KeyedItem> items) {
  ReadKeyedItems(reader, reader.Line(), items);
}

}  // namespace qorltst::simulator
