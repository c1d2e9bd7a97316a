// See FareCheck.h.
#include "tools/report/FareCheck.h"

#include <limits>

#include "frame/Amount.h"
#include "toolkit/RuntimeError.h"
#include "tools/report/Facts.h"

namespace qorltst::report {
namespace {

/// The sum; nothing beyond what an amount can hold. Amounts of a display have no sign.
std::optional<Currency> Added(Currency left, Currency right) {
  if (left.tenThousandths > std::numeric_limits<std::int64_t>::max() - right.tenThousandths) {
    return std::nullopt;
  }
  return Currency{left.tenThousandths + right.tenThousandths};
}

FareCheck CannotTell(FareCheck check, const char* reason) {
  check.sum.reset();
  check.reason = reason;
  return check;
}

std::optional<Currency> FareIn(TST& ticket, const std::u16string& currency) {
  if (Fact(ticket, u"EquivalentLineCurrencyCode") == currency) {
    return WholeAmount(Fact(ticket, u"EquivalentLineFareBase"));
  }
  return Fact(ticket, u"FareBaseLineCurrencyCode") == currency ? WholeAmount(Fact(ticket, u"FareBaseLineBase"))
                                                               : std::nullopt;
}

}  // namespace

std::optional<Currency> WholeAmount(std::u16string_view text) {
  if (text.empty() || LeadingNumber(text) != text) {
    return std::nullopt;
  }
  try {
    return AmountOf(text);
  } catch (const toolkit::RuntimeError& /*beyond the currency type*/) {
    return std::nullopt;
  }
}

FareCheck CheckFare(TST& ticket) {
  const std::u16string currency = Fact(ticket, u"TotalCurrencyCode");
  FareCheck check{.sum = {}, .total = WholeAmount(Fact(ticket, u"TotalCollection")), .reason = {}};
  if (!check.total || currency.empty()) {
    return CannotTell(check, "There is no total to compare with.");
  }
  check.sum = FareIn(ticket, currency);
  if (!check.sum) {
    return CannotTell(check, "The fare is no amount in the currency of the total.");
  }
  for (Object* const tax : ItemsOf(ticket, u"TaxElements")) {
    const std::optional<Currency> amount = WholeAmount(Fact(*tax, u"Amount"));
    if (!amount || Fact(*tax, u"CurrencyCode") != currency) {
      return CannotTell(check, "A tax is no amount in the currency of the total.");
    }
    check.sum = Added(*check.sum, *amount);
    if (!check.sum) {
      return CannotTell(check, "The amounts are too large to be added up.");
    }
  }
  return check;
}

}  // namespace qorltst::report
