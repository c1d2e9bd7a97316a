// See Columns.h.
#include "tools/report/Columns.h"

#include "tools/model/ValueText.h"
#include "tools/report/Facts.h"

namespace qorltst::report {
namespace {

std::u16string CellText(Object& object, std::u16string_view property) {
  return object.Description().FindByName(property) != nullptr ? Fact(object, property) : std::u16string();
}

}  // namespace

Html::Element WideFrame(Html& html, const char* name) {
  return html.In("div", {{"class", "wide"}, {"tabindex", "0"}, {"role", "region"}, {"aria-label", name}});
}

void WriteHeadings(Html& html, std::span<const Column> columns) {
  const auto head = html.In("thead");
  const auto row = html.In("tr");
  for (const Column& column : columns) {
    html.Add("th", column.heading.Text(), {{"scope", "col"}, {"class", column.isNumber ? "number" : "text"}});
  }
}

void WriteRow(Page& page, Object& object, std::span<const Column> columns, const std::string& kind) {
  Html& html = page.Out();
  {
    const auto row = html.In("tr");
    for (const Column& column : columns) {
      const std::u16string text = CellText(object, column.property);
      if (&column == columns.data()) {
        html.Add("th", std::u16string_view(text), {{"scope", "row"}});
      } else {
        html.Add("td", std::u16string_view(text), {{"class", column.isNumber ? "number" : "text"}});
      }
    }
  }
  if (const std::u16string errors = CellText(object, u"ErrorText"); !errors.empty()) {
    const auto row = html.In("tr");
    const auto cell = html.In("td", {{"colspan", std::to_string(columns.size())}});
    const std::string number = model::PrintableText(CellText(object, columns.front().property));
    page.Warn(number.empty() ? kind + " without a number" : kind + ' ' + number, errors);
  }
}

}  // namespace qorltst::report
