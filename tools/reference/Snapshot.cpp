// See Snapshot.h.
#include "tools/reference/Snapshot.h"

#include <algorithm>
#include <array>

#include "frame/Collection.h"
#include "tools/reference/ProbeTree.h"

namespace qorltst::reference {
namespace {

struct OriginText {
  std::u16string_view text;
  Origin origin;
};

constexpr std::array kOrigins{OriginText{kProbeText, Origin::Text}, OriginText{kProbeErrorText, Origin::ErrorText},
                              OriginText{kProbeBuffer, Origin::Buffer}};

/// A text that was put together, or made from the mere presence of a node, is of another origin.
Origin OriginOf(std::u16string_view text) {
  const auto* const found = std::ranges::find(kOrigins, text, &OriginText::text);
  return found != kOrigins.end() ? found->origin : Origin::Other;
}

void Read(Object& object, Snapshot& snapshot);

/// Notes a property that is set; goes down into objects.
struct Reader {
  Object& object;
  const Member& row;
  Snapshot& snapshot;

  void operator()(const StringField& field) const {
    if (const std::u16string& text = field.in(object); !text.empty()) {
      Note(OriginOf(text));
    }
  }
  void operator()(const BooleanField& field) const { NoteIf(field.in(object)); }
  void operator()(const DateField& field) const { NoteIf(field.in(object) != Date{}); }
  void operator()(const CurrencyField& field) const { NoteIf(field.in(object) != Currency{}); }
  void operator()(const ObjectField& field) const {
    if (Object* const child = field.in(object)) {
      Read(*child, snapshot);
    }
  }
  void operator()(const LongField& /*debug id*/) const {}
  void operator()(const Method& /*method*/) const {}

  void NoteIf(bool isSet) const {
    if (isSet) {
      Note(Origin::Other);
    }
  }
  void Note(Origin origin) const { snapshot.set[{&object.Description(), &row}] = origin; }
};

void Read(Object& object, Snapshot& snapshot) {
  if (const auto* const collection = dynamic_cast<const Collection*>(&object)) {
    for (std::int32_t i = 1; i <= collection->Count(); ++i) {
      Read(*collection->Item(i), snapshot);
    }
    return;
  }
  ++snapshot.objects[&object.Description()];
  for (const Member& row : object.Description().members) {
    std::visit(Reader{object, row, snapshot}, row.access);
  }
}

}  // namespace

Snapshot SnapshotOf(Object& root) {
  Snapshot snapshot;
  Read(root, snapshot);
  return snapshot;
}

}  // namespace qorltst::reference
