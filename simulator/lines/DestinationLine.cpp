// "DEST LON 1755": ends the itinerary with the last arrival.
#include "simulator/FieldShape.h"
#include "simulator/KeyedItem.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr ItemPart kDestination{NodeTypeId::Destination, u"destination", IsCity};
constexpr ItemPart kArrival{NodeTypeId::TimeText, u"time", IsTime};

/// Here each node has its own error text: a reader of this line asks its nodes, not the line.
void ReadWithOwnWarnings(LineReader& reader, const ItemPart& part) {
  const Field field = reader.Next();
  const Ref<TreeNode> node = reader.Add(part.type, field);
  reader.StartElement(node);
  if (!part.fits(field.text)) {
    reader.WarnExpected(field, part.name);
  }
}

}  // namespace

void ReadDestinationLine(LineReader& reader) {
  if (reader.AtEnd() || IsTime(reader.Peek().text)) {
    reader.WarnExpected(reader.Peek(), kDestination.name);
  } else {
    ReadWithOwnWarnings(reader, kDestination);
  }
  if (!reader.AtEnd()) {
    ReadWithOwnWarnings(reader, kArrival);
  }
}

}  // namespace qorltst::simulator
