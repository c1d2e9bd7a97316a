// The breakdown of the fare. See Sections.h.
#include <algorithm>
#include <array>

#include "tools/model/ValueText.h"
#include "tools/report/Facts.h"
#include "tools/report/FareCheck.h"
#include "tools/report/Sections.h"

namespace qorltst::report {
namespace {

constexpr std::string_view kColumns = "4";

struct Row {
  std::u16string what;
  std::u16string code;
  std::u16string currency;
  std::u16string amount;
  std::string kind = "part";
};

void WriteRow(Html& html, const Row& row) {
  const auto line = html.In("tr", {{"class", row.kind}});
  html.Add("th", std::u16string_view(row.what), {{"scope", "row"}});
  html.Add("td", std::u16string_view(row.code));
  html.Add("td", std::u16string_view(row.currency));
  html.Add("td", std::u16string_view(row.amount), {{"class", "number"}});
}

/// What the parser did not understand of the line above.
void WriteWarnings(Page& page, const std::string& place, const std::u16string& errors) {
  if (errors.empty()) {
    return;
  }
  const auto row = page.Out().In("tr");
  const auto cell = page.Out().In("td", {{"colspan", std::string(kColumns)}});
  page.Warn(place, errors);
}

/// Currency and amount of one of the ticket's own lines, unless there is none.
struct Line {
  std::string_view name;
  std::u16string_view currency;
  std::u16string_view amount;
  std::u16string_view errors;
};

constexpr Line kBase{"Base fare", u"FareBaseLineCurrencyCode", u"FareBaseLineBase", u"FareBaseLineErrorText"};
constexpr Line kEquivalent{"Equivalent", u"EquivalentLineCurrencyCode", u"EquivalentLineFareBase",
                           u"EquivalentLineErrorText"};
constexpr Line kNet{"Net fare", u"NetFareCurrencyCode", u"NetFareFareAmount", u"NetFareBaseLineErrorText"};
constexpr Line kTotal{"Total", u"TotalCurrencyCode", u"TotalCollection", u"TotalErrorText"};

constexpr std::array kLines{kBase, kEquivalent, kNet, kTotal};

std::u16string Wide(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

void WriteLine(Page& page, TST& ticket, const Line& line, const std::string& kind) {
  const std::u16string amount = Fact(ticket, line.amount);
  const std::u16string currency = Fact(ticket, line.currency);
  if (!amount.empty() || !currency.empty()) {
    WriteRow(page.Out(), {Wide(line.name), {}, currency, amount, kind});
  }
  WriteWarnings(page, std::string(line.name), Fact(ticket, line.errors));
}

void WriteTaxes(Page& page, TST& ticket) {
  int number = 0;
  for (Object* const tax : ItemsOf(ticket, u"TaxElements")) {
    ++number;
    std::u16string code = Fact(*tax, u"ISOType");
    for (const std::u16string_view part : {u"NatureType", u"TaxId"}) {
      const std::u16string text = Fact(*tax, part);
      code += text.empty() ? u"" : u" " + text;
    }
    WriteRow(page.Out(),
             {u"Tax " + Wide(std::to_string(number)), code, Fact(*tax, u"CurrencyCode"), Fact(*tax, u"Amount")});
    WriteWarnings(page, "Tax " + std::to_string(number), Fact(*tax, u"ErrorText"));
  }
}

/// With two decimals, and more where they are not zero.
std::string AmountText(Currency amount) {
  std::string text = model::AmountText(amount);
  while (text.ends_with('0') && text.find('.') + 3 < text.size()) {
    text.pop_back();
  }
  return text;
}

bool HasFare(TST& ticket) {
  return !ItemsOf(ticket, u"TaxElements").empty() || std::ranges::any_of(kLines, [&ticket](const Line& line) {
    return !Fact(ticket, line.amount).empty() || !Fact(ticket, line.currency).empty() ||
           !Fact(ticket, line.errors).empty();
  });
}

void WriteVerdict(Html& html, const FareCheck& check) {
  if (check.AddsUp()) {
    html.Add("p", std::string_view("Fare and taxes add up to the total."), {{"class", "verdict good"}});
  } else if (!check.reason.empty()) {
    html.Add("p", std::string_view("Not added up. " + check.reason), {{"class", "verdict"}});
  } else {
    const Currency gap{check.total->tenThousandths - check.sum->tenThousandths};
    html.Add(
        "p",
        std::string_view("Fare and taxes do not add up to the total: it is " + AmountText(gap) + " away from them."),
        {{"class", "verdict bad"}});
  }
}

}  // namespace

void WriteFare(Page& page, TST& ticket) {
  if (!HasFare(ticket)) {
    return;
  }
  const FareCheck check = CheckFare(ticket);
  const auto section = page.Section("fare", "Fare");
  {
    const auto table = page.Out().In("table", {{"class", "fare"}});
    page.Out().AddMarkup(
        "<caption class=\"spoken\">Fare and taxes</caption>\n"
        "<thead><tr><th scope=\"col\">Part</th><th scope=\"col\">Code</th><th scope=\"col\">Currency</th>"
        "<th scope=\"col\" class=\"number\">Amount</th></tr></thead>\n");
    const auto body = page.Out().In("tbody");
    WriteLine(page, ticket, kBase, "part");
    WriteLine(page, ticket, kEquivalent, "part");
    WriteTaxes(page, ticket);
    if (check.sum) {
      WriteRow(page.Out(),
               {u"Fare and taxes", {}, Fact(ticket, u"TotalCurrencyCode"), Wide(AmountText(*check.sum)), "sum"});
    }
    WriteLine(page, ticket, kTotal, "total");
    WriteLine(page, ticket, kNet, "aside");
  }
  WriteVerdict(page.Out(), check);
}

}  // namespace qorltst::report
