// Items that a key marks, such as "OD/I/LONPAR": tables of them describe the rest of a line.
#pragma once

#include <span>

#include "simulator/LineReader.h"

namespace qorltst::simulator {

/// A part of an item, between slashes; or a field of its own.
struct ItemPart {
  NodeTypeId type = NodeTypeId::None;
  /// Names the part in a warning: "office expected".
  std::u16string_view name;
  bool (*fits)(std::u16string_view) = nullptr;
  bool isOptional = false;
};

struct KeyedItem {
  /// With its slash: "OD/".
  std::u16string_view key;
  std::span<const ItemPart> parts;
  /// Reads an item that is more than its parts into `parent`. `item` is the whole item, its key included.
  void (*read)(LineReader& reader, TreeNode& parent, Field item) = nullptr;
  /// The node of the whole item, which the parts stand below; without one they stand beside those of other items.
  NodeTypeId group = NodeTypeId::None;
};

/// Adds a node for the part to `parent`. An empty part is a warning unless it is optional; a part that does not fit is
/// a warning and still has its node. Nothing when there is no part.
Ref<TreeNode> AddPart(const LineReader& reader, TreeNode& parent, const Field& field, const ItemPart& part);

/// Takes the part at the front of `item` and adds it.
Ref<TreeNode> ReadPart(const LineReader& reader, TreeNode& parent, Field& item, const ItemPart& part,
                       char16_t separator = u'/');

/// Takes one part after another.
void ReadParts(const LineReader& reader, TreeNode& parent, Field& item, std::span<const ItemPart> parts,
               char16_t separator = u'/');

/// Adds a node for each of the values that plus signs separate, at least one.
void ReadList(const LineReader& reader, TreeNode& parent, Field list, const ItemPart& value);

/// Warns of what is left of an item after its last part.
void EndItem(const LineReader& reader, const Field& item);

/// Reads all that is left of the line as items below `parent`, in any order. What has no known key is skipped with a
/// warning.
void ReadKeyedItems(LineReader& reader, TreeNode& parent, std::span<const KeyedItem> items);

/// The same below the node of the line.
void ReadKeyedItems(LineReader& reader, std::span<const KeyedItem> items);

}  // namespace qorltst::simulator
