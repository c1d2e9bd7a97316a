// What several line kinds have in common: element numbers, rows of fields without keys, the group of all the rest.
#pragma once

#include <span>
#include <string>

#include "simulator/KeyedItem.h"

namespace qorltst::simulator {

/// Reads the number of an element, which is digits. A field that starts with none is left, with a warning.
void ReadElementNumber(LineReader& reader, NodeTypeId type = NodeTypeId::ElementNumber);

/// Reads fields that stand in this order, up to the end of the line or to the first of the `items`. A field that only
/// fits a later place tells that the ones before it are missing; one that fits nowhere is taken for the next one that
/// is not optional. Both are warnings.
void ReadFields(LineReader& reader, std::span<const ItemPart> fields, std::span<const KeyedItem> items = {});

/// A node for all that is left of the line, which stays to be read. At the end nothing, with a warning that a thing of
/// this name is expected.
Ref<TreeNode> AddRest(LineReader& reader, NodeTypeId type, std::u16string_view name);

/// Free text to the end of the line that starts with this field, screen lines joined with one blank. A warning where
/// there is none.
[[nodiscard]] std::u16string ReadFreeText(LineReader& reader, const Field& first);

}  // namespace qorltst::simulator
