// The common shape of the element classes: debug id, event log, and the fill from a class's own table.
#pragma once

#include "frame/ClassDescription.h"
#include "frame/Frame.h"
#include "frame/Object.h"
#include "toolkit/ParseNode.h"

namespace qorltst {

/// A passive record that the component fills from a parse node and callers read.
class Element : public Object, public Frame {
 protected:
  explicit Element(toolkit::Toolkit& toolkit) : Frame(toolkit) {}

  /// Stores a child's text (or date) in the property whose row names its type; other types are skipped.
  void FillFromChild(toolkit::ParseNode& child);
};

/// The row of the debug id, the same in every class that shows it.
consteval Member ClassDebugIdMember() {
  return {.name = u"ClassDebugID",
          .access = LongField{[](const Object& object) { return static_cast<const Element&>(object).ClassDebugID(); }},
          .help = u"The number of this object in the order in which the process created its objects."};
}

}  // namespace qorltst
