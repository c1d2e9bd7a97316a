// "FOP 8 NEW/CASH+CCZZ0001 AC/ACME77 OLD/CHEQUE/CASH+INV": how the ticket is paid, and how it was before.
#include <array>

#include "simulator/FieldShape.h"
#include "simulator/LineParts.h"
#include "simulator/lines/Lines.h"

namespace qorltst::simulator {
namespace {

constexpr ItemPart kNew{NodeTypeId::FormOfPaymentItem, u"form of payment", IsCode};
constexpr ItemPart kOld{NodeTypeId::OldFormOfPaymentText, u"form of payment", IsCode};
constexpr ItemPart kCarriedOver{NodeTypeId::NewFormOfPayment, u"form of payment", IsCode};
constexpr std::array kAccount{ItemPart{NodeTypeId::AccountId, u"account", IsCode}};

void ReadNew(LineReader& reader, TreeNode& data, Field item) {
  const Ref<TreeNode> group = data.Add(NodeTypeId::NewFormOfPayment, item.text);
  item.TakeUntil(u'/');
  ReadList(reader, *group, item, kNew);
}

/// The old form, then the forms that are taken over from it into the new one.
void ReadOld(LineReader& reader, TreeNode& data, Field item) {
  const Ref<TreeNode> group = data.Add(NodeTypeId::OldFormOfPayment, item.text);
  item.TakeUntil(u'/');
  ReadPart(reader, *group, item, kOld);
  while (!item.Empty()) {
    const Field carriedOver = item.TakeUntil(u'/');
    ReadList(reader, *group->Add(NodeTypeId::OldFormOfPaymentSubgroup, carriedOver.text), carriedOver, kCarriedOver);
  }
}

constexpr std::array kItems{
    KeyedItem{u"NEW/", {}, ReadNew},
    KeyedItem{u"AC/", kAccount},
    KeyedItem{u"OLD/", {}, ReadOld},
};

}  // namespace

void ReadFormOfPaymentLine(LineReader& reader) {
  ReadElementNumber(reader);
  if (const Ref<TreeNode> data = AddRest(reader, NodeTypeId::FormOfPaymentData, u"form of payment")) {
    ReadKeyedItems(reader, *data, kItems);
  }
}

}  // namespace qorltst::simulator
