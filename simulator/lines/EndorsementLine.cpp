// "ENDORSE 10 ID/M NON REFUNDABLE - VALID ON QX ONLY": the restrictions printed on the ticket.
#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr std::u16string_view kKey = u"ID/";
constexpr ItemPart kManualId{NodeTypeId::EndorsementManualId, u"manual id", IsOneLetter};

}  // namespace

void ReadEndorsementLine(LineReader& reader) {
  ReadElementNumber(reader);
  const Ref<TreeNode> data = AddRest(reader, NodeTypeId::EndorsementData, u"text");
  if (!data) {
    return;
  }
  if (reader.Peek().text.starts_with(kKey)) {
    Field item = reader.Next();
    item.Take(kKey.size());
    AddPart(reader, *data, item, kManualId);
  }
  if (const std::u16string text = ReadFreeText(reader, reader.Peek()); !text.empty()) {
    data->Add(NodeTypeId::EndorsementFreeFlow, text);
  }
}

}  // namespace qorltst::simulator
