// "ZAPOFF 25.00" or "ZAPOFF 10P": a reduction of the fare by an amount or by a percentage.
#include "simulator/FieldShape.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

bool IsReduction(std::u16string_view text) {
  return IsAmount(text.ends_with(u'P') ? text.substr(0, text.size() - 1) : text);
}

}  // namespace

void ReadZapOffLine(LineReader& reader) {
  const Field value = reader.Next();
  if (!IsReduction(value.text)) {
    reader.Warn(value, u"reduction expected");
  }
  if (!value.Empty()) {
    reader.Add(NodeTypeId::ZapOffValue, value);
  }
}

}  // namespace qorltst::simulator
