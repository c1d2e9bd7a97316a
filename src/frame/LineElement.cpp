// See LineElement.h.
#include "frame/LineElement.h"

#include "frame/Walk.h"

namespace qorltst {

void LineElement::TakeTexts(toolkit::ParseNode& node) {
  text_ = node.Text();
  errorText_ = node.ErrorText();
}

void LineElement::FillFromTable(const TraceTexts& texts, toolkit::ParseNode& node) {
  Traced(texts, [&] {
    TakeTexts(node);
    ForEachChild(node, [this](toolkit::ParseNode& child) { FillFromChild(child); });
  });
}

}  // namespace qorltst
