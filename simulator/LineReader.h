// The cursor of one line: hands out its fields, adds nodes for them and notes what it did not understand.
#pragma once

#include <string>

#include "simulator/DisplayLine.h"
#include "simulator/Field.h"
#include "simulator/TreeNode.h"

namespace qorltst::simulator {

/// Stands after the label at first. Fields are separated by blanks and never run over the end of a screen line,
/// because the lines that continue one start with a blank.
class LineReader {
 public:
  /// `node` is the node of the line; it must live as long as the reader.
  LineReader(const DisplayLine& line, TreeNode& node);

  [[nodiscard]] TreeNode& Line() const noexcept { return node_; }

  /// Whether there is no further field.
  [[nodiscard]] bool AtEnd() const noexcept { return rest_.Empty(); }

  /// The next field, which stays the next one. At the end an empty field at the place where one would be missed.
  [[nodiscard]] Field Peek() const;

  /// The next field; an empty one at the end.
  Field Next();

  /// All that is left, as displayed, and stays so.
  [[nodiscard]] Field PeekRest() const noexcept { return rest_; }

  /// All that is left, as displayed: blanks up to column 80 stand between one screen line and the next.
  Field Rest();

  /// Stands before this field of the line, or before a piece of one, again.
  void BackTo(const Field& field);

  /// All that is left as running text: screen lines are joined with one blank.
  std::u16string FreeText();

  /// Adds a node for the field to the line's node.
  Ref<TreeNode> Add(NodeTypeId type, const Field& field) { return node_.Add(type, field.text); }

  /// Marks the line as only partly understood: its error text names the place and the reason.
  void Warn(const Field& field, std::u16string_view reason) const;

  /// Warns that a thing of this name is missing or does not look like one.
  void WarnExpected(const Field& field, std::u16string_view name) const;

  /// From now on warnings are noted on this node too: it shares its line with others and has an error text of its own.
  void StartElement(Ref<TreeNode> element) noexcept { element_ = std::move(element); }

 private:
  void SkipBlanks();

  TreeNode& node_;
  Ref<TreeNode> element_;
  Field rest_;
};

}  // namespace qorltst::simulator
