// See TicketDocument.h.
#include "simulator/lines/TicketDocument.h"

#include <array>

#include "simulator/FieldShape.h"
#include "simulator/HostDate.h"
#include "simulator/KeyedItem.h"
#include "simulator/SimulatorNumbers.h"

namespace qorltst::simulator {
namespace {

constexpr char16_t kCouponLetter = u'C';

template <std::size_t Length>
constexpr bool IsNumberOf(std::u16string_view text) {
  return text.size() == Length && IsDigits(text);
}

bool IsCoupons(std::u16string_view text) {
  return text.size() <= 5 && text.starts_with(kCouponLetter) &&
         text.find_first_not_of(u"1234", 1) == std::u16string_view::npos && text.size() > 1;
}

bool IsDate(std::u16string_view text) { return ReadHostDate(text).has_value(); }

constexpr ItemPart kCheckDigit{NodeTypeId::CheckDigit, u"check digit", IsNumberOf<1>, true};
constexpr std::array kNumber{
    ItemPart{NodeTypeId::NumericAirline, u"numeric airline", IsNumberOf<3>},
    ItemPart{NodeTypeId::DocumentNumber, u"document number", IsNumberOf<10>},
    kCheckDigit,
};
constexpr ItemPart kCoupons{NodeTypeId::Coupon, u"coupons", IsCoupons, true};
constexpr ItemPart kCity{NodeTypeId::City, u"city", IsCity, true};
constexpr ItemPart kDate{NodeTypeId::IssueDate, u"date of issue", IsDate, true};
constexpr ItemPart kAgency{NodeTypeId::IataGroup, u"agency number", IsNumberOf<8>, true};
constexpr ItemPart kVoucher{NodeTypeId::VoucherCode, u"voucher code", IsCode, true};
constexpr std::array kConjunctionNumber{
    ItemPart{NodeTypeId::ConjunctedTicketNumber, u"ticket number", IsNumberOf<10>},
    kCheckDigit,
};
constexpr ItemPart kConjunctionCoupons{NodeTypeId::ConjunctionCoupon, u"coupons", IsCoupons, true};

/// The coupons are an item of their node, without the letter in front.
void AddCouponItem(const Ref<TreeNode>& coupons) {
  if (coupons) {
    const std::u16string text = coupons->Text();
    coupons->Add(kSubField, std::u16string_view(text).substr(text.starts_with(kCouponLetter) ? 1 : 0));
  }
}

void ReadConjunction(const LineReader& reader, TreeNode& document, Field& item) {
  Field conjunction = item.TakeUntil(u'/');
  if (!conjunction.Empty()) {
    const Ref<TreeNode> group = document.Add(NodeTypeId::Conjunction, conjunction.text);
    ReadParts(reader, *group, conjunction, kConjunctionNumber, u'-');
    AddCouponItem(ReadPart(reader, *group, conjunction, kConjunctionCoupons, u'-'));
    EndItem(reader, conjunction);
  }
}

}  // namespace

void ReadTicketDocument(const LineReader& reader, TreeNode& document, Field item) {
  Field number = item.TakeUntil(u'/');
  ReadParts(reader, document, number, kNumber, u'-');
  EndItem(reader, number);
  AddCouponItem(ReadPart(reader, document, item, kCoupons));
  ReadPart(reader, document, item, kCity);
  ReadPart(reader, document, item, kDate);
  if (const Ref<TreeNode> agency = ReadPart(reader, document, item, kAgency)) {
    agency->Add(NodeTypeId::IataNumber, agency->Text());
  }
  ReadPart(reader, document, item, kVoucher);
  ReadConjunction(reader, document, item);
  EndItem(reader, item);
}

}  // namespace qorltst::simulator
