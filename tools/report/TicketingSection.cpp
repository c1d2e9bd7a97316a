// Lines that have a card each: by the tables of their classes, so that a new property appears here too. See Sections.h.
#include <algorithm>
#include <array>

#include "tools/model/ValueText.h"
#include "tools/report/Facts.h"
#include "tools/report/Sections.h"

namespace qorltst::report {
namespace {

struct Cards {
  Markup heading;
  /// A collection or an object of the ticket.
  std::u16string_view property;
};

constexpr std::array kCards{
    Cards{"Header", u"TSTHeader"},
    Cards{"Validating carrier", u"FVElements"},
    Cards{"Endorsement", u"FEElement"},
    Cards{"Commission", u"FMElements"},
    Cards{"Form of payment", u"FPElements"},
    Cards{"Tour code", u"FTElements"},
    Cards{"Published and net fares", u"PublishedAndNetFares"},
    Cards{"Original issue and exchange", u"FOElements"},
};

/// The ticket's own properties that no other section shows.
constexpr std::array<std::u16string_view, 10> kOwn{u"FareBaseLineIssueId",
                                                   u"FareBaseLineCorporateCode",
                                                   u"PaymentRestrictionLineFreeFlowText",
                                                   u"ZapOff",
                                                   u"TotalBankersRateId",
                                                   u"TotalRateExchange",
                                                   u"AdditionalTotalBankersCur",
                                                   u"AdditionalTotalBankersAmount",
                                                   u"FareBaseLineBaseAmount",
                                                   u"TotalCollectionAmount"};

void WriteFact(Html& html, const model::Property& property, const std::u16string& text) {
  html.Add("dt", std::string_view(InWords(property.row.name)), {{"title", model::PrintableText(property.row.help)}});
  html.Add("dd", std::u16string_view(text));
}

bool IsFilled(TST& ticket, std::u16string_view property) {
  return !model::IsEmpty(model::ContentOf(ticket, *ticket.Description().FindByName(property)).value());
}

/// The facts of the object but its whole line and its errors; those of `names` alone where there are any.
void WriteFacts(Page& page, Object& object, std::span<const std::u16string_view> names = {}) {
  Html facts;
  model::ForEachProperty(object, {}, [&](const model::Property& property) {
    const std::u16string_view name = property.row.name;
    const bool isAsked = names.empty() ? name != u"Text" && !model::IsErrorText(property.row)
                                       : std::ranges::find(names, name) != names.end();
    if (isAsked) {
      WriteFact(facts, property, Fact(object, name));
    }
  });
  if (!facts.Written().empty()) {
    const auto list = page.Out().In("dl");
    page.Out().Append(facts);
  }
}

void WriteCard(Page& page, Object& object, std::string_view heading) {
  const auto card = page.Out().In("article", {{"class", "card"}});
  page.Out().Add("h3", heading);
  WriteFacts(page, object);
  page.Warn(std::string(heading), Fact(object, u"ErrorText"));
}

void WriteCards(Page& page, TST& ticket, const Cards& cards) {
  Object& value = *ChildOf(ticket, cards.property);
  if (model::AsCollection(value) == nullptr) {
    if (!model::IsEmpty(value)) {
      WriteCard(page, value, cards.heading.Text());
    }
    return;
  }
  for (Object* const item : ItemsOf(ticket, cards.property)) {
    WriteCard(page, *item, cards.heading.Text());
  }
}

}  // namespace

void WriteTicketing(Page& page, TST& ticket) {
  const auto section = page.Section("ticketing", "Ticketing");
  const auto cards = page.Out().In("div", {{"class", "cards"}});
  for (const Cards& kind : kCards) {
    WriteCards(page, ticket, kind);
  }
  const std::u16string errors = Fact(ticket, u"PaymentRestrictionLineErrorText");
  if (errors.empty() &&
      !std::ranges::any_of(kOwn, [&ticket](std::u16string_view name) { return IsFilled(ticket, name); })) {
    return;
  }
  const auto card = page.Out().In("article", {{"class", "card"}});
  page.Out().Add("h3", std::string_view("Fare and payment"));
  WriteFacts(page, ticket, kOwn);
  page.Warn("Payment restriction", errors);
}

void WriteDisplay(Page& page, TST& ticket) {
  static constexpr std::size_t kLine = 80;
  const auto section = page.Section("display", "Display");
  const auto details = page.Out().In("details");
  page.Out().Add("summary", std::string_view("As the host sent it"));
  const auto block = page.Out().In("pre", {{"tabindex", "0"}});
  const std::u16string text = Fact(ticket, u"Text");
  for (std::size_t at = 0; at < text.size(); at += kLine) {
    page.Out().AddText(std::u16string_view(text).substr(at, kLine)).AddMarkup("\n");
  }
}

void WriteSections(Page& page, TST& ticket) {
  WriteItinerary(page, ticket);
  WritePassengers(page, ticket);
  WriteFare(page, ticket);
  WriteFareCalculation(page, ticket);
  WriteTicketing(page, ticket);
  WriteDisplay(page, ticket);
}

}  // namespace qorltst::report
