// "EXCH 12 IX/990-4700112233-4/C12 OI/990-4700110001-2 AM/EUR/120.00 TP/840.00/T20.00/P50.00 RM/UPGRADE": the documents
// that the ticket was issued for, and the money that went with them.
#include <algorithm>
#include <array>
#include <optional>

#include "simulator/FieldShape.h"
#include "simulator/GroupNode.h"
#include "simulator/LineParts.h"
#include "simulator/SimulatorNumbers.h"
#include "simulator/lines/Lines.h"
#include "simulator/lines/TicketDocument.h"

namespace qorltst::simulator {
namespace {

/// An amount behind one letter that tells what it is.
template <char16_t Letter>
constexpr bool IsMarkedAmount(std::u16string_view text) {
  return text.starts_with(Letter) && IsAmount(text.substr(1));
}

constexpr std::array kMoney{
    ItemPart{NodeTypeId::CurrencyCode, u"currency code", IsCurrencyCode},
    ItemPart{NodeTypeId::Amount, u"amount", IsAmount},
};
constexpr ItemPart kBaseFare{NodeTypeId::Amount, u"base fare", IsAmount, true};
constexpr ItemPart kTaxAmount{NodeTypeId::ExchangeTax, u"tax", IsMarkedAmount<u'T'>, true};
constexpr ItemPart kPenalty{NodeTypeId::ExchangePenalty, u"penalty", IsMarkedAmount<u'P'>, true};

/// The amount is an item of its node, without the letter in front.
void AddAmountItem(const Ref<TreeNode>& marked) {
  if (marked) {
    const std::u16string text = marked->Text();
    marked->Add(kSubField, std::u16string_view(text).substr(IsLetter(text.front()) ? 1 : 0));
  }
}

class ExchangeReader {
 public:
  ExchangeReader(LineReader& reader, TreeNode& body) : reader_(reader), body_(body) {}

  void Read();

 private:
  using Action = void (ExchangeReader::*)(Field item);

  struct Kind {
    std::u16string_view key;
    /// Reads the item behind its key; `whole_` is all of it.
    Action read;
  };

  /// The group over all documents and amounts, from the first of them to this item.
  TreeNode& Groups();
  void ReadExchanged(Field item);
  void ReadOriginal(Field item);
  void ReadAmount(Field item);
  void ReadTaxAndPenalty(Field item);
  void ReadReference(Field item);
  void ReadRemark(Field item);

  static const std::array<Kind, 6> kKinds;

  LineReader& reader_;
  TreeNode& body_;
  Field whole_;
  std::optional<GroupNode> groups_;
  std::optional<GroupNode> exchanged_;
};

constexpr std::array<ExchangeReader::Kind, 6> ExchangeReader::kKinds{{
    {u"IX/", &ExchangeReader::ReadExchanged},
    {u"OI/", &ExchangeReader::ReadOriginal},
    {u"AM/", &ExchangeReader::ReadAmount},
    {u"TP/", &ExchangeReader::ReadTaxAndPenalty},
    {u"RF/", &ExchangeReader::ReadReference},
    {u"RM/", &ExchangeReader::ReadRemark},
}};

void ExchangeReader::Read() {
  while (!reader_.AtEnd()) {
    Field item = whole_ = reader_.Next();
    const auto* const kind =
        std::ranges::find_if(kKinds, [&](const Kind& known) { return item.text.starts_with(known.key); });
    if (kind == kKinds.end()) {
      reader_.Warn(item, u"unknown item");
      continue;
    }
    item.Take(kind->key.size());
    (this->*kind->read)(item);
  }
}

/// The group's node, which from now on covers this field too.
TreeNode& Covering(std::optional<GroupNode>& group, TreeNode& parent, NodeTypeId type, const Field& field) {
  if (!group) {
    group.emplace(parent, type, field);
  }
  group->Cover(field);
  return *group->Node();
}

TreeNode& ExchangeReader::Groups() { return Covering(groups_, body_, NodeTypeId::DocumentGroups, whole_); }

void ExchangeReader::ReadExchanged(Field item) {
  TreeNode& exchanged = Covering(exchanged_, Groups(), NodeTypeId::IssuedInExchange, whole_);
  ReadTicketDocument(reader_, *exchanged.Add(NodeTypeId::ExchangeDocument, whole_.text), item);
}

void ExchangeReader::ReadOriginal(Field item) {
  ReadTicketDocument(reader_, *Groups().Add(NodeTypeId::OriginalIssue, whole_.text), item);
}

void ExchangeReader::ReadAmount(Field item) {
  ReadParts(reader_, *Groups().Add(NodeTypeId::ExchangeAmount, whole_.text), item, kMoney);
  EndItem(reader_, item);
}

void ExchangeReader::ReadTaxAndPenalty(Field item) {
  const Ref<TreeNode> group = Groups().Add(NodeTypeId::TaxAndPenalty, whole_.text);
  ReadPart(reader_, *group, item, kBaseFare);
  AddAmountItem(ReadPart(reader_, *group, item, kTaxAmount));
  AddAmountItem(ReadPart(reader_, *group, item, kPenalty));
  EndItem(reader_, item);
}

void ExchangeReader::ReadReference(Field item) {
  static constexpr ItemPart kReference{NodeTypeId::FreeFlow, u"reference", IsCode};
  AddPart(reader_, body_, item, kReference);
}

void ExchangeReader::ReadRemark(Field item) {
  GroupNode group(body_, NodeTypeId::FreeFlowGroup, whole_);
  group.Cover(reader_.PeekRest());
  if (const std::u16string text = ReadFreeText(reader_, item); !text.empty()) {
    group.Node()->Add(NodeTypeId::FreeFlow, text);
  }
}

}  // namespace

void ReadExchangeLine(LineReader& reader) {
  ReadElementNumber(reader);
  if (const Ref<TreeNode> body = AddRest(reader, NodeTypeId::OriginalIssueBody, u"document")) {
    ExchangeReader(reader, *body).Read();
  }
}

}  // namespace qorltst::simulator
