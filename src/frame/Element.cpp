// The table-driven fill. See Element.h.
#include "frame/Element.h"

namespace qorltst {

void Element::FillFromChild(toolkit::ParseNode& child) {
  const Member* const row = Description().FindByNode(child.TypeId());
  if (row == nullptr) {
    return;
  }
  if (const auto* const date = std::get_if<DateField>(&row->access)) {
    date->in(*this) = child.DateValue();
    return;
  }
  std::u16string text = child.Text();
  Guarded(row->letGuard, [&] { std::get<StringField>(row->access).in(*this) = std::move(text); });
}

}  // namespace qorltst
