// An element that keeps its node's own text and error text.
#pragma once

#include <string>

#include "frame/Element.h"

namespace qorltst {

/// The usual shape of an element class.
class LineElement : public Element {
 protected:
  explicit LineElement(toolkit::Toolkit& toolkit) : Element(toolkit) {}

  /// Takes the node's text, then its error text.
  void TakeTexts(toolkit::ParseNode& node);

  /// The whole fill of a class whose children each go to the row that names them.
  void FillFromTable(const TraceTexts& texts, toolkit::ParseNode& node);

  std::u16string text_;
  std::u16string errorText_;
};

}  // namespace qorltst
