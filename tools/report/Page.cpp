// See Page.h.
#include "tools/report/Page.h"

#include "tools/model/ValueText.h"
#include "tools/report/Facts.h"
#include "tools/report/Sections.h"
#include "tools/report/Style.h"

namespace qorltst::report {
namespace {

std::string TitleOf(TST* ticket) {
  if (ticket == nullptr) {
    return "No stored ticket";
  }
  const std::u16string number = Fact(*ChildOf(*ticket, u"TSTHeader"), u"ElementNumber");
  return "Stored ticket " + model::PrintableText(number);
}

void WriteHead(Html& html, const std::string& title) {
  const auto head = html.In("head");
  html.AddMarkup(
      "<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      // Whatever a display may hold, the page loads nothing and runs nothing.
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'\">\n");
  html.Add("title", std::string_view(title));
  const auto style = html.In("style");
  html.AddMarkup(kStyle);
}

void WriteBanner(Html& html, const std::string& title, const Origin& origin, bool isGood) {
  const auto header = html.In("header", {{"class", "banner"}});
  html.Add("h1", std::string_view(title));
  const auto line = html.In("p");
  html.Add("span", std::string_view(origin.meaning), {{"class", isGood ? "badge good" : "badge bad"}});
  html.AddText(std::string_view(" " + origin.source + ", line " + std::to_string(origin.line) + ", command "));
  html.Add("code", std::u16string_view(origin.command));
}

void WriteNavigation(Html& html, const Page& page) {
  const auto navigation = html.In("nav", {{"aria-label", "Parts of the ticket"}});
  const auto list = html.In("ul");
  for (const Page::Heading& heading : page.Headings()) {
    const auto item = html.In("li");
    html.Add("a", std::string_view(heading.text), {{"href", '#' + heading.id}});
  }
}

void WriteWarnings(Html& html, const Page& page) {
  if (page.Warnings().empty()) {
    return;
  }
  const auto section = html.In("section", {{"class", "warnings"}, {"aria-labelledby", "warnings"}});
  html.Add("h2", std::string_view("Not everything was understood"), {{"id", "warnings"}});
  const auto list = html.In("ul");
  for (const Page::Warning& warning : page.Warnings()) {
    const auto item = html.In("li");
    html.Add("a", std::string_view(warning.place), {{"href", '#' + warning.anchor}});
    html.AddText(std::string_view(" (" + std::to_string(warning.errors) + ')'));
  }
}

void WriteFailure(Html& html, const Origin& origin) {
  if (!origin.brokenOffIn.empty()) {
    html.Add("p",
             std::u16string_view(u"A failure ended the retrieval in " + origin.brokenOffIn +
                                 u". The page shows what was filled before."),
             {{"class", "failure"}, {"role", "alert"}});
  }
  if (origin.log.empty()) {
    return;
  }
  const auto section = html.In("section", {{"aria-labelledby", "log"}});
  html.Add("h2", std::string_view("Log"), {{"id", "log"}});
  const auto list = html.In("ol", {{"class", "log"}});
  for (const simulator::LogEntry& entry : origin.log) {
    html.Add("li", std::string_view(simulator::FormatLogEntry(entry)));
  }
}

void WriteBody(Html& html, const std::string& title, const Origin& origin, const Page& page) {
  const auto body = html.In("body");
  html.Add("a", std::string_view("To the ticket"), {{"class", "skip"}, {"href", "#ticket"}});
  WriteBanner(html, title, origin, page.Warnings().empty() && origin.brokenOffIn.empty() && !page.Headings().empty());
  if (!page.Headings().empty()) {
    WriteNavigation(html, page);
  }
  const auto main = html.In("main", {{"id", "ticket"}, {"tabindex", "-1"}});
  WriteWarnings(html, page);
  WriteFailure(html, origin);
  html.Append(page.Body());
}

}  // namespace

Html::Element Page::Section(Markup id, Markup heading) {
  headings_.push_back({std::string(id.Text()), std::string(heading.Text())});
  auto section = html_.In("section", {{"aria-labelledby", std::string(id.Text())}});
  html_.Add("h2", heading.Text(), {{"id", std::string(id.Text())}});
  return section;
}

void Page::Warn(const std::string& place, std::u16string_view errorText) {
  if (errorText.empty()) {
    return;
  }
  const std::string anchor = "warning" + std::to_string(warnings_.size() + 1);
  const std::vector<std::u16string> errors = ErrorsOf(errorText);
  warnings_.push_back({anchor, place, errors.size()});
  const auto list = html_.In("ul", {{"class", "warning"}, {"id", anchor}, {"aria-label", "Not understood"}});
  for (const std::u16string& error : errors) {
    html_.Add("li", std::u16string_view(error));
  }
}

std::string TicketPage(const Origin& origin, TST* ticket, toolkit::Toolkit& toolkit) {
  Page page(toolkit);
  if (ticket != nullptr) {
    WriteSections(page, *ticket);
  }
  const std::string title = TitleOf(ticket);
  Html html;
  html.AddMarkup("<!DOCTYPE html>\n");
  {
    const auto root = html.In("html", {{"lang", "en"}});
    WriteHead(html, title);
    WriteBody(html, title, origin, page);
  }
  return html.Written();
}

}  // namespace qorltst::report
