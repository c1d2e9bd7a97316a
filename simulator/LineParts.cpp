// See LineParts.h.
#include "simulator/LineParts.h"

#include <algorithm>

#include "simulator/FieldShape.h"

namespace qorltst::simulator {
namespace {

bool StartsItem(const Field& field, std::span<const KeyedItem> items) {
  return std::ranges::any_of(items, [&](const KeyedItem& item) { return field.text.starts_with(item.key); });
}

/// Reads one field where it stands at its place, or tells that it is missing. `later` are the fields after it.
void ReadField(LineReader& reader, const ItemPart& part, std::span<const ItemPart> later) {
  const Field field = reader.Peek();
  const auto fitsField = [&](const ItemPart& other) { return other.fits(field.text); };
  if (fitsField(part)) {
    reader.Add(part.type, reader.Next());
  } else if (!part.isOptional) {
    reader.WarnExpected(field, part.name);
    if (std::ranges::none_of(later, fitsField)) {
      reader.Add(part.type, reader.Next());
    }
  }
}

}  // namespace

void ReadElementNumber(LineReader& reader, NodeTypeId type) {
  const Field number = reader.Peek();
  if (!IsDigits(number.text)) {
    reader.WarnExpected(number, u"element number");
  }
  if (IsDigits(number.text.substr(0, 1))) {
    reader.Add(type, reader.Next());
  }
}

void ReadFields(LineReader& reader, std::span<const ItemPart> fields, std::span<const KeyedItem> items) {
  for (; !fields.empty(); fields = fields.subspan(1)) {
    const ItemPart& part = fields.front();
    if (!reader.AtEnd() && !StartsItem(reader.Peek(), items)) {
      ReadField(reader, part, fields.subspan(1));
    } else if (!part.isOptional) {
      reader.WarnExpected(reader.Peek(), part.name);
    }
  }
}

Ref<TreeNode> AddRest(LineReader& reader, NodeTypeId type, std::u16string_view name) {
  if (reader.AtEnd()) {
    reader.WarnExpected(reader.Peek(), name);
    return nullptr;
  }
  return reader.Add(type, reader.PeekRest());
}

std::u16string ReadFreeText(LineReader& reader, const Field& first) {
  reader.BackTo(first);
  if (reader.AtEnd()) {
    reader.WarnExpected(first, u"text");
  }
  return reader.FreeText();
}

}  // namespace qorltst::simulator
