// Currency and amount of the fare lines. See Money.h.
#include "simulator/lines/Money.h"

#include <algorithm>

#include "simulator/FieldShape.h"

namespace qorltst::simulator {

void ReadMoney(LineReader& reader, NodeTypeId amountType, std::span<const std::u16string_view> words) {
  if (IsCurrencyCode(reader.Peek().text)) {
    reader.Add(NodeTypeId::CurrencyCode, reader.Next());
  } else {
    reader.Warn(reader.Peek(), u"currency code expected");
  }
  const Field amount = reader.Peek();
  const bool fits = IsAmount(amount.text) || std::ranges::find(words, amount.text) != words.end();
  if (!fits) {
    reader.Warn(amount, u"amount expected");
  }
  if (fits || IsDigits(amount.text.substr(0, 1))) {
    reader.Add(amountType, reader.Next());
  }
}

}  // namespace qorltst::simulator
